// SPDX-License-Identifier: MIT
#include "tally/store/SqliteCounters.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <utility>

namespace mivo::tally {
namespace {

constexpr int schemaVersion = 1;

// Gives what SQLite says the file's name, which it leaves out.
template <class Body>
auto naming(const std::filesystem::path& file, Body body) {
  try {
    return body();
  } catch (const std::exception& error) {
    throw std::runtime_error(file.string() + ": " + error.what());
  }
}

void prepare(SQLite::Database& database) {
  database.exec("PRAGMA journal_mode = WAL");
  database.exec("PRAGMA synchronous = FULL");
  const int version = database.execAndGet("PRAGMA user_version").getInt();
  if (version > schemaVersion) throw std::runtime_error("written by a newer mivo-tally");
  if (version == schemaVersion) return;
  SQLite::Transaction transaction{database};
  database.exec("CREATE TABLE counter (name TEXT PRIMARY KEY, value INTEGER NOT NULL) STRICT, WITHOUT ROWID");
  database.exec("PRAGMA user_version = 1");
  transaction.commit();
}

SQLite::Database openDatabase(const std::filesystem::path& file, SqliteCounters::Access access,
                              std::chrono::milliseconds busyTime) {
  const bool writes = access == SqliteCounters::Access::readWrite;
  SQLite::Database database{file.string(),
                            writes ? SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE : SQLite::OPEN_READONLY,
                            static_cast<int>(busyTime.count())};
  if (writes) prepare(database);
  return database;
}

bool isRead(const Operation& operation) { return operation.delta == 0; }

bool isDamage(const SQLite::Exception& error) { return (error.getErrorCode() & 0xff) == SQLITE_CORRUPT; }

}  // namespace

struct SqliteCounters::Database {
  Database(const std::filesystem::path& file, Access access, std::chrono::milliseconds busyTime,
           std::int64_t counterLimit)
      : connection(openDatabase(file, access, busyTime)),
        select(connection, "SELECT value FROM counter WHERE name = ?"),
        upsert(connection, "INSERT INTO counter VALUES (?1, ?2) ON CONFLICT (name) DO UPDATE SET value = ?2"),
        begin(connection, "BEGIN IMMEDIATE"),
        commit(connection, "COMMIT"),
        version(connection, "PRAGMA data_version"),
        mostCounters(counterLimit) {}

  std::int64_t dataVersion() {
    version.executeStep();
    const std::int64_t value = version.getColumn(0).getInt64();
    version.reset();
    return value;
  }

  // Nothing for a counter that nobody voted for.
  std::optional<std::int64_t> find(const std::string& counter) {
    try {
      select.bindNoCopy(1, counter);
      std::optional<std::int64_t> value;
      if (select.executeStep()) value = select.getColumn(0).getInt64();
      select.reset();
      return value;
    } catch (...) {
      select.tryReset();
      throw;
    }
  }

  bool hasRoomFor(std::int64_t further) {
    if (!counters) counters = connection.execAndGet("SELECT count(*) FROM counter").getInt64();
    return *counters + further <= mostCounters;
  }

  void set(const std::string& counter, std::int64_t value) {
    upsert.bindNoCopy(1, counter);
    upsert.bind(2, value);
    run(upsert);
  }

  static void run(SQLite::Statement& statement) {
    statement.exec();
    statement.reset();
  }

  template <class Body>
  auto inTransaction(Body body) {
    try {
      run(begin);
      auto result = body();
      run(commit);
      return result;
    } catch (...) {
      recover();
      throw;
    }
  }

  // Some failures have already rolled back; a statement that failed keeps its lock until it is reset.
  void recover() {
    for (auto* statement : {&select, &upsert, &begin, &commit, &version}) statement->tryReset();
    if (sqlite3_get_autocommit(connection.getHandle()) == 0) connection.tryExec("ROLLBACK");
  }

  SQLite::Database connection;
  SQLite::Statement select, upsert, begin, commit, version;
  std::int64_t mostCounters;
  std::string damage;
  std::optional<std::int64_t> counters;  // once they were counted
  std::int64_t lastVersion = dataVersion();
};

// However often a batch votes for a counter, its row is read and written once.
class SqliteCounters::Batch {
 public:
  explicit Batch(Database& opened) : database(opened) {}

  Results results(const Operations& operations) {
    Results results(operations.size());
    std::ranges::transform(operations, results.begin(), [this](const auto& operation) { return result(operation); });
    return results;
  }

  void write() {
    for (const auto& [counter, count] : counts)
      if (count.isChanged) database.set(*count.name, *count.value);
  }

  std::int64_t newCounters() const { return countersAdded; }

