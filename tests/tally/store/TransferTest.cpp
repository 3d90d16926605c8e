// SPDX-License-Identifier: MIT
#include "tally/store/Transfer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <sstream>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/RedisServer.h"

namespace mivo::tally {
namespace {

const Counts counts{{"a/feature1", 7}, {"a/feature2", -9223372036854775807 - 1}, {"b.c/feature1", 9223372036854775807}};

std::string faultOf(const std::function<void()>& body) {
  try {
    body();
  } catch (const std::exception& error) {
    return error.what();
  }
  return {};
}

TEST(WriteCounts, isReadBackToTheLastLine) {
  std::stringstream text;
  writeCounts(text, counts);
  EXPECT_TRUE(text.str().starts_with("{\"counter\":\"a/feature1\",\"value\":7}\n"));
  EXPECT_EQ(readCounts(text, "file"), counts);
}

struct BadLineRow {
  const char* name;
  const char* text;
  const char* fault;
};
void PrintTo(const BadLineRow& row, std::ostream* out) { *out << row.name; }

class BadLines : public testing::TestWithParam<BadLineRow> {};

TEST_P(BadLines, areNamedWithTheirField) {
  std::istringstream in{GetParam().text};
  EXPECT_EQ(faultOf([&] { readCounts(in, "c.jsonl"); }), GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadLines,
    testing::Values(
        BadLineRow{"notJson", "\nfeature1 7", "c.jsonl:2: expected an object with counter and value"},
        BadLineRow{"noCounter", R"({"value":7})", "c.jsonl:1: counter: expected a text"},
        BadLineRow{"badCounter", R"({"counter":"a/1","value":7})",
                   "c.jsonl:1: counter: the counter must be named NAMESPACE/featureID"},
        BadLineRow{"noValue", R"({"counter":"a/feature1"})", "c.jsonl:1: value: is missing"},
        BadLineRow{"textValue", R"({"counter":"a/feature1","value":"7"})",
                   "c.jsonl:1: value: expected a whole number of 64 bits, found \"7\""},
        BadLineRow{"tooLarge", R"({"counter":"a/feature1","value":9223372036854775808})",
                   "c.jsonl:1: value: expected a whole number of 64 bits, found 9223372036854775808"},
        BadLineRow{"memberTwice", R"({"counter":"a/feature1","value":7,"value":8})", "c.jsonl:1: value: comes twice"},
        BadLineRow{"twice", "{\"counter\":\"a/feature1\",\"value\":7}\n{\"counter\":\"a/feature1\",\"value\":7}",
                   "c.jsonl:2: counter: a/feature1 comes twice"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(WriteCounts, letsOnlyTheOwnerReadAlsoWhereOthersCould) {
  const tests::TemporaryFolder folder;
  const std::filesystem::path file = folder.file("counters.jsonl");
  for (const auto& readable : {file, std::filesystem::path{file.string() + ".part"}}) {
    std::ofstream{readable} << "older";
    std::filesystem::permissions(readable, std::filesystem::perms{0644});
  }
  writeCounts(file, {{"a/feature1", 7}});
  EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms{0600});
  EXPECT_FALSE(std::filesystem::exists(file.string() + ".part"));
}

TEST(WriteCounts, writesIntoAPipeAndPutsNoFileInItsPlace) {
  const tests::TemporaryFolder folder;
  const auto pipe = folder.file("pipe");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const int reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  writeCounts(std::filesystem::path{pipe}, {{"a/feature1", 7}});
  std::array<char, 100> bytes{};
  const auto size = ::read(reader, bytes.data(), bytes.size());
  ::close(reader);
  EXPECT_EQ((std::string_view{bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0))}),
            "{\"counter\":\"a/feature1\",\"value\":7}\n");
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST(PlanImport, neverOverwritesUnasked) {
  const Counts present{{"a/feature1", 7}, {"a/feature2", 1}};
  const Counts wanted{{"a/feature1", 7}, {"a/feature2", 2}, {"a/feature3", 3}};
  const auto plan = planImport(present, wanted, false);
  EXPECT_EQ(plan.equal, 1U);
  EXPECT_TRUE((plan.changes == std::vector<Change>{{"a/feature3", 0, 3}}));
  EXPECT_TRUE((plan.conflicts == std::vector<Change>{{"a/feature2", 1, 2}}));
  const auto replacing = planImport(present, wanted, true);
  EXPECT_TRUE((replacing.changes == std::vector<Change>{{"a/feature2", 1, 2}, {"a/feature3", 0, 3}}));
  EXPECT_TRUE(replacing.conflicts.empty());
}

// There, again, and back with another count: a counter is never added twice, nor half of a file.
void expectImports(const StoreAddress& address) {
  EXPECT_EQ(importCounts(address, counts, false).changes.size(), 3U);
  EXPECT_EQ(readStore(address), counts);
  EXPECT_EQ(importCounts(address, counts, false).equal, 3U);
  EXPECT_EQ(readStore(address), counts);
  const Counts other{{"a/feature1", 8}, {"new/feature1", 1}};
  EXPECT_EQ(importCounts(address, other, false).conflicts.size(), 1U);
  EXPECT_EQ(readStore(address), counts);
  EXPECT_EQ(importCounts(address, other, true).changes.size(), 2U);
  EXPECT_EQ(readStore(address).at("a/feature1"), 8);
}

TEST(ImportCounts, intoSqlite) {
  const tests::TemporaryFolder folder;
  expectImports(SqliteAddress{folder.file("tally.sqlite")});
}

TEST(ImportCounts, intoRedisWithPassword) {
  const test::RedisServer redis{{.password = "p/w@d", .certificate = {}}};
  auto address = std::get<RedisAddress>(parseStoreAddress(redis.address(2)));
  expectImports(address);
  address.password = "wrong";
  EXPECT_NE(faultOf([&] { readStore(address); }).find("WRONGPASS"), std::string::npos);
}

TEST(ReadStore, doesNotTakeAMissingFileForAnEmptyOne) {
  const tests::TemporaryFolder folder;
  const auto file = folder.file("tally.sqlite");
  EXPECT_EQ(faultOf([&] { readStore(SqliteAddress{file}); }), file + ": unable to open database file");
}

}  // namespace
}  // namespace mivo::tally
