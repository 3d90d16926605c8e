// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "host/fasting/HistoryChange.h"
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
};

}  // namespace mivo::host
