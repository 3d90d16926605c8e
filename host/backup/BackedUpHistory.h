// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "host/fasting/HistoryClient.h"

namespace mivo::host {

/// A history that is backed up before it is changed. `backUp` makes the backup of the day where that has none yet, says
/// itself what keeps it from that, and throws nothing. Thread: as the history's.
class BackedUpHistory final : public HistoryClient {
 public:
  BackedUpHistory(std::shared_ptr<const HistoryClient> kept, std::function<void()> backUp)
      : history{std::move(kept)}, beforeChange{std::move(backUp)} {}
  History load() const override { return history->load(); }
  void apply(const HistoryChange& change) const override {
    beforeChange();
    history->apply(change);
  }
  std::int64_t version() const override { return history->version(); }
  std::optional<FileState> lastSynced() const override { return history->lastSynced(); }
  std::int64_t sync(const WeightSync& read) const override {
    beforeChange();
    return history->sync(read);
  }

 private:
  std::shared_ptr<const HistoryClient> history;
  std::function<void()> beforeChange;
};

}  // namespace mivo::host
