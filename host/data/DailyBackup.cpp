// SPDX-License-Identifier: MIT
#include "host/data/DailyBackup.h"

#include <exception>

namespace mivo::host {

void backUpWhereDue(const BackupFolder& folder, const std::function<History()>& history,
                    const std::function<std::vector<Setting>()>& settings, Date now) {
  if (folder.isDue(now)) folder.keepAndRotate(history(), settings(), now);
}

void BackedUpHistory::apply(const HistoryChange& change) const {
  try {
    backUpWhereDue(source.folder, source.history, source.settings, source.now());
  } catch (const std::exception& error) {
    source.failed(error);
  }
  history->apply(change);
}

}  // namespace mivo::host
