// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include "host/fasting/HistoryChange.h"
#include "host/fasting/WeightSync.h"
#include "host/history/History.h"

namespace mivo::host {

/// What went wrong with the user's database; `what()` is a sentence that names the file.
class DatabaseError : public std::runtime_error {
 public:
  enum class Kind {
    damaged,      ///< it is not a database, or its contents do not hold together
    tooNew,       ///< a later version of the program has written it
    conflict,     ///< a record is not, or no longer, as the change takes it to be
    fastRunning,  ///< a second running fast was to be added
    diskFull,     ///< or the user's share of it
    locked,       ///< another program keeps it locked
    readOnly,     ///< it may be read, but not written
    noFolder,     ///< its folder cannot be made
    unavailable,  ///< it cannot be read or written for another reason
  };

  DatabaseError(Kind what, std::filesystem::path where, const std::string& why)
      : std::runtime_error{where.string() + ": " + why}, kind{what}, file{std::move(where)}, reason{why} {}

  const Kind kind;
  const std::filesystem::path file;  ///< or its folder, where that is what is wrong
  const std::string reason;          ///< in English, without the file
};

/// The user's fasts and weights on disk. Several programs may have it open at once and see each other's changes.
///
/// What was written is on disk when the call returns, so that a program may be killed at any moment and start again
/// without repair. Thread: one at a time.
class Database {
 public:
  enum class Access { readAndWrite, readOnly };

  /// Opens the database, makes it and its folder where they are missing, brings an older one up to date, and lets
  /// nobody but its owner read it; one that is only to be read must be there, and is left as it is. Throws
  /// DatabaseError.
  explicit Database(const std::filesystem::path& file, Access access = Access::readAndWrite);
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

/// Opens the database like the constructor, but moves a damaged one aside and starts an empty one in its place.
/// `setAside` is then the path under which the damaged one is kept.
struct OpenedDatabase {
  Database database;
  std::optional<std::filesystem::path> setAside = {};
};
OpenedDatabase openOrSetAside(const std::filesystem::path& file);

/// Puts a new database with these records in the place of a damaged one, in one step, so that at no time there is none,
/// and returns the path under which the damaged one is kept. Throws DatabaseError; the damaged one then stands as it
/// was.
std::filesystem::path replaceDamaged(const std::filesystem::path& file, const History& records);

/// What writes all of a database into a file, typed into a terminal: "mivo export --to copy.json".
std::string exportCommand(const std::filesystem::path& database);
/// What puts the newest backup into a database: "mivo backup restore".
std::string restoreCommand(const std::filesystem::path& database);

/// Where the app and the command line keep a user's database: "mivo/mivo.sqlite" in the user's data folder.
std::filesystem::path ownDatabaseFile();

}  // namespace mivo::host
