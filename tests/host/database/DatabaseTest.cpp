// SPDX-License-Identifier: MIT
#include "host/disk/DatabaseFile.h"

#include <SQLiteCpp/Database.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/Threads.h"

namespace mivo::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

Date at(double hours) { return dateSince1970(1.77e9 + hours * secondsPerHour); }

FastRecord fast(std::uint64_t id, double startHours, double endHours, std::string note = "") {
  return {finishedFast({7, id}, at(startHours), at(endHours), 57600), std::move(note)};
}

FastRecord running(std::uint64_t id, double startHours) { return {ongoingFast({7, id}, at(startHours), 57600), ""}; }

using Kind = DatabaseError::Kind;

HistoryChange adding(std::vector<FastRecord> fasts) {
  HistoryChange change;
  change.addedFasts = std::move(fasts);
  return change;
}

class DatabaseTest : public testing::Test {
 protected:
  Database open() const { return openDatabase(file); }

  DatabaseError failure(Database& database, const HistoryChange& change) const {
    try {
      database.apply(change);
    } catch (const DatabaseError& error) {
      return error;
    }
    ADD_FAILURE() << "the change was done";
    return {DatabaseError::Kind::unavailable, file, ""};
  }

  tests::TemporaryFolder folder;
  std::filesystem::path file = folder.path / "some" / "folder" / "mivo.sqlite";
};

TEST_F(DatabaseTest, givesBackToTheLastBitWhatWasWritten) {
  const FastRecord third{finishedFast({1, 2}, dateSince1970(0.1 + 0.2), dateSince1970(1e9 + 1.0 / 3), 1),
                         "a \"note\"\n☕"};
  const std::vector<BodyWeightSample> weights{{{3, 4}, at(1), 81.4}, {{3, 5}, at(1), 0.1 + 0.2}};
  HistoryChange change = adding({running(9, 48), fast(1, 0, 16), third});
  change.addedWeights = weights;
  open().apply(change);
  const History history = open().history();
  EXPECT_THAT(history.fasts, ElementsAre(third, fast(1, 0, 16), running(9, 48)));
  EXPECT_EQ(history.weights, weights);
}

TEST_F(DatabaseTest, undoesAnEditAsAWhole) {
  Database database = open();
  database.apply(adding({fast(1, 0, 16), fast(2, 20, 30)}));
  const History before = database.history();
  HistoryChange merge;
  merge.removedFasts = before.fasts;
  merge.addedFasts = {fast(1, 0, 30)};
  database.apply(merge);
  EXPECT_THAT(database.history().fasts, ElementsAre(fast(1, 0, 30)));
  database.apply(inverse(merge));
  EXPECT_EQ(database.history(), before);
}

TEST_F(DatabaseTest, takesTheLastChangeBackAndDoesItAgain) {
  HistoryChange first = adding({fast(1, 0, 16), fast(2, 20, 30 + 1.0 / 3, "tea\n☕")});
  first.addedWeights = {{{3, 4}, at(1), 81.4}};
  open().apply(first);
  HistoryChange second = adding({running(3, 40)});
  second.removedFasts = {fast(2, 20, 30 + 1.0 / 3, "tea\n☕")};
  second.removedWeights = {{{3, 4}, at(1), 81.4}};
  second.addedWeights = {{{3, 4}, at(2), 81.3}, {{3, 5}, at(3), 80.9}};
  const History before = open().history();
  open().apply(second);
  const History after = open().history();

  EXPECT_EQ(open().undo(), inverse(second));
  EXPECT_EQ(open().history(), before);
  EXPECT_EQ(open().undo(), second);
  EXPECT_EQ(open().history(), after);
}

/// Records of which neither ids nor dates are in the order in which they are added.
HistoryChange addingMany(std::uint64_t count) {
  HistoryChange change;
  for (std::uint64_t index = 0; index < count; ++index) {
    const std::uint64_t shuffled = index * 77 % count;
    const auto day = 24 * static_cast<double>(shuffled);
    change.addedFasts.push_back(fast(index * 31 % count, day, day + 16, "note " + std::to_string(index)));
    change.addedWeights.push_back({{3, shuffled}, at(day), 80 + static_cast<double>(index) / 1000});
  }
  return change;
}

TEST_F(DatabaseTest, takesManyRecordsAsItTakesFew) {
  const HistoryChange many = addingMany(200);
  open().apply(adding({fast(1000, -24, -8)}));
  open().apply(many);
  EXPECT_EQ(open().undo(), inverse(many));
  EXPECT_THAT(open().history().fasts, ElementsAre(fast(1000, -24, -8)));
  EXPECT_EQ(open().undo(), many);
  EXPECT_EQ(open().undo(), inverse(many)) << "of records that were added again";
  EXPECT_EQ(open().undo(), many);
  const History present = open().history();
  HistoryChange taken = addingMany(200);
  for (FastRecord& record : taken.addedFasts) record.fast.id.high = 8;
  for (BodyWeightSample& sample : taken.addedWeights) sample.id.high = 4;
  taken.addedWeights[150].id = {3, 150};
  Database database = open();
  EXPECT_EQ(failure(database, taken).kind, Kind::conflict);
  EXPECT_EQ(database.history(), present);
  EXPECT_EQ(database.undo(), inverse(many)) << "a change that failed was taken for the last";
}

