// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>

#include "tally/server/Roadmap.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/TallyServer.h"
#include "tests/tally_support/Voters.h"

namespace mivo::tally::test {
namespace {

using testing::HasSubstr;

struct Fixture : testing::Test {
  std::string store() const { return "sqlite:" + folder.file("tally.sqlite"); }
  tests::TemporaryFolder folder;
};

using SignalsTest = Fixture;

TEST_F(SignalsTest, terminationFinishesTheRequestThatHasBegun) {
  TallyServer server{store()};
  HttpClient idle{server.port()};
  idle.get("/health");
  HttpClient begun{server.port()};
  begun.send("GET /add/a/feature1?delta=1 HTTP/1.1\r\nHo");
  HttpClient{server.port()}.get("/health");  // answered after the beginning was read
  server.process().send(SIGTERM);
  server.process().waitForLine("\"stopping\"");
  EXPECT_EQ(idle.receiveAll(), "");
  EXPECT_THROW(HttpClient{server.port()}, std::runtime_error);
  begun.send("st: localhost\r\n\r\n");
  const auto answer = begun.receive();
  EXPECT_EQ(countOf(answer), 1);
  EXPECT_EQ(answer.headers.at("connection"), "close");
  EXPECT_EQ(begun.receiveAll(), "");
  EXPECT_EQ(server.process().wait(), 0);
  EXPECT_THAT(server.process().output(), HasSubstr("\"stopped\""));
}

// The client has sent it, or is about to, and cannot know that the server ends.
TEST_F(SignalsTest, terminationAnswersTheNextRequestOfAKeptConnection) {
  TallyServer server{store(), {"--drain-seconds", "5"}};
  HttpClient kept{server.port()};
  kept.get("/health");
  server.process().send(SIGTERM);
  server.process().waitForLine("\"stopping\"");
  const auto last = kept.get("/add/a/feature1?delta=1");
  EXPECT_EQ(countOf(last), 1);
  EXPECT_EQ(last.headers.at("connection"), "close");
  EXPECT_EQ(kept.receiveAll(), "");
  EXPECT_EQ(server.process().wait(), 0);
}

TEST_F(SignalsTest, terminationUnderLoadLosesNoAnsweredVote) {
  std::int64_t kept = 0;
  std::int64_t unknown = 0;
  {
    TallyServer server{store()};
    Voters voters{8, "a/feature1", [&] { return server.port(); }};
    voters.waitForMore(500);
    server.process().send(SIGTERM);
    EXPECT_EQ(server.process().wait(), 0);
    const auto tally = voters.stop();
    kept = tally.kept;
    unknown = tally.unknown;
  }
  TallyServer again{store()};
  const auto count = countOf(HttpClient{again.port()}.get("/get/a/feature1"));
  EXPECT_GE(count, kept);
  EXPECT_LE(count, kept + unknown);
}

TEST_F(SignalsTest, aSecondTerminationDoesNotWait) {
  TallyServer server{store()};
  HttpClient begun{server.port()};
  begun.send("GET /health HTTP");
  HttpClient{server.port()}.get("/health");
  server.process().send(SIGTERM);
  server.process().waitForLine("\"stopping\"");
  server.process().send(SIGTERM);
  EXPECT_EQ(server.process().wait(), 0);
}

TEST_F(SignalsTest, hangUpReadsTheRoadmapAgainAndKeepsAGoodOne) {
  const auto roadmap = folder.file("roadmap.json");
  std::ofstream{roadmap} << "[]";
  TallyServer server{store(), {"--roadmap", roadmap}};
  HttpClient client{server.port()};
  EXPECT_EQ(client.get("/data/roadmap-mivo.json").body, "[]");
  const std::string two = R"([{"id": 1, "title": "One"}])";
  std::ofstream{roadmap} << two;
  server.process().send(SIGHUP);
  server.process().waitForLine("\"reloaded\"");
  EXPECT_EQ(client.get("/data/roadmap-mivo.json").body, two);
  for (const auto& [wrong, reason] : std::vector<std::pair<std::string, std::string>>{
           {"[1, 2", "roadmap.json: not JSON"},
           {R"({"id": 1})", "expected a list of features"},
           {R"([{"id": "1?delta=-1", "title": "a"}])", "feature 1: id: expected an id without"},
           {R"([{"id": "äöü", "title": "a"}])", "must be made of letters, digits, dots"},
           {R"([{"id": 1, "title": "\u001b[2J"}])", "without control characters"},
           {std::string(largestRoadmap + 1, ' '), "is larger than 1 MiB"}}) {
    std::ofstream{roadmap} << wrong;
    server.process().send(SIGHUP);
    EXPECT_THAT(server.process().waitForLine(reason), HasSubstr("\"not reloaded\""));
  }
  EXPECT_EQ(client.get("/data/roadmap-mivo.json").body, two);
}

}  // namespace
}  // namespace mivo::tally::test
