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

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <system_error>
#include <utility>

#include "adapters/system/FileDescriptor.h"
#include "adapters/system/UserDirectories.h"
#include "host/database/Schema.h"
#include "host/dates/DateText.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;
using Kind = DatabaseError::Kind;

constexpr int millisecondsToWaitForALock = 5000;

// Identifiers as 16 bytes, the most significant first, so that they sort and read as their text does.
using IDBytes = std::array<unsigned char, 16>;

IDBytes bytes(UUID id) {
  IDBytes result;
  for (std::size_t place = 0; place < result.size(); ++place) {
    const std::uint64_t half = place < 8 ? id.high : id.low;
    result[place] = static_cast<unsigned char>(half >> (56 - 8 * (place % 8)));
  }
  return result;
}

UUID identifier(const SQLite::Column& column) {
  IDBytes held{};
  std::memcpy(held.data(), column.getBlob(), held.size());
  UUID id;
  for (std::size_t place = 0; place < held.size(); ++place) {
    std::uint64_t& half = place < 8 ? id.high : id.low;
    half = half << 8 | held[place];
  }
  return id;
}

void bind(SQLite::Statement& statement, int place, UUID id) {
  const IDBytes held = bytes(id);
  statement.bind(place, held.data(), static_cast<int>(held.size()));
}

void bind(SQLite::Statement& statement, const FastRecord& record) {
  const auto& [fast, note] = record;
  bind(statement, 1, fast.id);
  statement.bind(2, secondsSince1970(fast.start));
  if (fast.finished)
    statement.bind(3, secondsSince1970(fast.finished->end));
  else
    statement.bind(3);
  statement.bind(4, fast.goalSeconds);
  statement.bind(5, note);
}

void bind(SQLite::Statement& statement, const BodyWeightSample& sample) {
  bind(statement, 1, sample.id);
  statement.bind(2, secondsSince1970(sample.date));
  statement.bind(3, sample.weightInKg);
}

FastRecord fastRecord(SQLite::Statement& row) {
  const UUID id = identifier(row.getColumn(0));
  const Date start = dateSince1970(row.getColumn(1));
  const SQLite::Column end = row.getColumn(2);
  const std::int64_t goalSeconds = row.getColumn(3);
  return {end.isNull() ? mivo::ongoingFast(id, start, goalSeconds)
                       : finishedFast(id, start, dateSince1970(end), goalSeconds),
          row.getColumn(4)};
}

BodyWeightSample weightSample(SQLite::Statement& row) {
  return {identifier(row.getColumn(0)), dateSince1970(row.getColumn(1)), row.getColumn(2)};
}

constexpr const char* selectFasts = "SELECT id, startedAt, endedAt, goalSeconds, note FROM fasts ";
constexpr const char* selectWeights = "SELECT id, weighedAt, weightInKg FROM weights ";
constexpr const char* deleteFast =
    "DELETE FROM fasts WHERE id = ? AND startedAt = ? AND endedAt IS ? AND goalSeconds = ? AND note = ?";
constexpr const char* deleteWeight = "DELETE FROM weights WHERE id = ? AND weighedAt = ? AND weightInKg = ?";
constexpr const char* insertFast =
    "INSERT INTO fasts (id, startedAt, endedAt, goalSeconds, note) VALUES (?, ?, ?, ?, ?)";
constexpr const char* insertWeight = "INSERT INTO weights (id, weighedAt, weightInKg) VALUES (?, ?, ?)";

// The last change.
constexpr const char* selectLastFasts =
    "SELECT id, startedAt, endedAt, goalSeconds, note FROM lastChangeFasts WHERE isAdded = ? ORDER BY rowid";
constexpr const char* selectLastWeights =
    "SELECT id, weighedAt, weightInKg FROM lastChangeWeights WHERE isAdded = ? ORDER BY rowid";
constexpr const char* insertRemovedFast =
    "INSERT INTO lastChangeFasts (id, startedAt, endedAt, goalSeconds, note, isAdded) VALUES (?, ?, ?, ?, ?, 0)";
constexpr const char* insertAddedFast =
    "INSERT INTO lastChangeFasts (id, startedAt, endedAt, goalSeconds, note, isAdded) VALUES (?, ?, ?, ?, ?, 1)";