TEST_F(DatabaseTest, hasNothingToTakeBackBeforeTheFirstChange) {
  EXPECT_TRUE(open().undo().isEmpty());
  open().apply(adding({fast(1, 0, 16)}));
  open().apply({});
  EXPECT_THAT(open().undo().removedFasts, ElementsAre(fast(1, 0, 16)))
      << "a change that is none was taken for the last";
}

TEST_F(DatabaseTest, takesNothingBackThatWasTouchedSince) {
  open().apply(adding({fast(1, 0, 16), fast(2, 20, 30)}));
  Database database = open();
  EXPECT_EQ(failure(database, adding({fast(3, 40, 50), fast(1, 60, 70)})).kind, Kind::conflict);
  SQLite::Database{file.string(), SQLite::OPEN_READWRITE}.exec(
      "UPDATE fasts SET note = 'mine' WHERE startedAt > 1.77e9");
  const History before = database.history();
  try {
    database.undo();
    FAIL() << "it was taken back";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.kind, Kind::conflict);
  }
  EXPECT_EQ(database.history(), before);
}

// As the first release made it.
constexpr const char* firstLayout = R"(
  CREATE TABLE fasts (place INTEGER PRIMARY KEY AUTOINCREMENT, id BLOB NOT NULL UNIQUE CHECK (length(id) = 16),
    startedAt REAL NOT NULL, endedAt REAL, goalSeconds INTEGER NOT NULL CHECK (goalSeconds >= 0), note TEXT NOT NULL
  ) STRICT;
  CREATE INDEX fastsByStart ON fasts (startedAt, place);
  CREATE UNIQUE INDEX oneRunningFast ON fasts (endedAt IS NULL) WHERE endedAt IS NULL;
  CREATE TABLE weights (place INTEGER PRIMARY KEY AUTOINCREMENT, id BLOB NOT NULL UNIQUE CHECK (length(id) = 16),
    weighedAt REAL NOT NULL, weightInKg REAL NOT NULL CHECK (weightInKg > 0)) STRICT;
  CREATE INDEX weightsByDate ON weights (weighedAt, place);
  INSERT INTO fasts (id, startedAt, endedAt, goalSeconds, note)
    VALUES (x'00000000000000070000000000000001', 1770000000, 1770057600, 57600, 'tea');
  PRAGMA user_version = 1;)";

TEST_F(DatabaseTest, bringsAnOlderFileUpToDateWhereItMayWrite) {
  std::filesystem::create_directories(file.parent_path());
  SQLite::Database{file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE}.exec(firstLayout);
  const FastRecord kept = fast(1, 0, 16, "tea");
  EXPECT_THAT((openDatabase(file, Database::Access::readOnly).history().fasts), ElementsAre(kept));
  EXPECT_TRUE(open().undo().isEmpty());
  EXPECT_THAT(open().history().fasts, ElementsAre(kept));
  open().apply(adding({fast(2, 20, 30)}));
  EXPECT_THAT(open().undo().removedFasts, ElementsAre(fast(2, 20, 30)));
  EXPECT_THAT(open().history().fasts, ElementsAre(kept));
}

TEST_F(DatabaseTest, changesNothingOnAConflict) {
  Database database = open();
  database.apply(adding({fast(1, 0, 16), running(2, 20)}));
  const History before = database.history();

  HistoryChange stale = adding({fast(5, 40, 50)});
  stale.removedFasts = {fast(1, 0, 15)};
  const struct {
    const char* name;
    HistoryChange change;
    Kind kind;
    const char* says;
  } rows[] = {
      {"taken away as it no longer is", stale, Kind::conflict, "a record was changed meanwhile"},
      {"a second running fast", adding({fast(4, 50, 60), running(3, 21)}), Kind::fastRunning,
       "a fast is running already"},
      {"an id that is taken", adding({fast(4, 50, 60), fast(1, 70, 80)}), Kind::conflict, "a record cannot be added"},
  };
  for (const auto& [name, change, kind, says] : rows) {
    const DatabaseError error = failure(database, change);
    EXPECT_EQ(error.kind, kind) << name;
    EXPECT_THAT(error.what(), StartsWith(file.string() + ": ")) << name;
    EXPECT_THAT(error.what(), HasSubstr(says)) << name;
    EXPECT_EQ(database.history(), before) << name;
  }
}

