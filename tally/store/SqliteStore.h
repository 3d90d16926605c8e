// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <limits>
#include <map>
#include <optional>

#include "tally/net/Asio.h"
#include "tally/store/CounterStore.h"
#include "tally/store/FileIdentity.h"
#include "tally/store/FileLock.h"
#include "tally/store/SqliteCounters.h"
#include "tally/store/Worker.h"

namespace mivo::tally {

/// Counters in a SQLite file that no other server has. One thread commits the batches and one reads, so that the event
/// loop never waits for a disk nor a read for a vote; counts that were read or committed are kept in memory for the
/// next reader, until another process writes to the file. While nobody votes a write that changes nothing shows whether
/// votes can be kept.
class SqliteStore final : public CounterStore {
 public:
  /// Votes for a counter beyond `mostCounters` are `full`. Throws std::runtime_error with one sentence where the file
  /// cannot be used at all; one that is damaged or cannot be written is served, and reported.
  SqliteStore(asio::io_context& loop, const std::filesystem::path& file, Report report, const StoreTimes& times = {},
              std::int64_t mostCounters = std::numeric_limits<std::int64_t>::max());
  ~SqliteStore() override;

  std::optional<std::int64_t> known(std::string_view counter) const override;
  void submit(Operations operations, std::function<void(Results)> done) override;
  bool isAvailable() const override { return !isFailing; }
  bool readsApart() const override { return true; }
  bool isDamaged() const override { return wasDamageFound; }
  std::uintmax_t writeAheadLogBytes() const override;

 private:
  struct Batch {
    Operations operations;  // the event loop's, except between submit and done
    std::function<void(Results)> done;
  };
  using Instant = std::chrono::steady_clock::time_point;

  // On the threads.
  void read();
  void write();
  void lookAfter();
  std::string faultOfProbe();
  std::string faultOfFile() const;
  void noteWrite(const std::string& fault);

  // On the event loop.
  void didRead(Results results, const std::string& damage);
  void didWrite(const Results& results, const std::string& fault, const std::string& damage);
  void didLook(bool wasChanged, const std::optional<std::string>& fault);
  void learnFault(const std::string& fault);
  void learnDamage(const std::string& damage);
  void makeRoom(std::size_t further);
  void forget();

  asio::io_context& loop;
  Report report;
  StoreTimes times;
  FileLock lock;
  SqliteCounters counters;
  SqliteCounters reads;
  FileIdentity database;
  FileIdentity writeAheadLog;

  // A tree: strangers choose the names, and could choose them to collide.
  std::map<std::string, std::int64_t, std::less<>> counts;
  bool wasForgotten = false;  // since the present batch of reads was sent
  Batch reading;
  Batch writing;
  bool isFailing = false;
  bool wasDamageFound = false;

  // The writer's own.
  Instant lastWrite;
  bool didWriteFail = false;

  Worker reader;
  std::optional<Worker> writer;
};

}  // namespace mivo::tally
