// SPDX-License-Identifier: MIT
#include "host/database/RecordTables.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <span>

#include "host/database/Database.h"

namespace mivo::host {
namespace {

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

/// Binds the columns from `place` on, and returns the place after them.
int bind(SQLite::Statement& statement, int place, const FastRecord& record) {
  const auto& [fast, note] = record;
  bind(statement, place++, fast.id);
  statement.bind(place++, secondsSince1970(fast.start));
  if (fast.finished)
    statement.bind(place++, secondsSince1970(fast.finished->end));
  else
    statement.bind(place++);
  statement.bind(place++, fast.goalSeconds);
  statement.bindNoCopy(place++, note);
  return place;
}

int bind(SQLite::Statement& statement, int place, const BodyWeightSample& sample) {
  bind(statement, place++, sample.id);
  statement.bind(place++, secondsSince1970(sample.date));
  statement.bind(place++, sample.weightInKg);
  return place;
}

struct Columns {
  std::string names, places;
};

std::string insertion(std::string_view table, Columns columns, const FixedColumn& fixed, std::size_t rows) {
  if (!fixed.name.empty()) {
    columns.names.append(", ").append(fixed.name);
    columns.places.append(", ").append(fixed.value);
  }
  std::string sql = "INSERT INTO " + std::string{table} + " (" + columns.names + ") VALUES ";
  for (std::size_t row = 0; row < rows; ++row) sql += (row > 0 ? ", (" : "(") + columns.places + ')';
  return sql;
}

// To begin and end a statement costs as much as five rows, so that one takes many where there are many.
template <class Record>
void insert(SQLite::Database& database, std::string_view table, const Columns& columns, const FixedColumn& fixed,
            std::span<const Record> records) {
  for (const std::size_t atOnce : {std::size_t{64}, std::size_t{1}}) {
    if (records.size() < atOnce) continue;
    SQLite::Statement statement{database, insertion(table, columns, fixed, atOnce)};
    for (; records.size() >= atOnce; records = records.subspan(atOnce)) {
      int place = 1;
      for (const Record& record : records.first(atOnce)) place = bind(statement, place, record);
      statement.exec();
      statement.reset();
    }
  }
}

template <class Record>
void remove(SQLite::Database& database, const char* sql, const std::vector<Record>& records) {
  if (records.empty()) return;
  SQLite::Statement statement{database, sql};
  for (const Record& record : records) {
    bind(statement, 1, record);
    if (statement.exec() != 1)
      throw DatabaseError{DatabaseError::Kind::conflict, database.getFilename(),
                          "a record was changed meanwhile; nothing was changed"};
    statement.reset();
  }
}

std::string selection(const char* columns, const char* tableAndOrder) {
  return std::string{"SELECT "} + columns + " FROM " + tableAndOrder;
}

}  // namespace

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

std::vector<BodyWeightSample> readWeights(SQLite::Database& database) {
  std::vector<BodyWeightSample> all;
  SQLite::Statement weights{database, selection(weightColumns, "weights ORDER BY weighedAt, place")};
  while (weights.executeStep()) all.push_back(weightSample(weights));
  return all;
}

History readHistory(SQLite::Database& database) {
  History history;
  SQLite::Statement fasts{database, selection(fastColumns, "fasts ORDER BY startedAt, place")};
  while (fasts.executeStep()) history.fasts.push_back(fastRecord(fasts));
  history.weights = readWeights(database);
  return history;
}

void insertAll(SQLite::Database& database, std::string_view table, const std::vector<FastRecord>& fasts,
               const FixedColumn& fixed) {
  insert(database, table, {fastColumns, "?, ?, ?, ?, ?"}, fixed, std::span{fasts});
}

void insertAll(SQLite::Database& database, std::string_view table, const std::vector<BodyWeightSample>& weights,
               const FixedColumn& fixed) {
  insert(database, table, {weightColumns, "?, ?, ?"}, fixed, std::span{weights});
}

void removeAll(SQLite::Database& database, const std::vector<FastRecord>& fasts) {
  remove(database, "DELETE FROM fasts WHERE id = ? AND startedAt = ? AND endedAt IS ? AND goalSeconds = ? AND note = ?",
         fasts);
}

void removeAll(SQLite::Database& database, const std::vector<BodyWeightSample>& weights) {
  remove(database, "DELETE FROM weights WHERE id = ? AND weighedAt = ? AND weightInKg = ?", weights);
}

}  // namespace mivo::host