TEST_F(DatabaseTest, showsWhatAnotherConnectionWrote) {
  Database app = open(), commandLine = open();
  const std::int64_t before = app.version();
  app.apply(adding({fast(1, 0, 16)}));
  EXPECT_EQ(app.version(), before) << "its own changes are no news";
  commandLine.apply(adding({fast(2, 20, 30)}));
  EXPECT_NE(app.version(), before);
  EXPECT_EQ(app.history().fasts.size(), 2u);
}

TEST_F(DatabaseTest, isMadeOnceByManyAtATime) {
  tests::Threads programs;
  for (std::uint64_t id = 1; id <= 8; ++id)
    programs.start([&, id] {
      const double start = static_cast<double>(id);
      for (std::uint64_t round = 0; round < 5; ++round) open().apply(adding({fast(id * 10 + round, start, start + 1)}));
    });
  programs.join();
  EXPECT_EQ(open().history().fasts.size(), 40u);
}

TEST_F(DatabaseTest, isItsOwnersAlone) {
  namespace fs = std::filesystem;
  const auto permissions = [this](const char* part) { return fs::status(file.string() + part).permissions(); };
  constexpr auto owners = fs::perms::owner_read | fs::perms::owner_write;
  Database database = open();
  database.apply(adding({fast(1, 0, 16)}));
  for (const char* part : {"", "-wal", "-shm"}) {
    EXPECT_EQ(permissions(part), owners) << part;
    fs::permissions(file.string() + part, fs::perms::group_read | fs::perms::others_read, fs::perm_options::add);
  }
  openDatabase(file, Database::Access::readOnly).history();
  EXPECT_NE(permissions(""), owners) << "changed by a reader";
  open();
  for (const char* part : {"", "-wal", "-shm"}) EXPECT_EQ(permissions(part), owners) << part;
}

TEST_F(DatabaseTest, namesTheCommandThatCopiesIt) {
  EXPECT_EQ(exportCommand(ownDatabaseFile()), "mivo export --to copy.json");
  EXPECT_EQ(exportCommand("/my data/d"), "mivo export --to copy.json --database '/my data/d'");
}

TEST_F(DatabaseTest, movesADamagedFileAsideAndSaysWhere) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream{file} << "This is not a database, it is a letter of at least one hundred bytes to whom it may concern: "
                         "the contents matter to somebody.";
  EXPECT_THROW(open(), DatabaseError);
  const auto setAside = [&] {
    const OpenedDatabase opened = openOrSetAside(file);
    EXPECT_THAT(opened.database.history().fasts, IsEmpty());
    return opened.setAside.value();
  };
  const std::filesystem::path first = setAside();
  EXPECT_THAT(first.string(), StartsWith(file.string() + ".damaged-"));
  EXPECT_GT(std::filesystem::file_size(first), 100u);

  std::ofstream{file} << std::string(5000, 'x');
  EXPECT_EQ(std::filesystem::file_size(setAside()), 5000u);
  EXPECT_LT(std::filesystem::file_size(first), 5000u) << "one takes the place of another of the same second";
}

TEST_F(DatabaseTest, leavesALaterVersionsFileAlone) {
  open().apply(adding({fast(1, 0, 16)}));
  SQLite::Database{file.string(), SQLite::OPEN_READWRITE}.exec("PRAGMA user_version = 1000");
  try {
    openOrSetAside(file);
    FAIL() << "it was opened";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.kind, DatabaseError::Kind::tooNew);
    EXPECT_EQ(error.what(), file.string() + ": written by a later version of Mivo; update to open it");
  }
}

// Read as it was left, whether or not its last changes still stand in the log beside it.
TEST_F(DatabaseTest, canBeReadWhereItMayNotBeWritten) {
  auto writer = std::make_unique<Database>(openDatabase(file));
  writer->apply(adding({fast(1, 0, 16)}));
  for (const char* name : {"with a log", "alone"}) {
    Database reader = openDatabase(file, Database::Access::readOnly);
    EXPECT_THAT(reader.history().fasts, ElementsAre(fast(1, 0, 16))) << name;
    EXPECT_EQ(failure(reader, adding({fast(2, 20, 30)})).kind, Kind::readOnly) << name;
    writer.reset();
  }
  EXPECT_THAT(open().history().fasts, ElementsAre(fast(1, 0, 16)));
}

TEST_F(DatabaseTest, saysWhatStandsInTheWayOfAFolder) {
  std::ofstream{folder.path / "some"} << "a file where a folder is needed";
  try {
    open();
    FAIL() << "it was opened";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.kind, Kind::noFolder);
    EXPECT_THAT(error.what(), StartsWith(file.parent_path().string() + ": the folder cannot be made"));
  }
}

}  // namespace
}  // namespace mivo::host
