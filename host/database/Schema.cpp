// SPDX-License-Identifier: MIT
#include "host/database/Schema.h"

#include <SQLiteCpp/Transaction.h>

#include <array>
#include <string>

#include "host/database/Database.h"

namespace mivo::host {
namespace {

// Never edit a step that has shipped: append one.
//
// Dates are seconds since 1970 as doubles, so that they come back to the last bit. `place` keeps the order in which
// records were added, which decides between equal dates.
constexpr std::array steps{
    R"(CREATE TABLE fasts (
         place INTEGER PRIMARY KEY AUTOINCREMENT,
         id BLOB NOT NULL UNIQUE CHECK (length(id) = 16),
         startedAt REAL NOT NULL,
         endedAt REAL,
         goalSeconds INTEGER NOT NULL CHECK (goalSeconds >= 0),
         note TEXT NOT NULL
       ) STRICT;
       CREATE INDEX fastsByStart ON fasts (startedAt, place);
       CREATE UNIQUE INDEX oneRunningFast ON fasts (endedAt IS NULL) WHERE endedAt IS NULL;
       CREATE TABLE weights (
         place INTEGER PRIMARY KEY AUTOINCREMENT,
         id BLOB NOT NULL UNIQUE CHECK (length(id) = 16),
         weighedAt REAL NOT NULL,
         weightInKg REAL NOT NULL CHECK (weightInKg > 0)
       ) STRICT;
       CREATE INDEX weightsByDate ON weights (weighedAt, place);)",
    // The last change, in the order of its records: what it took away, and what it added.
    R"(CREATE TABLE lastChangeFasts (
         isAdded INTEGER NOT NULL CHECK (isAdded IN (0, 1)),
         id BLOB NOT NULL CHECK (length(id) = 16),
         startedAt REAL NOT NULL,
         endedAt REAL,
         goalSeconds INTEGER NOT NULL,
         note TEXT NOT NULL
       ) STRICT;
       CREATE TABLE lastChangeWeights (
         isAdded INTEGER NOT NULL CHECK (isAdded IN (0, 1)),
         id BLOB NOT NULL CHECK (length(id) = 16),
         weighedAt REAL NOT NULL,
         weightInKg REAL NOT NULL
       ) STRICT;)",
    // Every weighing that was read from a linked file, whatever became of it since, and how that file was last.
    R"(CREATE TABLE syncedWeights (
         weighedAt REAL NOT NULL,
         weightInKg REAL NOT NULL,
         PRIMARY KEY (weighedAt, weightInKg)
       ) STRICT, WITHOUT ROWID;
       CREATE TABLE syncedFile (
         place INTEGER PRIMARY KEY CHECK (place = 1),
         inode INTEGER NOT NULL,
         sizeInBytes INTEGER NOT NULL,
         modifiedAt INTEGER NOT NULL
       ) STRICT;)",
};
constexpr int oldestReadable = 1, newest = static_cast<int>(steps.size());

int layout(SQLite::Database& database) { return database.execAndGet("PRAGMA user_version").getInt(); }

}  // namespace

void migrate(SQLite::Database& database) {
  while (layout(database) < newest) {
    SQLite::Transaction transaction{database, SQLite::TransactionBehavior::IMMEDIATE};
    const int present = layout(database);  // again: another program may have been quicker
    if (present >= newest) break;
    database.exec(steps[static_cast<std::size_t>(present)]);
    database.exec("PRAGMA user_version = " + std::to_string(present + 1));
    transaction.commit();
  }
  demandReadable(database);
}

void demandReadable(SQLite::Database& database) {
  using Kind = DatabaseError::Kind;
  const int present = layout(database);
  if (present > newest)
    throw DatabaseError{Kind::tooNew, database.getFilename(), "written by a later version of Mivo; update to open it"};
  if (present < oldestReadable)
    throw DatabaseError{Kind::unavailable, database.getFilename(), "no history has been begun in it"};
}

}  // namespace mivo::host
