// SPDX-License-Identifier: MIT
#include "host/database/ReadDatabaseBytes.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <ostream>

#include "host/disk/DatabaseFile.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

std::string contents(const std::string& path) {
  std::ifstream file{path, std::ios::binary};
  return {std::istreambuf_iterator<char>{file}, {}};
}

const HistoryChange records{
    .removedFasts = {},
    .addedFasts = {{finishedFast({1, 1}, dateSince1970(1772222400.125), dateSince1970(1772280000), 57600), "tea"},
                   {ongoingFast({1, 2}, dateSince1970(1772308800), 59400), ""}},
    .removedWeights = {},
    .addedWeights = {{{2, 3}, dateSince1970(1772222400), 81.4}}};

/// What is read of a database after some statements; the fault, or "" and the rows that were refused.
struct Reading {
  std::string fault, refused;
  History history;
};

Reading readingAfter(const char* statements) {
  const tests::TemporaryFolder folder;
  const std::string path = folder.file("d");
  openDatabase(path).apply(records);
  {
    SQLite::Database database{path, SQLite::OPEN_READWRITE};
    database.exec(statements);
  }
  Reading reading;
  auto history =
      readDatabaseBytes(contents(path), "d", [&](const BadRecord& bad) { reading.refused += describe(bad) + '\n'; });
  if (history)
    reading.history = std::move(*history);
  else
    reading.fault = describe(history.error());
  return reading;
}

TEST(DatabaseBytes, giveTheRecordsToTheLastBit) {
  const Reading reading = readingAfter("");
  EXPECT_EQ(reading.fault, "");
  EXPECT_EQ(reading.refused, "");
  EXPECT_EQ(reading.history.fasts, records.addedFasts);
  EXPECT_EQ(reading.history.weights, records.addedWeights);
}

struct Row {
  const char* name;
  const char* statements;
  std::string fault, refused = {};
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
class HostileDatabase : public testing::TestWithParam<Row> {};

TEST_P(HostileDatabase, isRefusedAsAWholeOrByTheRow) {
  const Reading reading = readingAfter(GetParam().statements);
  EXPECT_EQ(reading.fault, GetParam().fault);
  EXPECT_EQ(reading.refused, GetParam().refused);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HostileDatabase,
    testing::Values(
        Row{"trigger", "CREATE TRIGGER more AFTER INSERT ON fasts BEGIN DELETE FROM weights; END",
            "d: expected a database of the app, which has no trigger such as \"more\""},
        Row{"viewForATable", "DROP TABLE weights; CREATE VIEW weights AS SELECT * FROM fasts",
            "d: expected a database of the app, which has no view such as \"weights\""},
        Row{"virtualTable", "CREATE VIRTUAL TABLE t USING rtree(a, b, c)",
            "d: expected a database of the app, which has no table such as \"t\""},
        Row{"later", "PRAGMA user_version = 99", "d: written by a later version of Mivo; update to open it"},
        Row{"notBegun", "PRAGMA user_version = 0", "d: no history has been begun in it"},
        Row{"noTable", "DROP TABLE weights", "d: expected a sound database: no such table: weights"},
        Row{"yearTenThousand", "UPDATE fasts SET startedAt = 1e300 WHERE note = 'tea'", "",
            "d: fasts[1].startedAt: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"1.0e+300\"\n"},
        Row{"endlessEnd", "UPDATE fasts SET endedAt = 9e999 WHERE note = 'tea'", "",
            "d: fasts[1].endedAt: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"Inf\"\n"},
        Row{"hugeGoal", "UPDATE fasts SET goalSeconds = 9223372036854775807 WHERE note = 'tea'", "",
            "d: fasts[1].goalSeconds: expected whole seconds, 0 or more, found \"9223372036854775807\"\n"},
        Row{"binaryNote", "UPDATE fasts SET note = CAST(x'FF' AS TEXT) WHERE note = 'tea'", "",
            "d: fasts[1].note: expected UTF-8 text of at most 65536 bytes, found \"\\xFF\"\n"},
        Row{"noteWithNull", "UPDATE fasts SET note = 'a' || char(0) || 'b'", ""},
        Row{"shortIdentifier",
            "CREATE TABLE unchecked AS SELECT * FROM weights; UPDATE unchecked SET id = x'01'; DROP TABLE weights; "
            "ALTER TABLE unchecked RENAME TO weights",
            "", "d: weights[1].id: expected 16 bytes, found \"\\x01\"\n"},
        Row{"heavy", "UPDATE weights SET weightInKg = 1e6", "",
            "d: weights[1].weightInKg: expected kilograms above 0 and at most 1000, found \"1000000.0\"\n"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(DatabaseBytes, survivesWhatIsCutOrChanged) {
  const tests::TemporaryFolder folder;
  openDatabase(folder.file("d")).apply(records);
  const std::string whole = contents(folder.file("d"));
  const auto read = [](std::string bytes) { return readDatabaseBytes(std::move(bytes), "d", [](const BadRecord&) {}); };
  for (std::size_t length = 16; length < whole.size(); length += 509) {
    const auto history = read(whole.substr(0, length));
    if (history) {
      EXPECT_EQ(history->fasts, records.addedFasts) << length;  // only what holds no record may be missing
    }
  }
  for (std::size_t at = 100; at < whole.size(); at += 97) {
    std::string changed = whole;
    changed[at] = static_cast<char>(changed[at] ^ 0x5A);
    read(std::move(changed));  // under the sanitizers
  }
}

}  // namespace
}  // namespace mivo::host
