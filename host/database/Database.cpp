// SPDX-License-Identifier: MIT
#include "host/database/Database.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <cerrno>
#include <cstring>
#include <iterator>
#include <utility>

#include "host/database/LastChange.h"
#include "host/database/RecordTables.h"
#include "host/database/Schema.h"
#include "host/history/SameWeighing.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;
using Kind = DatabaseError::Kind;

// What syncs have read.
constexpr const char* selectSyncedFile = "SELECT inode, sizeInBytes, modifiedAt FROM syncedFile";
constexpr const char* replaceSyncedFile =
    "INSERT OR REPLACE INTO syncedFile (place, inode, sizeInBytes, modifiedAt) VALUES (1, ?, ?, ?)";
constexpr const char* selectSyncedWeights = "SELECT weighedAt, weightInKg FROM syncedWeights";
constexpr const char* insertSyncedWeight = "INSERT OR IGNORE INTO syncedWeights (weighedAt, weightInKg) VALUES (?, ?)";

// What the system said where SQLite only knows that writing failed.
Kind kindOfFailedWrite(int systemError) {
  switch (systemError) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Kind::diskFull;
    case EROFS:
      return Kind::readOnly;
    default:
      return Kind::unavailable;
  }
}

Kind kindOf(const SQLite::Exception& error, int systemError) {
  switch (error.getErrorCode()) {
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return Kind::damaged;
    case SQLITE_CONSTRAINT:
      return std::strstr(error.what(), "oneRunningFast") ? Kind::fastRunning : Kind::conflict;
    case SQLITE_FULL:
      return Kind::diskFull;
    case SQLITE_BUSY:
      return Kind::locked;
    case SQLITE_READONLY:
      return Kind::readOnly;
    case SQLITE_IOERR:
      return kindOfFailedWrite(systemError);
    default:
      return Kind::unavailable;
  }
}

std::string sentence(Kind kind, const char* message) {
  switch (kind) {
    case Kind::damaged:
      return std::string{"the database is damaged: "} + message;
    case Kind::fastRunning:
      return "a fast is running already";
    case Kind::conflict:
      return std::string{"a record cannot be added: "} + message;
    case Kind::diskFull:
      return "the disk is full; nothing was changed";
    case Kind::locked:
      return "another program keeps it locked; nothing was changed";
    case Kind::readOnly:
      return "it may not be written; nothing was changed";
    default:
      return message;
  }
}

// Runs `body`, and turns what SQLite throws into a sentence that names the file. The system's reason is in errno,
// unless something is rolled back on the way here.
template <class Body>
auto translating(const fs::path& file, Body&& body) {
  errno = 0;
  try {
    return body();
  } catch (const SQLite::Exception& error) {
    const Kind kind = kindOf(error, errno);
    throw DatabaseError{kind, file, sentence(kind, error.what())};
  }
}

/// Those that are there and those that syncs have read.
std::vector<BodyWeightSample> knownWeighings(SQLite::Database& database) {
  std::vector<BodyWeightSample> known = readWeights(database);
  SQLite::Statement synced{database, selectSyncedWeights};
  while (synced.executeStep()) known.push_back({{}, dateSince1970(synced.getColumn(0)), synced.getColumn(1)});
  sortByDate(known);
  return known;
}

void remember(SQLite::Database& database, const WeightSync& read) {
  SQLite::Statement file{database, replaceSyncedFile};
  file.bind(1, read.file.inode);
  file.bind(2, read.file.sizeInBytes);
  file.bind(3, read.file.modifiedAt);
  file.exec();
  SQLite::Statement weight{database, insertSyncedWeight};
  for (const BodyWeightSample& sample : read.weights) {
    weight.bind(1, secondsSince1970(sample.date));
    weight.bind(2, sample.weightInKg);
    weight.exec();
    weight.reset();
  }
}

