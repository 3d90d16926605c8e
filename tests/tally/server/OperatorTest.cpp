// SPDX-License-Identifier: MIT
#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/Certificate.h"
#include "tests/tally_support/Eventually.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/RedisServer.h"
#include "tests/tally_support/TallyServer.h"

// What whoever runs the server does with it.
namespace mivo::tally::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using Said = std::pair<int, std::string>;

Said said(std::vector<std::string> words) {
  words.insert(words.begin(), tallyProgram());
  ChildProcess process{words};
  const int code = process.wait();
  return {code, process.output()};
}

struct Fixture : testing::Test {
  tests::TemporaryFolder folder;
  std::string file = folder.file("tally.sqlite");
  std::string store = "sqlite:" + file;
};

using Operator = Fixture;

TEST_F(Operator, asksForMetricsAndHealthAtAnAddressOfTheirOwn) {
  TallyServer server{store, {"--admin", "127.0.0.1:0", "--max-connections-per-address", "1", "--drain-seconds", "1"}};
  const auto port = portIn(server.process().waitForLine("\"admin\""));
  HttpClient admin{port};
  HttpClient other{port};
  HttpClient client{server.port()};
  EXPECT_EQ(admin.get("/health").status, 200U);
  EXPECT_THAT(other.get("/metrics").body, HasSubstr("mivo_tally_open_connections 3"));
  EXPECT_EQ(admin.get("/add/a/feature1?delta=1").status, 404U);
  EXPECT_EQ(admin.get("/get/a/feature1").status, 404U);
  EXPECT_EQ(client.get("/health").status, 404U);
  EXPECT_EQ(client.get("/metrics").status, 404U);
  EXPECT_EQ(client.get("/get/a/feature1").status, 200U);
  EXPECT_EQ(said({"health", "--admin", "127.0.0.1:" + std::to_string(port)}), (Said{0, "{\"status\":\"ok\"}\n"}));
  server.process().send(SIGTERM);
  EXPECT_EQ(server.process().wait(), 0);
}

TEST_F(Operator, asksWhetherTheServerIsWell) {
  const CertificateFiles files{folder.file("certificate.pem"), folder.file("key.pem")};
  makeCertificate(files, 1);
  TallyServer secure{store, {"--certificate", files.certificate, "--key", files.key}};
  const auto listen = "0.0.0.0:" + std::to_string(secure.port());
  EXPECT_EQ(said({"health", "--listen", listen, "--certificate", files.certificate, "--key", files.key}),
            (Said{0, "{\"status\":\"ok\"}\n"}));
  EXPECT_EQ(said({"health", "--listen", "127.0.0.1:1"}), (Said{1, "127.0.0.1:1: Connection refused\n"}));
  TallyServer ill{"redis://127.0.0.1:1"};
  const auto [code, text] = said({"health", "--listen", "127.0.0.1:" + std::to_string(ill.port())});
  EXPECT_EQ(code, 1);
  EXPECT_THAT(text, HasSubstr("the votes cannot be read or kept just now"));
}

TEST_F(Operator, learnsWhenTheCertificateEnds) {
  const CertificateFiles files{folder.file("certificate.pem"), folder.file("key.pem")};
  makeCertificate(files, 1, std::chrono::hours{10 * 24 + 12});
  TallyServer server{store, {"--certificate", files.certificate, "--key", files.key}};
  EXPECT_THAT(server.process().waitForLine("\"certificate\""), HasSubstr("ends in 10 days"));
  EXPECT_THAT((HttpClient{server.port(), HttpClient::Security::tls}.get("/metrics").body),
              HasSubstr("mivo_tally_certificate_days 10\n"));
  makeCertificate(files, 2, -std::chrono::hours{12});
  server.process().send(SIGHUP);
  server.process().waitForLine("has ended");
}

