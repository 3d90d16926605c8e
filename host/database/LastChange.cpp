// SPDX-License-Identifier: MIT
#include "host/database/LastChange.h"

#include <SQLiteCpp/Statement.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "host/database/RecordTables.h"

namespace mivo::host {
namespace {

using std::string_literals::operator""s;

constexpr FixedColumn removed{"isAdded", "0"};

template <class Record>
std::vector<Record> lastOnes(SQLite::Database& database, const std::string& columnsAndTable, bool isAdded,
                             Record (*record)(SQLite::Statement&)) {
  SQLite::Statement rows{database, "SELECT " + columnsAndTable + " WHERE isAdded = ? ORDER BY rowid"};
  rows.bind(1, isAdded ? 1 : 0);
  std::vector<Record> records;
  while (rows.executeStep()) records.push_back(record(rows));
  return records;
}

/// Copies the newest rows inside the database, which costs a third of writing the records again. What one transaction
/// adds has places that follow each other, above all others.
void keepNewest(SQLite::Database& database, const char* table, const char* lastTable, const std::string& columns,
                std::size_t count) {
  if (count == 0) return;
  SQLite::Statement copy{database, "INSERT INTO "s + lastTable + " (" + columns + ", isAdded) SELECT " + columns +
                                       ", 1 FROM " + table + " WHERE place > (SELECT max(place) FROM " + table +
                                       ") - ? ORDER BY place"};
  copy.bind(1, static_cast<std::int64_t>(count));
  copy.exec();
}

}  // namespace

HistoryChange lastChange(SQLite::Database& database) {
  const std::string fasts = fastColumns + " FROM lastChangeFasts"s,
                    weights = weightColumns + " FROM lastChangeWeights"s;
  return {.removedFasts = lastOnes(database, fasts, false, fastRecord),
          .addedFasts = lastOnes(database, fasts, true, fastRecord),
          .removedWeights = lastOnes(database, weights, false, weightSample),
          .addedWeights = lastOnes(database, weights, true, weightSample)};
}

void keepAsLast(SQLite::Database& database, const HistoryChange& change) {
  database.exec("DELETE FROM lastChangeFasts; DELETE FROM lastChangeWeights");
  insertAll(database, "lastChangeFasts", change.removedFasts, removed);
  keepNewest(database, "fasts", "lastChangeFasts", fastColumns, change.addedFasts.size());
  insertAll(database, "lastChangeWeights", change.removedWeights, removed);
  keepNewest(database, "weights", "lastChangeWeights", weightColumns, change.addedWeights.size());
}

}  // namespace mivo::host
