// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>

#include "host/database/Database.h"

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

/// The one on a database.
class DatabaseHistory final : public HistoryClient {
 public:
  explicit DatabaseHistory(Database opened) : database{std::move(opened)} {}
  History load() const override { return locked()->history(); }
  void apply(const HistoryChange& change) const override { locked()->apply(change); }
  std::int64_t version() const override { return locked()->version(); }

 private:
  struct Locked {
    std::unique_lock<std::mutex> lock;
    Database& database;
    Database* operator->() const { return &database; }
  };
  Locked locked() const { return {std::unique_lock{mutex}, database}; }

  mutable std::mutex mutex;
  mutable Database database;
};

}  // namespace mivo::host
