// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <unordered_map>

#include "tally/net/Asio.h"
#include "tally/store/CounterStore.h"
#include "tally/store/FileLock.h"
#include "tally/store/SqliteCounters.h"

namespace mivo::tally {

/// Counters in a SQLite file that this process alone writes to. A thread of its own commits the batches, so that the
/// event loop never waits for a disk; counts that were read or committed are kept in memory for the next reader.
class SqliteStore final : public CounterStore {
 public:
  /// Throws std::runtime_error with one sentence where the file cannot be used.
  SqliteStore(asio::io_context& loop, const std::filesystem::path& file, Report report);
  ~SqliteStore() override;

  std::optional<std::int64_t> known(std::string_view counter) const override;
  void submit(Operations operations, std::function<void(Results)> done) override;
  bool isAvailable() const override;

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  void write(const std::stop_token& stop);
  void readWhatCanBeRead(Results& results);
  void didWrite(const Results& results, const std::string& fault);
  void remember(const Results& results);

  asio::io_context& loop_;
  Report report_;
  FileLock lock_;
  SqliteCounters counters_;

  std::unordered_map<std::string, std::int64_t, Hash, std::equal_to<>> counts_;
  Operations operations_;  // the event loop's, except between submit and done
  std::function<void(Results)> done_;
  std::chrono::steady_clock::time_point lastFailure_ = std::chrono::steady_clock::time_point::min();
  bool isFailing_ = false;

  std::mutex mutex_;
  std::condition_variable_any wake_;
  bool hasWork_ = false;
  std::jthread writer_;
};

}  // namespace mivo::tally