TEST_F(Operator, boundsTheVotesOfADay) {
  TallyServer server{store, {"--votes-per-day", "2"}};
  HttpClient client{server.port()};
  for (int i = 0; i < 2; ++i) EXPECT_EQ(client.get("/add/a/feature1?delta=1").status, 200U);
  const auto refused = client.get("/add/a/feature1?delta=1");
  EXPECT_EQ(refused.status, 429U);
  EXPECT_THAT(refused.body, HasSubstr("has voted for this feature enough today"));
  EXPECT_THAT(std::stoi(refused.headers.at("retry-after")), testing::AllOf(testing::Gt(0), testing::Le(86'400)));
  EXPECT_EQ(client.get("/add/a/feature1?delta=-1").status, 200U);
  EXPECT_EQ(client.get("/add/a/feature2?delta=1").status, 200U);
}

TEST_F(Operator, correctsACounterWhileTheServerHasIt) {
  TallyServer server{store};
  HttpClient client{server.port()};
  EXPECT_EQ(countOf(client.get("/add/a/feature1?delta=1")), 1);
  EXPECT_EQ(said({"correct", "--store", store, "a/feature1", "-40"}), (Said{0, "a/feature1: 1 -> -40\n"}));
  EXPECT_TRUE(eventually([&] { return countOf(client.get("/get/a/feature1")) == -40; }));
  EXPECT_EQ(countOf(client.get("/add/a/feature1?delta=1")), -39);
  EXPECT_EQ(said({"correct", "--store", store, "a/feature2", "7"}), (Said{0, "a/feature2: no votes -> 7\n"}));
  EXPECT_EQ(said({"correct", "--store", store, "a/2", "7"}),
            (Said{2, "mivo-tally: a/2: the counter must be named NAMESPACE/featureID\n"}));
  EXPECT_EQ(said({"correct", "--store", store + "x", "a/feature1", "7"}),
            (Said{1, "mivo-tally: " + file + "x: there is no such database\n"}));
}

TEST_F(Operator, correctsACounterInRedisAndKeepsItsPasswordOffTheCommandLine) {
  const RedisServer redis{{.password = "secret", .certificate = {}}};
  const auto address = redis.address();
  const auto bare = "redis://" + address.substr(address.find('@') + 1);
  const auto passwordFile = folder.file("password");
  std::ofstream{passwordFile} << "secret\n";
  EXPECT_EQ(said({"correct", "--store", bare, "--redis-password-file", passwordFile, "a/feature1", "7"}),
            (Said{0, "a/feature1: no votes -> 7\n"}));
  ChildProcess fromVariable{
      {"env", "MIVO_TALLY_REDIS_PASSWORD=secret", tallyProgram(), "correct", "--store", bare, "a/feature1", "8"}};
  EXPECT_EQ(fromVariable.wait(), 0);
  EXPECT_EQ(fromVariable.output(), "a/feature1: 7 -> 8\n");
  EXPECT_THAT(said({"correct", "--store", bare, "a/feature1", "8"}).second, HasSubstr("NOAUTH"));
  EXPECT_THAT(said({"--store", address, "--redis-password-file", passwordFile}).second, HasSubstr("in one"));
  const auto blank = folder.file("blank");
  std::ofstream{blank} << "\nsecret\n";
  for (const std::string& wrong : {std::string{"/no/password"}, blank})
    EXPECT_THAT(said({"--store", bare, "--redis-password-file", wrong}).second,
                HasSubstr(wrong + ": expected a line with the password"));
  TallyServer told{address};
  EXPECT_THAT(told.process().waitForLine("can read a password"), Not(HasSubstr("secret")));
}

TEST_F(Operator, choosesWhichRequestsAreLogged) {
  const auto linesWith = [](TallyServer& server, const std::string& text) {
    server.process().send(SIGTERM);
    server.process().wait();
    const auto all = server.process().output();
    int lines = 0;
    for (auto at = all.find(text); at != std::string::npos; at = all.find(text, at + 1)) ++lines;
    return lines;
  };
  const auto ask = [](TallyServer& server) {
    HttpClient client{server.port()};
    for (int i = 0; i < 10; ++i) client.get("/health");
    client.get("/nowhere");
  };
  TallyServer sampled{store, {"--log-one-in", "5", "--drain-seconds", "1"}};
  ask(sampled);
  EXPECT_EQ(linesWith(sampled, "\"target\":\"/health\",\"status\":200"), 2);
  EXPECT_THAT(sampled.process().output(), HasSubstr(",\"oneIn\":5}"));
  EXPECT_THAT(sampled.process().output(), HasSubstr("/nowhere"));
  TallyServer warning{store, {"--log-level", "warning"}};
  ask(warning);
  EXPECT_EQ(linesWith(warning, "\"target\""), 1);
  TallyServer error{store, {"--log-level", "error"}};
  ask(error);
  EXPECT_EQ(linesWith(error, "\"target\""), 0);
}

// As the service manager starts it: the socket is descriptor 3, and a variable says for whom.
TEST_F(Operator, handsASocketOver) {
  const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), size), 0);
  ASSERT_EQ(::listen(socket, 10), 0);
  ASSERT_EQ(::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size), 0);
  const auto port = ntohs(address.sin_port);
  const std::vector<std::string> manager{
      "sh", "-c", "exec 3<&" + std::to_string(socket) + "; LISTEN_PID=$$ LISTEN_FDS=1 exec \"$@\"", "sh"};
  {
    HttpClient early{port};  // waits in the queue of the socket
    TallyServer server{store, {}, manager};
    EXPECT_EQ(server.port(), port);
    EXPECT_EQ(early.get("/add/a/feature1?delta=1", {"Connection: close"}).status, 200U);
    server.process().send(SIGTERM);
    EXPECT_EQ(server.process().wait(), 0);
  }
  HttpClient between{port};  // nobody is there, and nobody is refused
  TallyServer again{store, {}, manager};
  EXPECT_EQ(countOf(between.get("/get/a/feature1")), 1);
  ::close(socket);
  ChildProcess nothing{{"sh", "-c", "exec 3</dev/null; LISTEN_PID=$$ LISTEN_FDS=1 exec \"$0\"", tallyProgram()}};
  EXPECT_EQ(nothing.wait(), 2);
  EXPECT_THAT(nothing.output(), HasSubstr("must hand over one socket, and one that listens"));
}

}  // namespace
}  // namespace mivo::tally::test