void write(SQLite::Database& database, const HistoryChange& change) {
  removeAll(database, change.removedFasts);
  removeAll(database, change.removedWeights);
  insertAll(database, "fasts", change.addedFasts);
  insertAll(database, "weights", change.addedWeights);
  keepAsLast(database, change);
}

}  // namespace

struct Database::Connection {
  Connection(fs::path path, SQLite::Database opened) : file{std::move(path)}, database{std::move(opened)} {}

  void prepare(Access access) {
    if (access == Access::readAndWrite) {
      database.exec("PRAGMA journal_mode = WAL");
      database.exec("PRAGMA synchronous = FULL");
      database.exec("PRAGMA foreign_keys = ON");
      database.exec("PRAGMA temp_store = MEMORY");  // what a statement of many rows may have to take back
    }
    const std::string verdict = database.execAndGet("PRAGMA quick_check(1)");
    if (verdict != "ok") throw DatabaseError{Kind::damaged, file, sentence(Kind::damaged, verdict.c_str())};
    access == Access::readAndWrite ? migrate(database) : demandReadable(database);
  }

  std::unique_ptr<SQLite::Transaction> begin() {
    return translating(
        file, [&] { return std::make_unique<SQLite::Transaction>(database, SQLite::TransactionBehavior::IMMEDIATE); });
  }

  fs::path file;
  SQLite::Database database;
};

Database::Database(fs::path path, Access access, const std::function<SQLite::Database()>& open) {
  translating(path, [&] {
    connection = std::make_unique<Connection>(path, open());
    connection->prepare(access);
  });
}

Database::~Database() = default;
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;

History Database::history() const {
  return translating(file(), [&] {
    SQLite::Transaction snapshot{connection->database};
    return readHistory(connection->database);
  });
}

void Database::apply(const HistoryChange& change) {
  if (change.isEmpty()) return;
  const auto transaction = connection->begin();
  translating(file(), [&] {
    write(connection->database, change);
    transaction->commit();
  });
}

HistoryChange Database::undo() {
  const auto transaction = connection->begin();
  return translating(file(), [&] {
    HistoryChange change = inverse(lastChange(connection->database));
    if (change.isEmpty()) return change;
    write(connection->database, change);
    transaction->commit();
    return change;
  });
}

HistoryChange Database::replace(const History& records, const std::function<void(const History& present)>& before) {
  const auto transaction = connection->begin();
  return translating(file(), [&]() -> HistoryChange {
    History present = readHistory(connection->database);
    before(present);
    if (present.fasts == records.fasts && present.weights == records.weights) return {};
    HistoryChange change{.removedFasts = std::move(present.fasts),
                         .addedFasts = records.fasts,
                         .removedWeights = std::move(present.weights),
                         .addedWeights = records.weights};
    write(connection->database, change);
    transaction->commit();
    return change;
  });
}

// One that is older and only read has no such table.
std::optional<FileState> Database::lastSynced() const {
  return translating(file(), [&]() -> std::optional<FileState> {
    SQLite::Database& database = connection->database;
    if (!database.tableExists("syncedFile")) return std::nullopt;
    SQLite::Statement row{database, selectSyncedFile};
    if (!row.executeStep()) return std::nullopt;
    return FileState{.inode = row.getColumn(0), .sizeInBytes = row.getColumn(1), .modifiedAt = row.getColumn(2)};
  });
}

std::int64_t Database::sync(const WeightSync& read) {
  const auto transaction = connection->begin();
  return translating(file(), [&] {
    SQLite::Database& database = connection->database;
    const std::vector<BodyWeightSample> added = newWeighings(read.weights, knownWeighings(database));
    insertAll(database, "weights", added);
    remember(database, read);
    transaction->commit();
    return std::ssize(added);
  });
}

std::int64_t Database::version() const {
  return translating(
      file(), [&]() -> std::int64_t { return connection->database.execAndGet("PRAGMA data_version").getInt64(); });
}

const fs::path& Database::file() const { return connection->file; }

}  // namespace mivo::host
