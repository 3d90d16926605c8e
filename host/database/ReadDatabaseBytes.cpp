// SPDX-License-Identifier: MIT
#include "host/database/ReadDatabaseBytes.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <cstddef>
#include <optional>
#include <utility>

#include "host/database/Database.h"
#include "host/database/Schema.h"
#include "host/history/FieldRules.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::host {
namespace {

constexpr std::string_view signature{"SQLite format 3\0", 16};

/// A file's own database, held in `bytes`, which must outlive it.
SQLite::Database opened(std::string& bytes) {
  // Whether it was last written beside a log does not matter where there is no log, and would keep it from being read.
  constexpr std::size_t writeVersion = 18, readVersion = 19;
  if (bytes.size() > readVersion) bytes[writeVersion] = bytes[readVersion] = 1;
  SQLite::Database database{":memory:", SQLite::OPEN_READWRITE};
  sqlite3* const handle = database.getHandle();
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  for (const int option : {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW})
    sqlite3_db_config(handle, option, 0, nullptr);
  const auto size = static_cast<sqlite3_int64>(bytes.size());
  const int status = sqlite3_deserialize(handle, "main", reinterpret_cast<unsigned char*>(bytes.data()), size, size,
                                         SQLITE_DESERIALIZE_READONLY);
  if (status != SQLITE_OK) throw SQLite::Exception{handle, status};
  return database;
}

/// What stands against a database as a whole.
std::optional<std::string> refusal(SQLite::Database& database) {
  SQLite::Statement strangers{database,
                              "SELECT type, name FROM sqlite_schema WHERE type NOT IN ('table', 'index') "
                              "OR sql LIKE 'CREATE VIRTUAL%' LIMIT 1"};
  if (strangers.executeStep())
    return "expected a database of the app, which has no " + quotable(strangers.getColumn(0).getString()) +
           " such as \"" + quotable(strangers.getColumn(1).getString()) + '"';
  const std::string verdict = database.execAndGet("PRAGMA quick_check(1)");
  if (verdict != "ok") return "expected a sound database: " + quotable(verdict);
  try {
    demandReadable(database);
  } catch (const DatabaseError& error) {
    return error.reason;
  }
  return std::nullopt;
}

std::optional<UUID> identifier(const SQLite::Column& column) {
  if (!column.isBlob() || column.getBytes() != 16) return std::nullopt;
  UUID id;
  const auto* const bytes = static_cast<const unsigned char*>(column.getBlob());
  for (std::size_t place = 0; place < 16; ++place) {
    std::uint64_t& half = place < 8 ? id.high : id.low;
    half = half << 8 | bytes[place];
  }
  return id;
}

std::optional<double> number(const SQLite::Column& column) {
  if (!column.isFloat() && !column.isInteger()) return std::nullopt;
  return column.getDouble();
}

std::optional<Date> date(const SQLite::Column& column) {
  const auto seconds = number(column);
  if (!seconds || !isRepresentable(dateSince1970(*seconds))) return std::nullopt;
  return dateSince1970(*seconds);
}

/// Makes records of rows, and refusals of what no file could bring.
class Rows {
 public:
  Rows(std::string fileName, const std::function<void(BadRecord)>& onRefusal)
      : file{std::move(fileName)}, refuse{onRefusal} {}

  void fast(SQLite::Statement& row) {
    const auto id = identifier(row.getColumn(0));
    if (!id) return wrong("fasts", row, 0, "expected 16 bytes");
    const auto start = date(row.getColumn(1));
    if (!start) return wrong("fasts", row, 1, expectedDate);
    const bool isRunning = row.getColumn(2).isNull();
    const auto end = isRunning ? start : date(row.getColumn(2));
    if (!end) return wrong("fasts", row, 2, expectedDate);
    const SQLite::Column goal = row.getColumn(3);
    const bool isGoal = goal.isInteger() && goal.getInt64() >= 0 &&
                        static_cast<double>(goal.getInt64()) <= largestGoalHours * secondsPerHour;
    if (!isGoal) return wrong("fasts", row, 3, "expected whole seconds, 0 or more");
    std::string note = row.getColumn(4).getString();
    if (!row.getColumn(4).isText() || !isNote(note)) return wrong("fasts", row, 4, expectedNote);
    history.fasts.push_back(
        {isRunning ? ongoingFast(*id, *start, goal.getInt64()) : finishedFast(*id, *start, *end, goal.getInt64()),
         std::move(note)});
  }

  void weight(SQLite::Statement& row) {
    const auto id = identifier(row.getColumn(0));
    if (!id) return wrong("weights", row, 0, "expected 16 bytes");
    const auto when = date(row.getColumn(1));
    if (!when) return wrong("weights", row, 1, expectedDate);
    const auto weightInKg = number(row.getColumn(2));
    if (!weightInKg || !isBodyWeight(*weightInKg)) return wrong("weights", row, 2, expectedWeight);
    history.weights.push_back({*id, *when, *weightInKg});
  }

  History history;

 private:
  /// The last column is the row's number.
  void wrong(const char* table, SQLite::Statement& row, int column, std::string_view expected) const {
    const std::string place = row.getColumn(row.getColumnCount() - 1).getString();
    refuse({.file = file,
            .column = std::string{table} + '[' + place + "]." + row.getColumnName(column),
            .value = quotable(row.getColumn(column).getString()),
            .reason = std::string{expected}});
  }

  std::string file;
  const std::function<void(BadRecord)>& refuse;
};

History readAll(SQLite::Database& database, const std::string& file, const std::function<void(BadRecord)>& refuse) {
  Rows rows{file, refuse};
  SQLite::Statement fasts{
      database, "SELECT id, startedAt, endedAt, goalSeconds, note, place FROM fasts ORDER BY startedAt, place"};
  while (fasts.executeStep()) rows.fast(fasts);
  SQLite::Statement weights{database, "SELECT id, weighedAt, weightInKg, place FROM weights ORDER BY weighedAt, place"};
  while (weights.executeStep()) rows.weight(weights);
  return std::move(rows.history);
}

}  // namespace

bool isDatabase(std::string_view beginning) { return beginning.starts_with(signature); }

tl::expected<History, BadRecord> readDatabaseBytes(std::string bytes, const std::string& file,
                                                   const std::function<void(BadRecord)>& refuse) {
  try {
    SQLite::Database database = opened(bytes);
    if (auto reason = refusal(database)) return tl::unexpected{BadRecord{.file = file, .reason = std::move(*reason)}};
    return readAll(database, file, refuse);
  } catch (const SQLite::Exception& error) {
    return tl::unexpected{
        BadRecord{.file = file, .reason = std::string{"expected a sound database: "} + quotable(error.what())}};
  }
}

}  // namespace mivo::host
