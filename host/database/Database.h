// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "host/database/DatabaseError.h"
#include "host/fasting/HistoryChange.h"
#include "host/fasting/WeightSync.h"
#include "host/history/History.h"

namespace SQLite {
class Database;
}

namespace mivo::host {

/// The user's fasts and weights. Several programs may have them open at once and see each other's changes.
///
/// What was written is where SQLite keeps it when the call returns, so that a program may be killed at any moment and
/// start again without repair. Thread: one at a time.
class Database {
 public:
  enum class Access { readAndWrite, readOnly };

  /// Takes over what `open` connects to, and brings an older database up to date; one that is only to be read is left
  /// as it is. `file` is what sentences call it. Throws DatabaseError, also for what `open` throws of SQLite's.
  Database(std::filesystem::path file, Access access, const std::function<SQLite::Database()>& open);
  ~Database();
  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;

  /// Everything: fasts by start and weights by date, those of one instant in the order in which they were added.
  History history() const;

  /// Does a change as a whole. Throws DatabaseError: a conflict where a record that it takes away is not there as the
  /// change has it, where one that it adds would have the id of another, and where a second fast would be running.
  void apply(const HistoryChange& change);

  /// Takes back the change that was done last, by whichever program, and returns what was done for that; it is a change
  /// too, so that the next call does the first one again. Empty where nothing was changed yet. Throws DatabaseError: a
  /// conflict where something other than a change of ours has touched those records since. What a change took away is
  /// kept for this until the next one.
  HistoryChange undo();

  /// Puts these records in the place of all there are, as one change, and returns it; empty where they are there
  /// already. `before` is handed what is there, while nobody else can change it; what it throws leaves all as it was.
  /// Throws DatabaseError.
  HistoryChange replace(const History& records, const std::function<void(const History& present)>& before);

  /// The state of the file whose weights were synced last; nothing before the first time.
  std::optional<FileState> lastSynced() const;

  /// Adds those weights of a linked file that are new, and returns how many. All of them are remembered, with the state
  /// of their file, in the same step and in this database: a weight that was brought once and then deleted or edited is
  /// known by what was read, whatever became of it, so that it does not come back from this file, a later one or
  /// another one; and what comes late with an old date still comes. Which weighings are the same, `isSameWeighing`
  /// says. `undo` still takes back the change before. Throws DatabaseError.
  std::int64_t sync(const WeightSync& read);

  /// Another number than last time: another program has changed something since.
  std::int64_t version() const;

  const std::filesystem::path& file() const;

 private:
  struct Connection;
  std::unique_ptr<Connection> connection;
};

}  // namespace mivo::host
