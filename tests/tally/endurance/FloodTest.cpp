// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <deque>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/TallyServer.h"

namespace mivo::tally::test {
namespace {

constexpr std::size_t slowClients = 2000;
constexpr auto beginning = "GET /add/a/feature1?delta=1 HT";

void allowDescriptors(rlim_t count) {
  rlimit limit{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limit), 0);
  ASSERT_GE(limit.rlim_max, count) << "this machine lets no process open so many connections";
  limit.rlim_cur = std::max(limit.rlim_cur, count);
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &limit), 0);
}

struct Fixture : testing::Test {
  void SetUp() override { allowDescriptors(slowClients + 100); }

  void open(const TallyServer& server, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) slow.emplace_back(server.port()).send(beginning);
  }

  // A connection stands in the kernel's queue until the server takes it, which a loaded machine may do after it served
  // those that it has: only an answer says that it was taken.
  void openOneByOne(const TallyServer& server, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      auto& client = slow.emplace_back(server.port());
      ASSERT_EQ(client.get("/health").status, 200U);
      client.send(beginning);
    }
  }

  tests::TemporaryFolder folder;
  std::string store = "sqlite:" + folder.file("tally.sqlite");
  std::deque<HttpClient> slow;
};

using Flood = Fixture;

TEST_F(Flood, ofSlowClientsKeepsNobodyFromVoting) {
  TallyServer server{store,
                     {"--votes-per-minute", "0", "--votes-per-day", "0", "--request-seconds", "5",
                      "--max-connections-per-address", "0"}};
  HttpClient early{server.port()};
  open(server, slowClients);
  HttpClient late{server.port()};
  for (int i = 0; i < 50; ++i) {
    ASSERT_EQ(countOf(early.get("/add/a/feature1?delta=1")), 2 * i + 1);
    ASSERT_EQ(countOf(late.get("/add/a/feature1?delta=1")), 2 * i + 2);
  }
  EXPECT_THAT(slow.front().receiveAll(), testing::HasSubstr("408 Request Timeout"));
  EXPECT_THAT(slow.back().receiveAll(), testing::HasSubstr("408 Request Timeout"));
}

// Beyond the most connections, those that were silent longest give way, and not the one that works.
TEST_F(Flood, beyondTheMostConnectionsDropsTheSilent) {
  TallyServer server{
      store,
      {"--votes-per-minute", "0", "--votes-per-day", "0", "--max-connections", "100", "--request-seconds", "60"}};
  HttpClient working{server.port()};
  for (int i = 0; i < 3; ++i) {
    openOneByOne(server, 90);
    ASSERT_EQ(working.get("/add/a/feature1?delta=1").status, 200U);
  }
  EXPECT_EQ(slow.front().receiveAll(), "");
  slow.back().send("TP/1.1\r\nHost: localhost\r\n\r\n");
  EXPECT_EQ(slow.back().receive().status, 200U);
}

}  // namespace
}  // namespace mivo::tally::test