 private:
  struct Count {
    const std::string* name;
    std::optional<std::int64_t> value = {};  // nothing where it cannot be read
    bool isNew = false;
    bool isChanged = false;
  };

  Count read(const std::string& counter) {
    try {
      const auto value = database.find(counter);
      return {.name = &counter, .value = value.value_or(0), .isNew = !value};
    } catch (const SQLite::Exception& error) {
      database.damage = counter + ": " + error.what();
      return {.name = &counter};
    }
  }

  Result result(const Operation& operation) {
    auto found = counts.find(operation.counter);
    if (found == counts.end()) found = counts.emplace(operation.counter, read(operation.counter)).first;
    auto& count = found->second;
    if (!count.value) return {};
    const auto after = added(*count.value, operation.delta);
    if (!after) return {Outcome::overflow, *count.value};
    if (count.isNew && !isRead(operation) && !count.isChanged) {
      if (!database.hasRoomFor(countersAdded + 1)) return {Outcome::full, 0};
      ++countersAdded;
    }
    count.isChanged = count.isChanged || !isRead(operation);
    count.value = after;
    return {Outcome::counted, *after};
  }

  Database& database;
  std::map<std::string_view, Count> counts;
  std::int64_t countersAdded = 0;
};

SqliteCounters::SqliteCounters(const std::filesystem::path& path, Access access, std::chrono::milliseconds busyTime,
                               std::int64_t mostCounters)
    : file(path) {
  database = naming(file, [&] { return std::make_unique<Database>(file, access, busyTime, mostCounters); });
}

SqliteCounters::~SqliteCounters() = default;

Results SqliteCounters::apply(const Operations& operations) {
  return naming(file, [&] {
    if (std::ranges::all_of(operations, isRead)) return Batch{*database}.results(operations);
    try {
      return applyTogether(operations);
    } catch (const SQLite::Exception& error) {
      if (!isDamage(error)) throw;
      return applyOneByOne(operations);
    }
  });
}

Results SqliteCounters::applyTogether(const Operations& operations) {
  Batch batch{*database};
  auto results = database->inTransaction([&] {
    auto found = batch.results(operations);
    batch.write();
    return found;
  });
  if (database->counters) *database->counters += batch.newCounters();
  return results;
}

// A page that can be read and not be written spoils its batch: the others of it are kept without it.
Results SqliteCounters::applyOneByOne(const Operations& operations) {
  Results results;
  for (const auto& operation : operations) {
    try {
      results.push_back(applyTogether({operation}).front());
    } catch (const SQLite::Exception& error) {
      if (!isDamage(error)) throw;
      database->damage = operation.counter + ": " + error.what();
      results.emplace_back();
    }
  }
  return results;
}

std::string SqliteCounters::takeDamage() { return std::exchange(database->damage, {}); }

std::string SqliteCounters::damage() {
  try {
    const std::string found = database->connection.execAndGet("PRAGMA quick_check(1)").getText();
    return found == "ok" ? std::string{} : found;
  } catch (const SQLite::Exception& error) {
    return error.what();
  }
}

void SqliteCounters::probe() {
  naming(file, [&] {
    database->inTransaction(
        [&] { return database->connection.exec("PRAGMA user_version = " + std::to_string(schemaVersion)); });
  });
}

bool SqliteCounters::wasChangedByOthers() {
  return naming(file, [&] {
    const auto version = database->dataVersion();
    const auto last = std::exchange(database->lastVersion, version);
    if (last != version) database->counters.reset();
    return last != version;
  });
}

std::int64_t SqliteCounters::count(std::string_view counter) {
  return naming(file, [&] { return database->find(std::string{counter}).value_or(0); });
}

void SqliteCounters::forEach(const std::function<void(std::string_view, std::int64_t)>& visit) {
  naming(file, [&] {
    SQLite::Statement all{database->connection, "SELECT name, value FROM counter ORDER BY name"};
    while (all.executeStep()) visit(all.getColumn(0).getText(), all.getColumn(1).getInt64());
  });
}

std::optional<std::int64_t> SqliteCounters::replace(const std::string& counter, std::int64_t count) {
  return naming(file, [&] {
    return database->inTransaction([&] {
      const auto former = database->find(counter);
      if (!former) database->counters.reset();
      database->set(counter, count);
      return former;
    });
  });
}

void SqliteCounters::set(const std::vector<Change>& changes) {
  naming(file, [&] {
    database->inTransaction([&] {
      database->counters.reset();
      for (const auto& change : changes) database->set(change.counter, change.to);
      return changes.size();
    });
  });
}

}  // namespace mivo::tally
