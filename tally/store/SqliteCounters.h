// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>

#include "tally/store/Change.h"
#include "tally/store/CounterStore.h"

namespace mivo::tally {

/// The counters' table in a SQLite file. Write-ahead log with synchronous=FULL: what `apply` returned is on disk.
/// Every operation throws std::runtime_error with one sentence that names the file. Thread: one at a time.
class SqliteCounters {
 public:
  enum class Access { readOnly, readWrite };

  /// Opens the file; for writing, makes it where it is missing. An operation waits up to `busyTime` for another process
  /// that writes.
  SqliteCounters(const std::filesystem::path& file, Access access,
                 std::chrono::milliseconds busyTime = std::chrono::seconds{5},
                 std::int64_t mostCounters = std::numeric_limits<std::int64_t>::max());
  ~SqliteCounters();

  /// All votes in one transaction, flushed once. After a throw none of them is kept. A counter that lies on a damaged
  /// page is `away`, and the others go on; one that nobody voted for before is `full` beyond `mostCounters`.
  Results apply(const Operations& operations);
  /// What apply could not read since this was asked last; empty for nothing.
  std::string takeDamage();
  /// What is wrong with the file, looked at from one end to the other; empty for nothing.
  std::string damage();
  /// Writes and flushes as a vote does, and changes no counter. Throws where a vote would not be kept now.
  void probe();
  /// Whether another process wrote since this was asked last.
  bool wasChangedByOthers();
  /// 0 for a counter that nobody voted for.
  std::int64_t count(std::string_view counter);
  /// Every counter in order of its name.
  void forEach(const std::function<void(std::string_view counter, std::int64_t count)>& visit);
  /// Writes one count as it is; the count that it replaced, or nothing for a counter that nobody voted for.
  std::optional<std::int64_t> replace(const std::string& counter, std::int64_t count);
  /// Writes counts as they are, all or none.
  void set(const std::vector<Change>& changes);

 private:
  struct Database;
  class Batch;
  Results applyTogether(const Operations& operations);
  Results applyOneByOne(const Operations& operations);

  std::filesystem::path file;
  std::unique_ptr<Database> database;
};

}  // namespace mivo::tally
