// SPDX-License-Identifier: MIT
#include "tally/store/RedisStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PrintedResult.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/RedisServer.h"

namespace mivo::tally {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;

Result counted(std::int64_t count) { return {Outcome::counted, count}; }
const Result away{};

struct Fixture : testing::Test {
  RedisStore& storeAt(const std::string& address, std::int64_t mostCounters = 1000) {
    store.emplace(
        loop, std::get<RedisAddress>(parseStoreAddress(address)),
        [this](std::string_view text) { reports.emplace_back(text); },
        StoreTimes{.probe = std::chrono::seconds{1}, .probeAgain = std::chrono::seconds{1}}, mostCounters);
    return *store;
  }

  template <class Condition>
  void runUntil(Condition condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds{30};
    while (!condition() && std::chrono::steady_clock::now() < end) loop.run_one_for(std::chrono::seconds{1});
    ASSERT_TRUE(condition()) << testing::PrintToString(reports);
  }

  Results ask(Operations operations) {
    std::optional<Results> results;
    store->submit(std::move(operations), [&](Results done) { results = std::move(done); });
    EXPECT_FALSE(results) << "answered from inside";
    runUntil([&] { return results.has_value(); });
    return results.value_or(Results{});
  }

  asio::io_context loop;
  std::vector<std::string> reports;
  std::optional<RedisStore> store;
};

using RedisStoreTest = Fixture;

TEST_F(RedisStoreTest, countsInOrderAndKeepsNothingHimself) {
  const test::RedisServer redis;
  auto& sut = storeAt(redis.address());
  EXPECT_FALSE(sut.isAvailable());
  EXPECT_THAT(ask({{"a/feature1", 0}}), ElementsAre(away)) << "nothing waits for the connection";
  runUntil([&] { return sut.isAvailable(); });
  EXPECT_THAT(ask({{"a/feature1", 0}, {"a/feature1", 1}, {"a/feature1", 1}, {"a/feature2", -1}, {"a/feature1", 0}}),
              ElementsAre(counted(0), counted(1), counted(2), counted(-1), counted(2)));
  EXPECT_EQ(sut.known("a/feature1"), std::nullopt);
}

TEST_F(RedisStoreTest, leavesAnOverflowToRedisAndTellsOfStrangeValues) {
  const test::RedisServer redis;
  auto& sut = storeAt(redis.address());
  runUntil([&] { return sut.isAvailable(); });
  test::ChildProcess{{"redis-cli", "-u", redis.address(), "MSET", "mivo-tally:a/feature1", "9223372036854775807",
                      "mivo-tally:a/feature2", "many"}}
      .wait();
  const auto results = ask({{"a/feature1", 1}, {"a/feature1", 0}, {"a/feature2", 0}, {"a/feature2", 1}});
  EXPECT_EQ(results.at(0).outcome, Outcome::overflow);
  EXPECT_EQ(results.at(1), counted(9223372036854775807));
  EXPECT_EQ(results.at(2), away);
  EXPECT_EQ(results.at(3), away);
  EXPECT_THAT(reports.back(), HasSubstr("Redis refuses"));
}

// What the server probes with is a key too.
TEST_F(RedisStoreTest, takesNoFurtherCounterThanItMay) {
  const test::RedisServer redis;
  const auto set = [&](const char* key) {
    test::ChildProcess{{"redis-cli", "-u", redis.address(), "SET", key, "5"}}.wait();
  };
  set("mivo-tally:a/feature1");
  auto& sut = storeAt(redis.address(), 3);
  runUntil([&] { return sut.isAvailable(); });
  const Result full{Outcome::full, 0};
  EXPECT_THAT(ask({{"a/feature2", 1}, {"a/feature3", 1}, {"a/feature3", 0}, {"a/feature1", 1}, {"a/feature2", -1}}),
              ElementsAre(counted(1), full, counted(0), counted(6), counted(0)));
  EXPECT_THAT(ask({{"a/feature3", -1}}), ElementsAre(full));
  EXPECT_THAT(ask({{"a/feature2", 1}, {"a/feature1", 1}}), ElementsAre(counted(1), counted(7)));
  EXPECT_TRUE(sut.isAvailable());
  set("mivo-tally:a/feature4");  // by another instance
  EXPECT_THAT(ask({{"a/feature4", 1}}), ElementsAre(counted(6)));
}

TEST_F(RedisStoreTest, isAwayWithRedisAndComesBackByItself) {
  test::RedisServer redis;
  auto& sut = storeAt(redis.address());
  runUntil([&] { return sut.isAvailable(); });
  EXPECT_THAT(ask({{"a/feature1", 1}}), ElementsAre(counted(1)));
  redis.process().kill();
  runUntil([&] { return !sut.isAvailable(); });  // without a vote that would have to be lost to find out
  EXPECT_THAT(ask({{"a/feature1", 1}, {"a/feature1", 0}}), Each(away));
  redis.restart();
  runUntil([&] { return sut.isAvailable() || reports.size() == 3; });
  EXPECT_EQ(reports.size(), 3U) << "not before a write shows that it takes votes";
  runUntil([&] { return sut.isAvailable(); });
  EXPECT_THAT(ask({{"a/feature1", 1}}), ElementsAre(counted(2)));
  EXPECT_THAT(reports, ElementsAre(HasSubstr("is there"), HasSubstr("is away"), HasSubstr("is there")));
}

TEST_F(RedisStoreTest, isNotAvailableWhileRedisRefusesToWrite) {
  const test::RedisServer redis;
  const auto set = [&](const char* name, const char* value) {
    test::ChildProcess{{"redis-cli", "-u", redis.address(), "CONFIG", "SET", name, value}}.wait();
  };
  set("min-replicas-to-write", "1");
  auto& sut = storeAt(redis.address());
  runUntil([&] { return reports.size() == 2; });
  EXPECT_THAT(reports.back(), HasSubstr("Redis refuses: NOREPLICAS"));
  EXPECT_FALSE(sut.isAvailable());
  EXPECT_THAT(ask({{"a/feature1", 1}, {"a/feature1", 0}}), ElementsAre(away, counted(0)));
  set("min-replicas-to-write", "0");
  runUntil([&] { return sut.isAvailable(); });  // nobody votes
  EXPECT_THAT(reports.back(), HasSubstr("takes votes again"));
  set("maxmemory", "1");
  runUntil([&] { return !sut.isAvailable(); });  // still nobody
  EXPECT_THAT(ask({{"a/feature1", 1}}), ElementsAre(away));
  EXPECT_FALSE(sut.isAvailable());
}

// The name may lead to another one after a fail-over: it is looked up again, ever less often, and told of once.
TEST_F(RedisStoreTest, connectsAgainWhereItWritesToAReplica) {
  const test::RedisServer redis;
  const auto follow = [&](const char* host, const char* port) {
    test::ChildProcess{{"redis-cli", "-u", redis.address(), "REPLICAOF", host, port}}.wait();
  };
  auto& sut = storeAt(redis.address());
  runUntil([&] { return sut.isAvailable(); });
  follow("127.0.0.1", "1");
  EXPECT_THAT(ask({{"a/feature1", 1}}), ElementsAre(away));
  loop.run_for(std::chrono::milliseconds{400});  // for some more attempts
  EXPECT_FALSE(sut.isAvailable());
  EXPECT_THAT(reports, ElementsAre(HasSubstr("is there"), HasSubstr("Redis refuses: READONLY"),
                                   HasSubstr("is away: it is a replica")));
  follow("NO", "ONE");
  runUntil([&] { return sut.isAvailable(); });
  EXPECT_EQ(reports.size(), 5U);
  EXPECT_THAT(reports.back(), HasSubstr("takes votes again"));
  EXPECT_THAT(ask({{"a/feature1", 1}}), ElementsAre(counted(1)));
}

TEST_F(RedisStoreTest, doesNotTrustACertificateOfNobodyKnown) {
  const tests::TemporaryFolder folder;
  const test::CertificateFiles files{folder.file("certificate.pem"), folder.file("key.pem")};
  test::makeCertificate(files, 1);
  const test::RedisServer redis{{.password = {}, .certificate = files}};
  auto& sut = storeAt(redis.address());
  runUntil([&] { return !reports.empty(); });
  EXPECT_FALSE(sut.isAvailable());
  EXPECT_THAT(reports.front(), HasSubstr("certificate verify failed"));
}

TEST_F(RedisStoreTest, countsOverTls) {
  const tests::TemporaryFolder folder;
  const test::CertificateFiles files{folder.file("certificate.pem"), folder.file("key.pem")};
  test::makeCertificate(files, 1);
  const test::RedisServer redis{{.password = "secret", .certificate = files}};
  ::setenv("SSL_CERT_FILE", files.certificate.c_str(), 1);
  auto& sut = storeAt(redis.address());
  ::unsetenv("SSL_CERT_FILE");
  runUntil([&] { return sut.isAvailable(); });
  EXPECT_THAT(ask({{"a/feature1", 1}, {"a/feature1", 1}}), ElementsAre(counted(1), counted(2)));
}

}  // namespace
}  // namespace mivo::tally
