// SPDX-License-Identifier: MIT
#include "host/database/Database.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <iterator>
#include <system_error>
#include <utility>

#include "adapters/system/FileDescriptor.h"
#include "adapters/system/UserDirectories.h"
#include "host/database/LastChange.h"
#include "host/database/RecordTables.h"
#include "host/database/Schema.h"
#include "host/dates/DateText.h"
#include "host/history/SameWeighing.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;
using Kind = DatabaseError::Kind;

constexpr int millisecondsToWaitForALock = 5000;

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

void makeFolder(const fs::path& file) {
  std::error_code error;
  if (file.has_parent_path()) fs::create_directories(file.parent_path(), error);
  if (error) throw DatabaseError{Kind::noFolder, file.parent_path(), "the folder cannot be made: " + error.message()};
}

// SQLite says of a missing file only that it cannot be opened.
void demandAFolderForANewFile(const fs::path& file) {
  const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
  if (!fs::exists(file) && ::access(folder.c_str(), W_OK | X_OK) != 0)
    throw DatabaseError{Kind::readOnly, folder, sentence(Kind::readOnly, "")};
}

// Its owner's alone: SQLite gives the files beside a database the permissions that it has. Nothing is opened for it,
// because to close a file ends the locks that this program has on it elsewhere.
void keepPrivate(const fs::path& file) {
  ::mknod(file.c_str(), S_IFREG | S_IRUSR | S_IWUSR, 0);  // fails where it is there
  for (const char* part : {"", "-wal", "-shm"}) {
    std::error_code notOurs;
    fs::permissions(file.string() + part, fs::perms::group_all | fs::perms::others_all, fs::perm_options::remove,
                    notOurs);
  }
}

/// A name that nothing has: what was moved aside in the same second stays.
fs::path pathAside(const fs::path& file) {
  const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  const std::string first = file.string() + ".damaged-" + rfc3339(now);
  fs::path path = first;
  for (int copy = 2; fs::exists(path); ++copy) path = first + '-' + std::to_string(copy);
  return path;
}

void removeDatabase(const fs::path& file) {
  for (const char* part : {"", "-wal", "-shm"}) {
    std::error_code isNotThere;
    fs::remove(file.string() + part, isNotThere);
  }
}

// The old file keeps its name until the new one takes it. Its log goes first: the new one would be read with it.
void takePlaceOf(const fs::path& file, const fs::path& made, const fs::path& aside) {
  std::error_code hasNoLinks, isNotThere;
  fs::create_hard_link(file, aside, hasNoLinks);
  if (hasNoLinks) fs::rename(file, aside);
  for (const char* part : {"-wal", "-shm"}) fs::rename(file.string() + part, aside.string() + part, isNotThere);
  fs::rename(made, file);
  const adapters::FileDescriptor folder{
      ::open(fs::absolute(file).parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
  ::fsync(folder.get());
}

// A database that nobody has open can be read without a file beside it only where it is called immutable.
std::string immutableAddress(const fs::path& file) {
  std::string address = "file:";
  for (const char letter : file.string())
    address += letter == '%' ? "%25" : letter == '?' ? "%3f" : letter == '#' ? "%23" : std::string{letter};
  return address + "?immutable=1";
}

SQLite::Database open(const fs::path& file, Database::Access access) {
  if (access == Database::Access::readAndWrite)
    return {file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, millisecondsToWaitForALock};
  if (fs::exists(file.string() + "-wal")) return {file.string(), SQLite::OPEN_READONLY, millisecondsToWaitForALock};
  return {immutableAddress(file), SQLite::OPEN_READONLY | SQLite::OPEN_URI, millisecondsToWaitForALock};
}

std::string commandFor(const fs::path& database, std::string command) {
  return database == ownDatabaseFile() ? command : command + " --database '" + database.string() + '\'';
}

}  // namespace

struct Database::Connection {
  Connection(fs::path path, Access access) : file{std::move(path)}, database{open(file, access)} {}

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

Database::Database(const fs::path& file, Access access) {
  if (access == Access::readAndWrite) {
    makeFolder(file);
    demandAFolderForANewFile(file);
    keepPrivate(file);
  }
  translating(file, [&] {
    connection = std::make_unique<Connection>(file, access);
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

OpenedDatabase openOrSetAside(const fs::path& file) {
  try {
    return {Database{file}};
  } catch (const DatabaseError& error) {
    if (error.kind != Kind::damaged) throw;
  }
  const fs::path aside = pathAside(file);
  for (const char* part : {"", "-wal", "-shm"}) {
    std::error_code error;
    fs::rename(file.string() + part, aside.string() + part, error);
    if (error && *part == '\0')
      throw DatabaseError{Kind::unavailable, file, "it is damaged and cannot be moved aside: " + error.message()};
  }
  return {Database{file}, aside};
}

fs::path replaceDamaged(const fs::path& file, const History& records) {
  const fs::path made = file.string() + ".restored-" + std::to_string(::getpid());
  removeDatabase(made);  // of a program that was killed and had the same number
  try {
    Database{made}.replace(records, [](const History&) {});
    const fs::path aside = pathAside(file);
    takePlaceOf(file, made, aside);
    return aside;
  } catch (const fs::filesystem_error& error) {
    removeDatabase(made);
    throw DatabaseError{Kind::unavailable, file, "it is damaged and cannot be replaced: " + error.code().message()};
  } catch (...) {
    removeDatabase(made);
    throw;
  }
}

std::string exportCommand(const fs::path& database) { return commandFor(database, "mivo export --to copy.json"); }

std::string restoreCommand(const fs::path& database) { return commandFor(database, "mivo backup restore"); }

fs::path ownDatabaseFile() { return adapters::dataDirectory() / "mivo.sqlite"; }

}  // namespace mivo::host
