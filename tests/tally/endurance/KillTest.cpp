// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <atomic>
#include <optional>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/RedisServer.h"
#include "tests/tally_support/TallyServer.h"
#include "tests/tally_support/Voters.h"

// Killed in the middle of votes, again and again. A vote whose answer did not arrive may count or not; one that was
// answered counts, and none counts twice.
namespace mivo::tally::test {
namespace {

constexpr int kills = 50;
constexpr std::int64_t votesBetweenKills = 20;
constexpr std::size_t clients = 8;

void expectAllKept(std::int64_t count, const Tally& tally) {
  EXPECT_GE(count, tally.kept);
  EXPECT_LE(count, tally.kept + tally.unknown);
  EXPECT_GE(tally.kept, kills * votesBetweenKills);
}

TEST(Killed, theServerHasEveryAnsweredVote) {
  const tests::TemporaryFolder folder;
  const auto store = "sqlite:" + folder.file("tally.sqlite");
  std::optional<TallyServer> server{std::in_place, store};
  std::atomic<std::uint16_t> port = server->port();
  std::int64_t lastCount = 0;
  Voters voters{clients, "a/feature1", [&] { return port.load(); }};
  for (int i = 0; i < kills; ++i) {
    voters.waitForMore(votesBetweenKills);
    server->process().kill();
    server.emplace(store);
    const auto count = countOf(HttpClient{server->port()}.get("/get/a/feature1"));
    EXPECT_GE(count, lastCount + votesBetweenKills);
    lastCount = count;
    port = server->port();
  }
  voters.waitForMore(votesBetweenKills);
  const auto tally = voters.stop();
  expectAllKept(countOf(HttpClient{port}.get("/get/a/feature1")), tally);
}

TEST(Killed, redisHasEveryAnsweredVote) {
  RedisServer redis;
  const TallyServer server{redis.address()};
  Voters voters{clients, "a/feature1", [&] { return server.port(); }};
  for (int i = 0; i < kills; ++i) {
    voters.waitForMore(votesBetweenKills);
    redis.restart();
  }
  voters.waitForMore(votesBetweenKills);
  const auto tally = voters.stop();
  expectAllKept(countOf(HttpClient{server.port()}.get("/get/a/feature1")), tally);
}

}  // namespace
}  // namespace mivo::tally::test
