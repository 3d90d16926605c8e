// SPDX-License-Identifier: MIT
#include "tally/store/SqliteCounters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "PrintedResult.h"
#include "tally/store/FileLock.h"
#include "tally/store/SqliteStore.h"
#include "tests/support/TemporaryFolder.h"

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

TEST(SqliteStoreTest, knowsWhatItReadOrCounted) {
  const tests::TemporaryFolder folder;
  asio::io_context loop;
  SqliteStore store{loop, folder.path / "new" / "tally.sqlite", [](std::string_view text) { FAIL() << text; }};
  EXPECT_EQ(store.known("a/feature1"), std::nullopt);
  Results results;
  const auto work = asio::make_work_guard(loop);
  store.submit({{"a/feature1", 1}, {"a/feature2", 0}}, [&](const Results& done) {
    results = done;
    loop.stop();
  });
  loop.run();
  EXPECT_THAT(results, ElementsAre(counted(1), counted(0)));
  EXPECT_EQ(store.known("a/feature1"), 1);
  EXPECT_EQ(store.known("a/feature2"), 0);
}

}  // namespace
}  // namespace mivo::tally
