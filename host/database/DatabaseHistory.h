// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

#include "host/database/Database.h"
#include "host/fasting/HistoryClient.h"

namespace mivo::host {

/// The user's history in a database.
class DatabaseHistory final : public HistoryClient {
 public:
  explicit DatabaseHistory(Database opened) : database{std::move(opened)} {}
  History load() const override { return locked()->history(); }
  void apply(const HistoryChange& change) const override { locked()->apply(change); }
  /// While a long change is written, the number of before: the main thread asks, and must not wait.
  std::int64_t version() const override {
    const std::unique_lock lock{mutex, std::try_to_lock};
    if (lock) seen = database.version();
    return seen;
  }
  std::optional<FileState> lastSynced() const override { return locked()->lastSynced(); }
  std::int64_t sync(const WeightSync& read) const override { return locked()->sync(read); }
  /// See `Database::replace`; `before` may not ask this history.
  HistoryChange replace(const History& records, const std::function<void(const History& present)>& before) const {
    return locked()->replace(records, before);
  }

 private:
  struct Locked {
    std::unique_lock<std::mutex> lock;
    Database& database;
    Database* operator->() const { return &database; }
  };
  Locked locked() const { return {std::unique_lock{mutex}, database}; }

  mutable std::mutex mutex;
  mutable Database database;
  mutable std::atomic<std::int64_t> seen = database.version();
};

}  // namespace mivo::host
