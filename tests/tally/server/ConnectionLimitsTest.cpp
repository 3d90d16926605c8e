// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <deque>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/Certificate.h"
#include "tests/tally_support/Eventually.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/TallyServer.h"

// Strangers who open more than they need, greet and fall silent, or ask and never read.
namespace mivo::tally::test {
namespace {

constexpr auto tls = HttpClient::Security::tls;

struct Fixture : testing::Test {
  std::vector<std::string> underTls(std::vector<std::string> flags) const {
    const CertificateFiles files{folder.file("certificate.pem"), folder.file("key.pem")};
    makeCertificate(files, 1);
    flags.insert(flags.end(), {"--certificate", files.certificate, "--key", files.key, "--request-seconds", "60"});
    return flags;
  }

  tests::TemporaryFolder folder;
  std::string store = "sqlite:" + folder.file("tally.sqlite");
};

using ConnectionLimits = Fixture;

std::uint64_t figure(HttpClient& client, const std::string& name) {
  const auto before = "\nmivo_tally_" + name + ' ';
  const auto body = client.get("/metrics").body;
  return std::stoull(body.substr(body.find(before) + before.size()));
}

TEST_F(ConnectionLimits, anAddressHasSoManyUnlessItIsAProxy) {
  TallyServer server{store, {"--max-connections-per-address", "2"}};
  HttpClient first{server.port()};
  EXPECT_EQ(first.get("/health").status, 200U);
  {
    HttpClient second{server.port()};
    EXPECT_EQ(second.get("/health").status, 200U);
    EXPECT_EQ(HttpClient{server.port()}.receiveAll(), "");
    EXPECT_EQ(figure(first, "connections_cut_total{limit=\"address\"}"), 1U);
    second.get("/health", {"Connection: close"});
    second.receiveAll();
  }
  EXPECT_EQ(HttpClient{server.port()}.get("/health").status, 200U) << "there is room again";

  TallyServer trusting{"sqlite:" + folder.file("other.sqlite"),
                       {"--max-connections-per-address", "1", "--trust-forwarded-for", "127.0.0.0/8"}};
  std::deque<HttpClient> proxies;
  for (int i = 0; i < 3; ++i) EXPECT_EQ(proxies.emplace_back(trusting.port()).get("/health").status, 200U);
}

TEST_F(ConnectionLimits, thereAreDescriptorsForAllThatMayCome) {
  TallyServer server{store, {"--max-connections", "100"}, {"sh", "-c", "ulimit -Sn 64; exec \"$@\"", "sh"}};
  std::deque<HttpClient> clients;
  for (int i = 0; i < 100; ++i) ASSERT_EQ(clients.emplace_back(server.port()).get("/health").status, 200U) << i;
  for (HttpClient& client : clients) EXPECT_EQ(client.get("/health").status, 200U) << "gave way";
}

TEST_F(ConnectionLimits, theOldestUnfinishedHandshakeGivesWayAndTheSilentAreNone) {
  TallyServer server{store, underTls({"--max-handshakes", "2"})};
  HttpClient watching{server.port(), tls};
  std::deque<HttpClient> silent;
  for (int i = 0; i < 3; ++i) silent.emplace_back(server.port());
  HttpClient first{server.port()};
  first.send("\x16");
  EXPECT_TRUE(eventually([&] { return figure(watching, "unfinished_handshakes") == 1; }));
  HttpClient second{server.port()};
  second.send("\x16");
  HttpClient third{server.port()};
  third.send("\x16");
  EXPECT_EQ(first.receiveAll(), "");
  EXPECT_EQ(figure(watching, "unfinished_handshakes"), 2U);
  EXPECT_EQ(figure(watching, "open_connections"), 6U);
  EXPECT_EQ((HttpClient{server.port(), tls}.get("/health").status), 200U);
  EXPECT_EQ(figure(watching, "connections_cut_total{limit=\"handshakes\"}"), 2U);
}

TEST_F(ConnectionLimits, anAddressHasSoManyHandshakesAMinute) {
  TallyServer server{store, underTls({"--handshakes-per-minute", "3"})};
  for (int i = 0; i < 3; ++i) EXPECT_EQ((HttpClient{server.port(), tls}.get("/health").status), 200U);
  EXPECT_THROW((HttpClient{server.port(), tls}), std::runtime_error);
}

TEST_F(ConnectionLimits, noHandshakeIsRepeatedInsideAConnection) {
  TallyServer server{store, underTls({})};
  HttpClient client{server.port(), HttpClient::Security::tls12};
  EXPECT_EQ(client.get("/health").status, 200U);
  EXPECT_FALSE(client.renegotiates());
}

// More than 64 clients leave 16 KB each: those that were slow longest give way to the others.
TEST_F(ConnectionLimits, whoTakesNoAnswersGivesWayInTheEnd) {
  constexpr std::size_t clients = 80;
  constexpr int smallBuffer = 4096;
  constexpr int requests = 60;
  TallyServer server{store, {"--max-unsent-megabytes", "1", "--request-seconds", "60"}};
  HttpClient watching{server.port()};
  std::string all;
  for (int i = 0; i < requests; ++i) all += "GET /metrics HTTP/1.1\r\nHost: h\r\n\r\n";
  std::deque<HttpClient> slow;
  for (std::size_t i = 0; i < clients; ++i)
    slow.emplace_back(server.port(), HttpClient::Security::plain, smallBuffer).send(all);
  EXPECT_TRUE(eventually([&] { return figure(watching, "connections_cut_total{limit=\"unsent\"}") > 0; }));
  EXPECT_LE(figure(watching, "unsent_bytes"), 1U << 20U);
  const auto taken = slow.front().receiveAll();
  EXPECT_LT(taken.size(), std::size_t{requests} * slow.back().receive().body.size()) << "cut off";
  for (int i = 1; i < requests; ++i) ASSERT_EQ(slow.back().receive().status, 200U) << "served to its end";
}

}  // namespace
}  // namespace mivo::tally::test
