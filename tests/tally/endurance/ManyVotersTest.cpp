// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <deque>
#include <map>
#include <random>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/RedisServer.h"
#include "tests/tally_support/TallyServer.h"

namespace mivo::tally::test {
namespace {

constexpr std::size_t clients = 64;
constexpr int votesEach = 100;
constexpr std::array<const char*, 3> counters{"app.example/feature1", "app.example/feature2", "other/feature1"};

struct Sums {
  std::map<std::string, std::int64_t> kept;
  // A store on a disk that is busy for seconds is given up, and its votes may count or not.
  std::map<std::string, std::int64_t> unknown;
  std::string fault;
};

// Up and down, on all counters, by one client whose sums nobody else touches.
Sums voteFrom(std::uint16_t port, unsigned seed) {
  std::mt19937 random{seed};
  Sums sums;
  try {
    HttpClient client{port};
    for (int i = 0; i < votesEach; ++i) {
      const std::string counter = counters[random() % counters.size()];
      const int delta = random() % 3 == 0 ? -1 : 1;
      const auto answer = client.get("/add/" + counter + "?delta=" + std::to_string(delta));
      if (answer.status == 200) {
        sums.kept[counter] += delta;
      } else {
        ++sums.unknown[counter];
      }
    }
  } catch (const std::exception& error) {
    sums.fault = error.what();
  }
  return sums;
}

// Every client votes at an instance, all at once; each instance then counts what the clients together were told.
void expectNothingLostNorTwice(const std::vector<std::uint16_t>& ports) {
  std::array<Sums, clients> sums;
  std::vector<std::jthread> threads;
  for (std::size_t i = 0; i < clients; ++i)
    threads.emplace_back([&, i] { sums[i] = voteFrom(ports[i % ports.size()], static_cast<unsigned>(i)); });
  threads.clear();
  Sums all;
  for (const auto& client : sums) {
    EXPECT_EQ(client.fault, "");
    for (const auto& [counter, sum] : client.kept) all.kept[counter] += sum;
    for (const auto& [counter, votes] : client.unknown) all.unknown[counter] += votes;
  }
  ASSERT_EQ(all.kept.size(), counters.size());
  for (const auto port : ports)
    for (const auto& [counter, sum] : all.kept)
      EXPECT_LE(std::abs(countOf(HttpClient{port}.get("/get/" + counter)) - sum), all.unknown[counter]) << counter;
}

TEST(ManyVoters, withSqlite) {
  const tests::TemporaryFolder folder;
  const TallyServer server{"sqlite:" + folder.file("tally.sqlite")};
  expectNothingLostNorTwice({server.port()});
}

TEST(ManyVoters, withThreeInstancesOnOneRedis) {
  const RedisServer redis;
  std::deque<TallyServer> servers;
  std::vector<std::uint16_t> ports;
  for (int i = 0; i < 3; ++i) {
    auto& server = servers.emplace_back(redis.address());
    server.process().waitForLine("is there");
    ports.push_back(server.port());
  }
  expectNothingLostNorTwice(ports);
}

}  // namespace
}  // namespace mivo::tally::test
