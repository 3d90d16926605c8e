// SPDX-License-Identifier: MIT
#include "host/disk/DailyBackup.h"

#include <exception>
#include <system_error>
#include <utility>

#include "host/disk/BackupFolder.h"

namespace mivo::host {

namespace {

/// Whether one was made.
bool isMade(const BackupFolder& folder, const std::function<History()>& history,
            const std::function<std::vector<Setting>()>& settings, Date now) {
  if (!folder.isDue(now)) return false;
  const auto kept = folder.keepAndRotate(history(), settings(), now);
  return kept && kept->isNew;
}

}  // namespace

// The chosen folder may turn out to be full, or to be taken out a moment ago.
std::optional<BackupPlace> backUpWhereDue(BackupPlace place, const std::function<History()>& history,
                                          const std::function<std::vector<Setting>()>& settings, Date now) {
  if (!place.chosen.empty() && !place.fault) try {
      isMade(BackupFolder{place.folder()}, history, settings, now);
      return std::nullopt;
    } catch (const std::system_error& error) {
      place.fault = error.code();
    }
  const bool isMadeHere = isMade(BackupFolder{place.folder()}, history, settings, now);
  return isMadeHere && place.fault ? std::optional{std::move(place)} : std::nullopt;
}

std::function<void()> dailyBackup(BackupSource source) {
  return [source = std::move(source)] {
    try {
      const auto place = backUpWhereDue(source.place(), source.history, source.settings, source.now());
      if (place) source.wentBesideTheDatabase(*place);
    } catch (const std::exception& error) {
      source.failed(error);
    }
  };
}

}  // namespace mivo::host
