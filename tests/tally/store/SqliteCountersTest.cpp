// SPDX-License-Identifier: MIT
#include "tally/store/SqliteCounters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <SQLiteCpp/SQLiteCpp.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>

#include "PrintedResult.h"
#include "tally/store/FileLock.h"
#include "tally/store/SqliteStore.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/DamagedPage.h"

namespace mivo::tally {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
constexpr auto largest = std::numeric_limits<std::int64_t>::max();
constexpr auto smallest = std::numeric_limits<std::int64_t>::min();

Result counted(std::int64_t count) { return {Outcome::counted, count}; }

std::string faultOf(const std::function<void()>& body) {
  try {
    body();
  } catch (const std::exception& error) {
    return error.what();
  }
  return {};
}

struct Fixture : testing::Test {
  tests::TemporaryFolder folder;
  std::string file = folder.file("tally.sqlite");
  SqliteCounters counters{file, SqliteCounters::Access::readWrite};
};

using SqliteCountersTest = Fixture;

TEST_F(SqliteCountersTest, countsInTheOrderOfABatch) {
  const Operations batch{
      {"a/feature1", 1}, {"a/feature2", -1}, {"a/feature1", 0}, {"a/feature1", 1}, {"a/feature3", 0}};
  EXPECT_THAT(counters.apply(batch), ElementsAre(counted(1), counted(-1), counted(1), counted(2), counted(0)));
  EXPECT_EQ(counters.count("a/feature1"), 2);
  std::vector<std::pair<std::string, std::int64_t>> kept;
  counters.forEach([&](std::string_view name, std::int64_t count) { kept.emplace_back(name, count); });
  EXPECT_THAT(kept, ElementsAre(testing::Pair("a/feature1", 2), testing::Pair("a/feature2", -1)));
}

TEST_F(SqliteCountersTest, isFoundAgainByTheNextProcess) {
  counters.apply({{"a/feature1", 1}});
  SqliteCounters again{file, SqliteCounters::Access::readOnly};
  EXPECT_EQ(again.count("a/feature1"), 1);
}

TEST_F(SqliteCountersTest, refusesToOverflowAndKeepsTheRestOfTheBatch) {
  counters.set({{"a/feature1", 0, largest - 1}, {"a/feature2", 0, smallest}});
  EXPECT_THAT(counters.apply({{"a/feature1", 1}, {"a/feature1", 1}, {"a/feature2", -1}, {"a/feature2", 1}}),
              ElementsAre(counted(largest), Result{Outcome::overflow, largest}, Result{Outcome::overflow, smallest},
                          counted(smallest + 1)));
}

TEST_F(SqliteCountersTest, namesTheFileThatIsNoDatabase) {
  const auto other = folder.file("other");
  std::ofstream{other} << "not a database, but long enough to be looked at as one";
  EXPECT_THAT(faultOf([&] { SqliteCounters{other, SqliteCounters::Access::readWrite}; }),
              testing::AllOf(HasSubstr(other), HasSubstr("not a database")));
}

TEST_F(SqliteCountersTest, belongsToOneProcess) {
  const FileLock lock{file};
  EXPECT_EQ(faultOf([&] { const FileLock second{file}; }), file + ": another mivo-tally is using it");
  asio::io_context loop;
  EXPECT_EQ(faultOf([&] { const SqliteStore store(loop, file, [](std::string_view) {}); }),
            file + ": another mivo-tally is using it");
}

TEST_F(SqliteCountersTest, takesNoMoreCountersThanToldAndForgetsNone) {
  const auto full = Result{Outcome::full, 0};
  counters.apply({{"a/feature1", 1}});
  SqliteCounters bounded{file, SqliteCounters::Access::readWrite, std::chrono::seconds{1}, 2};
  EXPECT_THAT(bounded.apply({{"a/feature2", 1}, {"a/feature3", 1}, {"a/feature2", 1}, {"a/feature3", 0}}),
              ElementsAre(counted(1), full, counted(2), counted(0)));
  EXPECT_THAT(bounded.apply({{"a/feature4", 1}, {"a/feature1", 1}}), ElementsAre(full, counted(2)));
}

TEST_F(SqliteCountersTest, hasRoomForOneLessOnceACorrectionAddedOne) {
  SqliteCounters bounded{file, SqliteCounters::Access::readWrite, std::chrono::seconds{5}, 2};
  EXPECT_THAT(bounded.apply({{"a/feature1", 1}}), ElementsAre(counted(1)));
  EXPECT_EQ(bounded.replace("a/feature2", 7), std::nullopt);
  EXPECT_EQ(bounded.replace("a/feature2", 8), 7);
  EXPECT_THAT(bounded.apply({{"a/feature3", 1}, {"a/feature2", 1}}), ElementsAre(Result{Outcome::full, 0}, counted(9)));
}

TEST_F(SqliteCountersTest, hasRoomForOneLessOnceAnotherAddedOne) {
  SqliteCounters bounded{file, SqliteCounters::Access::readWrite, std::chrono::seconds{5}, 2};
  EXPECT_THAT(bounded.apply({{"a/feature1", 1}}), ElementsAre(counted(1)));
  counters.apply({{"a/feature2", 1}});
  EXPECT_TRUE(bounded.wasChangedByOthers());
  EXPECT_THAT(bounded.apply({{"a/feature3", 1}}), ElementsAre(Result{Outcome::full, 0}));
}

TEST_F(SqliteCountersTest, isLockedThroughALinkAndWithoutItsLockFile) {
  const FileLock lock{file};
  const auto link = folder.file("link.sqlite");
  std::filesystem::create_symlink(file, link);
  std::filesystem::remove(file + ".lock");
  for (const auto& path : {link, file})
    EXPECT_EQ(faultOf([&] { const FileLock second{path}; }), path + ": another mivo-tally is using it");
}

TEST_F(SqliteCountersTest, isLockedForOlderServersToo) {
  const FileLock lock{file};
  const int older = ::open((file + ".lock").c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0600);
  EXPECT_EQ(::flock(older, LOCK_EX | LOCK_NB), -1);
  EXPECT_EQ(errno, EWOULDBLOCK);
  ::close(older);
}

TEST_F(SqliteCountersTest, worksAgainAfterAnotherHeldTheFile) {
  SqliteCounters hasty{file, SqliteCounters::Access::readWrite, std::chrono::milliseconds{1}};
  {
    SQLite::Database other{file, SQLite::OPEN_READWRITE};
    const SQLite::Transaction held{other, SQLite::TransactionBehavior::IMMEDIATE};
    EXPECT_THAT(faultOf([&] { hasty.apply({{"a/feature1", 1}}); }), HasSubstr("locked"));
    EXPECT_THAT(faultOf([&] { hasty.probe(); }), HasSubstr("locked"));
    EXPECT_EQ(hasty.count("a/feature1"), 0);
  }
  EXPECT_THAT(hasty.apply({{"a/feature1", 1}}), ElementsAre(counted(1)));
  hasty.probe();
}

TEST_F(SqliteCountersTest, knowsWhetherAnotherWrote) {
  EXPECT_FALSE(counters.wasChangedByOthers());
  counters.apply({{"a/feature1", 1}});
  counters.probe();
  EXPECT_FALSE(counters.wasChangedByOthers());
  SqliteCounters{file, SqliteCounters::Access::readWrite}.set({{"a/feature1", 1, 9}});
  EXPECT_TRUE(counters.wasChangedByOthers());
  EXPECT_FALSE(counters.wasChangedByOthers());
}

TEST(DamagedDatabase, losesOnlyWhatLiesOnTheDamagedPage) {
  const tests::TemporaryFolder folder;
  const auto file = folder.file("tally.sqlite");
  constexpr int counters = 1000;
  std::vector<Change> changes;
  for (int i = 0; i < counters; ++i) changes.push_back({"a/feature" + std::to_string(10'000 + i), 0, i});
  SqliteCounters{file, SqliteCounters::Access::readWrite}.set(changes);
  test::damagePageWith(file, changes.back().counter);

  SqliteCounters damaged{file, SqliteCounters::Access::readWrite};
  EXPECT_NE(damaged.damage(), "");
  const auto& [first, last] = std::pair{changes.front().counter, changes.back().counter};
  EXPECT_THAT(damaged.apply({{first, 0}, {last, 0}, {first, 0}}), ElementsAre(counted(0), Result{}, counted(0)));
  EXPECT_THAT(damaged.takeDamage(), HasSubstr(last));
  EXPECT_THAT(damaged.apply({{first, 1}, {last, 1}, {first, 1}}), ElementsAre(counted(1), Result{}, counted(2)));
  EXPECT_EQ(damaged.count(first), 2);
}

TEST(SqliteStoreTest, knowsWhatItReadOrCounted) {
  const tests::TemporaryFolder folder;
  asio::io_context loop;
  SqliteStore store{loop, folder.path / "new" / "tally.sqlite", [](std::string_view text) { FAIL() << text; }};
  EXPECT_EQ(store.known("a/feature1"), std::nullopt);
  const auto work = asio::make_work_guard(loop);
  const auto submit = [&](Operations operations) {
    Results results;
    store.submit(std::move(operations), [&](const Results& done) {
      results = done;
      loop.stop();
    });
    loop.restart();
    loop.run();
    return results;
  };
  EXPECT_THAT(submit({{"a/feature1", 0}}), ElementsAre(counted(0)));
  EXPECT_EQ(store.known("a/feature1"), 0);
  EXPECT_THAT(submit({{"a/feature2", 1}, {"a/feature3", 0}}), ElementsAre(counted(1), counted(0)));
  EXPECT_EQ(store.known("a/feature2"), 1);
  EXPECT_EQ(store.known("a/feature3"), 0);
}

// A database as the first release wrote it: what an upgrade must read, whatever the present one writes.
constexpr auto firstRelease = R"(
  PRAGMA journal_mode = WAL;
  CREATE TABLE counter (name TEXT PRIMARY KEY, value INTEGER NOT NULL) STRICT, WITHOUT ROWID;
  PRAGMA user_version = 1;
  INSERT INTO counter VALUES ('app.example/feature12', 7), ('app.example/featureäöü', 3), ('b/feature1', -2),
                             ('b/feature2', 9223372036854775807);
)";

TEST(Upgrade, keepsEveryCountOfTheFirstRelease) {
  const tests::TemporaryFolder folder;
  const auto file = folder.file("tally.sqlite");
  SQLite::Database{file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE}.exec(firstRelease);
  {
    SqliteCounters counters{file, SqliteCounters::Access::readWrite, std::chrono::seconds{5}, 4};
    EXPECT_EQ(counters.damage(), "");
    EXPECT_THAT(counters.apply({{"app.example/feature12", 1}, {"b/feature1", 0}, {"b/feature2", 1}, {"b/feature3", 1}}),
                ElementsAre(counted(8), counted(-2), Result{Outcome::overflow, largest}, Result{Outcome::full, 0}));
  }
  SqliteCounters again{file, SqliteCounters::Access::readOnly};
  std::vector<std::pair<std::string, std::int64_t>> kept;
  again.forEach([&](std::string_view name, std::int64_t count) { kept.emplace_back(name, count); });
  EXPECT_THAT(kept, ElementsAre(testing::Pair("app.example/feature12", 8), testing::Pair("app.example/featureäöü", 3),
                                testing::Pair("b/feature1", -2), testing::Pair("b/feature2", largest)));
}

}  // namespace
}  // namespace mivo::tally
