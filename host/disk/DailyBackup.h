// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/backup/BackupPlace.h"
#include "host/fasting/HistoryClient.h"
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

/// A history that is backed up before the first change of a day. Thread: as the history's.
class BackedUpHistory final : public HistoryClient {
 public:
  BackedUpHistory(std::shared_ptr<const HistoryClient> kept, BackupSource from)
      : history{std::move(kept)}, source{std::move(from)} {}
  History load() const override { return history->load(); }
  void apply(const HistoryChange& change) const override;
  std::int64_t version() const override { return history->version(); }
  std::optional<FileState> lastSynced() const override { return history->lastSynced(); }
  std::int64_t sync(const WeightSync& read) const override;

 private:
  void backUp() const;

  std::shared_ptr<const HistoryClient> history;
  BackupSource source;
};

}  // namespace mivo::host
