// SPDX-License-Identifier: MIT
#include "host/data/DailyBackup.h"

#include <exception>

namespace mivo::host {

void backUpWhereDue(const BackupFolder& folder, const std::function<History()>& history,
                    const std::function<std::vector<Setting>()>& settings, Date now) {
  if (folder.isDue(now)) folder.keepAndRotate(history(), settings(), now);
}

void BackedUpHistory::backUp() const {
  try {
    backUpWhereDue(source.folder, source.history, source.settings, source.now());
  } catch (const std::exception& error) {
    source.failed(error);
  }
}

void BackedUpHistory::apply(const HistoryChange& change) const {
  backUp();
  history->apply(change);
}

std::int64_t BackedUpHistory::sync(const WeightSync& read) const {
  backUp();
  return history->sync(read);
}

}  // namespace mivo::host
