// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <vector>

#include "host/backup/BackupPlace.h"
#include "host/history/History.h"
#include "host/history/Setting.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// Makes the backup of a day, in UTC, where that has none yet, and lets those go that need not stay. `history` and
/// `settings` are asked only then. Where it can be made beside the database alone, and was made there, the answer is
/// the place with what stood against the chosen one. Throws std::system_error, and what `history` and `settings` throw.
std::optional<BackupPlace> backUpWhereDue(BackupPlace place, const std::function<History()>& history,
                                          const std::function<std::vector<Setting>()>& settings, Date now);

/// What a daily backup is made of and from.
struct BackupSource {
  std::function<BackupPlace()> place;
  std::function<History()> history;  ///< as it is on disk, read beside whoever writes
  std::function<std::vector<Setting>()> settings;
  std::function<Date()> now;
  // On the thread of the change; neither stops anything.
  std::function<void(const std::exception& why)> failed;
  std::function<void(const BackupPlace& place)> wentBesideTheDatabase;  ///< its `fault` says why
};

/// Makes the backup of a day where that has none yet; for `BackedUpHistory`.
std::function<void()> dailyBackup(BackupSource source);

}  // namespace mivo::host