constexpr const char* insertRemovedWeight =
    "INSERT INTO lastChangeWeights (id, weighedAt, weightInKg, isAdded) VALUES (?, ?, ?, 0)";
constexpr const char* insertAddedWeight =
    "INSERT INTO lastChangeWeights (id, weighedAt, weightInKg, isAdded) VALUES (?, ?, ?, 1)";

DatabaseError conflict(const fs::path& file, const char* sentence) { return {Kind::conflict, file, sentence}; }

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

template <class Record>
void removeAll(SQLite::Database& database, const fs::path& file, const char* sql, const std::vector<Record>& records) {
  if (records.empty()) return;
  SQLite::Statement statement{database, sql};
  for (const Record& record : records) {
    bind(statement, record);
    if (statement.exec() != 1) throw conflict(file, "a record was changed meanwhile; nothing was changed");
    statement.reset();
  }
}

template <class Record>
void addAll(SQLite::Database& database, const char* sql, const std::vector<Record>& records) {
  if (records.empty()) return;
  SQLite::Statement statement{database, sql};
  for (const Record& record : records) {
    bind(statement, record);
    statement.exec();
    statement.reset();
  }
}

History readAll(SQLite::Database& database) {
  History history;
  SQLite::Statement fasts{database, std::string{selectFasts} + "ORDER BY startedAt, place"};
  while (fasts.executeStep()) history.fasts.push_back(fastRecord(fasts));
  SQLite::Statement weights{database, std::string{selectWeights} + "ORDER BY weighedAt, place"};
  while (weights.executeStep()) history.weights.push_back(weightSample(weights));
  return history;
}

template <class Record>
std::vector<Record> lastOnes(SQLite::Database& database, const char* sql, bool isAdded,
                             Record (*record)(SQLite::Statement&)) {
  SQLite::Statement rows{database, sql};
  rows.bind(1, isAdded ? 1 : 0);
  std::vector<Record> records;
  while (rows.executeStep()) records.push_back(record(rows));
  return records;
}

HistoryChange lastChange(SQLite::Database& database) {
  return {.removedFasts = lastOnes(database, selectLastFasts, false, fastRecord),
          .addedFasts = lastOnes(database, selectLastFasts, true, fastRecord),
          .removedWeights = lastOnes(database, selectLastWeights, false, weightSample),
          .addedWeights = lastOnes(database, selectLastWeights, true, weightSample)};
}

void keepAsLast(SQLite::Database& database, const HistoryChange& change) {
  database.exec("DELETE FROM lastChangeFasts; DELETE FROM lastChangeWeights");
  addAll(database, insertRemovedFast, change.removedFasts);
  addAll(database, insertAddedFast, change.addedFasts);
  addAll(database, insertRemovedWeight, change.removedWeights);
  addAll(database, insertAddedWeight, change.addedWeights);
}

void write(SQLite::Database& database, const fs::path& file, const HistoryChange& change) {
  removeAll(database, file, deleteFast, change.removedFasts);
  removeAll(database, file, deleteWeight, change.removedWeights);
  addAll(database, insertFast, change.addedFasts);
  addAll(database, insertWeight, change.addedWeights);
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
    return readAll(connection->database);
  });
}

void Database::apply(const HistoryChange& change) {
  if (change.isEmpty()) return;
  const auto transaction = connection->begin();
  translating(file(), [&] {
    write(connection->database, file(), change);
    transaction->commit();
  });
}

HistoryChange Database::undo() {
  const auto transaction = connection->begin();
  return translating(file(), [&] {
    HistoryChange change = inverse(lastChange(connection->database));
    if (change.isEmpty()) return change;
    write(connection->database, file(), change);
    transaction->commit();
    return change;
  });
}

HistoryChange Database::replace(const History& records, const std::function<void(const History& present)>& before) {
  const auto transaction = connection->begin();
  return translating(file(), [&]() -> HistoryChange {
    History present = readAll(connection->database);
    before(present);
    if (present.fasts == records.fasts && present.weights == records.weights) return {};
    HistoryChange change{.removedFasts = std::move(present.fasts),
                         .addedFasts = records.fasts,
                         .removedWeights = std::move(present.weights),
                         .addedWeights = records.weights};
    write(connection->database, file(), change);
    transaction->commit();
    return change;
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
