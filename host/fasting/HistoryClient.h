// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "host/fasting/HistoryChange.h"
#include "host/fasting/WeightSync.h"
#include "host/history/History.h"

namespace mivo::host {

/// The user's history as the app's features reach it. Thread: any; called from tasks, since a disk may be slow.
class HistoryClient {
 public:
  virtual ~HistoryClient() = default;
  virtual History load() const = 0;
  /// On disk when it returns; throws with a sentence for the user.
  virtual void apply(const HistoryChange& change) const = 0;
  /// Another number than last time: another program has changed something since.
  virtual std::int64_t version() const = 0;
  /// The state of the file whose weights were synced last; nothing before the first time.
  virtual std::optional<FileState> lastSynced() const = 0;
  /// Adds those weights that are neither there nor known from a sync before, and remembers them all; how many it
  /// added. It is no step of the user's: what can be undone stays the last of those. On disk when it returns; throws
  /// with a sentence for the user.
  virtual std::int64_t sync(const WeightSync& read) const = 0;
};

}  // namespace mivo::host
