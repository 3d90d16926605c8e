// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/TallyServer.h"

namespace mivo::tally::test {
namespace {

using testing::HasSubstr;

struct Fixture : testing::Test {
  std::string store() const { return "sqlite:" + folder.file("tally.sqlite"); }
  tests::TemporaryFolder folder;
};

using ServerTest = Fixture;

TEST_F(ServerTest, countsUpAndDownAndKeepsTheCount) {
  {
    TallyServer server{store()};
    HttpClient client{server.port()};
    EXPECT_EQ(client.get("/get/app.example/feature12").body, R"({"value":0})");
    EXPECT_EQ(client.get("/add/app.example/feature12?delta=1").body, R"({"value":1})");
    EXPECT_EQ(client.get("/add/app.example/feature12?delta=1").body, R"({"value":2})");
    EXPECT_EQ(client.get("/add/app.example/feature12?delta=-1").body, R"({"value":1})");
    EXPECT_EQ(client.get("/add/app.example/feature13?delta=-1").body, R"({"value":-1})");
    EXPECT_EQ(client.get("/get/app.example/feature12").headers.at("cache-control"), "no-store");
  }
  TallyServer again{store()};
  EXPECT_EQ(countOf(HttpClient{again.port()}.get("/get/app.example/feature12")), 1);
}

struct AnswerRow {
  const char* name;
  const char* method;
  const char* target;
  std::vector<std::string> headers;
  unsigned status;
  const char* body;
};
void PrintTo(const AnswerRow& row, std::ostream* out) { *out << row.name; }

// One server for all rows, which are independent of each other.
class Answers : public testing::TestWithParam<AnswerRow> {
 public:
  static void SetUpTestSuite() {
    folder = std::make_unique<tests::TemporaryFolder>();
    server = std::make_unique<TallyServer>("sqlite:" + folder->file("tally.sqlite"),
                                           std::vector<std::string>{"--allow-origin", "https://app.example"});
  }
  static void TearDownTestSuite() {
    server.reset();
    folder.reset();
  }
  static std::uint16_t port() { return server->port(); }

 private:
  static std::unique_ptr<tests::TemporaryFolder> folder;
  static std::unique_ptr<TallyServer> server;
};
std::unique_ptr<tests::TemporaryFolder> Answers::folder;
std::unique_ptr<TallyServer> Answers::server;

TEST_P(Answers, areAsTheRowSaysAndOnlyAVoteCounts) {
  HttpClient client{port()};
  const auto counter = "/get/rows/feature" + std::string{GetParam().name};
  const auto target = GetParam().target + std::string{GetParam().name} + "?delta=1";
  const bool isVote = std::string_view{GetParam().target}.starts_with("/add/");
  const auto answer = client.request(GetParam().method, isVote ? target : GetParam().target, GetParam().headers);
  EXPECT_EQ(answer.status, GetParam().status);
  EXPECT_THAT(answer.body, HasSubstr(GetParam().body));
  EXPECT_EQ(countOf(HttpClient{port()}.get(counter)), isVote && GetParam().status == 200 ? 1 : 0);
}

constexpr auto vote = "/add/rows/feature";

INSTANTIATE_TEST_SUITE_P(
    Rows, Answers,
    testing::Values(
        AnswerRow{"plainVote", "GET", vote, {}, 200, R"({"value":1})"},
        AnswerRow{"headVote", "HEAD", vote, {}, 405, ""},
        AnswerRow{"headCount", "HEAD", "/get/a/feature1", {}, 200, ""},
        AnswerRow{"post", "POST", vote, {}, 405, "only GET and HEAD are understood"},
        AnswerRow{"prefetch", "GET", vote, {"Sec-Purpose: prefetch;prerender"}, 403, "a prefetch does not vote"},
        AnswerRow{"foreignOrigin", "GET", vote, {"Origin: https://evil.example"}, 403, "a page of another site"},
        AnswerRow{"foreignImage", "GET", vote, {"Sec-Fetch-Site: cross-site"}, 403, "a page of another site"},
        AnswerRow{"sameSiteImage", "GET", vote, {"Sec-Fetch-Site: same-site"}, 403, "a page of another site"},
        AnswerRow{"foreignReferer", "GET", vote, {"Referer: https://evil.example/"}, 403, "a page of another site"},
        AnswerRow{"robots", "GET", "/robots.txt", {}, 200, "Disallow: /"},
        AnswerRow{"allowedOrigin", "GET", vote, {"Origin: https://app.example"}, 200, R"({"value":1})"},
        AnswerRow{"ownOrigin", "GET", vote, {"Origin: http://localhost"}, 200, R"({"value":1})"},
        AnswerRow{"body", "GET", vote, {"Content-Length: 5"}, 413, "a request must not have a body"},
        AnswerRow{"longHeader", "GET", vote, {"X: " + std::string(9000, 'x')}, 431, "8192 bytes"},
        AnswerRow{"nowhere", "GET", "/nowhere", {}, 404, "there is nothing at this path"},
        AnswerRow{"health", "GET", "/health", {}, 200, R"({"status":"ok"})"},
        AnswerRow{"metrics", "GET", "/metrics", {}, 200, "mivo_tally_votes_total{delta=\"1\"}"},
        AnswerRow{"exampleRoadmap", "GET", "/data/roadmap-mivo.json", {}, 200, "\"planned\""}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST_F(Answers, letAllowedPagesRead) {
  HttpClient client{port()};
  const auto allowed = client.get("/get/a/feature1", {"Origin: https://app.example"});
  EXPECT_EQ(allowed.headers.at("access-control-allow-origin"), "https://app.example");
  EXPECT_EQ(allowed.headers.at("vary"), "Origin");
  EXPECT_FALSE(
      client.get("/get/a/feature1", {"Origin: https://b.example"}).headers.contains("access-control-allow-origin"));
}

TEST_F(ServerTest, answersPipelinedRequestsInOrder) {
  TallyServer server{store()};
  HttpClient client{server.port()};
  constexpr int rounds = 300;
  std::string all;
  for (int i = 0; i < rounds; ++i)
    all +=
        "GET /add/a/feature1?delta=1 HTTP/1.1\r\nHost: localhost\r\n\r\nGET /get/a/feature1 HTTP/1.1\r\nHost: h\r\n\r\n"
        "HEAD /health HTTP/1.1\r\nHost: h\r\n\r\n";
  client.send(all);
  for (int i = 1; i <= rounds; ++i) {
    ASSERT_EQ(countOf(client.receive()), i);
    ASSERT_EQ(countOf(client.receive()), i);
    ASSERT_EQ(client.receive(false).headers.at("content-length"), "15");
  }
}

TEST_F(ServerTest, sendsManyLargeAnswersToASlowReader) {
  const auto roadmap = folder.file("roadmap.json");
  std::ofstream{roadmap} << R"([{"id": 1, "title": ")" << std::string(300'000, 'x') << "\"}]";
  TallyServer server{store(), {"--roadmap", roadmap}};
  HttpClient client{server.port()};
  constexpr int times = 40;
  for (int i = 0; i < times; ++i) client.send("GET /data/roadmap-mivo.json HTTP/1.1\r\nHost: h\r\n\r\n");
  EXPECT_EQ(countOf(HttpClient{server.port()}.get("/get/a/feature1")), 0);  // while the first is stuffed
  for (int i = 0; i < times; ++i) ASSERT_EQ(client.receive().body.size(), 300'024U);
}

TEST_F(ServerTest, countsTheFeaturesOfItsRoadmapOnly) {
  const auto roadmap = folder.file("roadmap.json");
  std::ofstream{roadmap} << R"([{"id": 1, "title": "One"}, {"id": "two", "title": "Two"}])";
  {
    TallyServer server{store(), {"--roadmap", roadmap, "--max-counters", "2"}};
    HttpClient client{server.port()};
    EXPECT_EQ(client.get("/add/a/feature1?delta=1").status, 200U);
    EXPECT_EQ(client.get("/add/a/featuretwo?delta=1").status, 200U);
    EXPECT_EQ(client.get("/add/a/feature3?delta=1").status, 404U);
    EXPECT_EQ(client.get("/add/b/feature1?delta=1").status, 409U) << "a third counter";
    EXPECT_EQ(countOf(client.get("/get/a/feature3")), 0);
  }
  TallyServer open{store(), {"--roadmap", roadmap, "--any-counter"}};
  EXPECT_EQ(HttpClient{open.port()}.get("/add/a/feature3?delta=1").status, 200U);
}

TEST_F(ServerTest, endsAConnectionAsTheClientAsks) {
  TallyServer server{store()};
  HttpClient oldClient{server.port()};
  oldClient.send("GET /health HTTP/1.0\r\n\r\n");
  EXPECT_THAT(oldClient.receiveAll(), HasSubstr("Connection: close\r\n\r\n{\"status\":\"ok\"}"));
  HttpClient closing{server.port()};
  EXPECT_EQ(closing.get("/health", {"Connection: close"}).headers.at("connection"), "close");
  EXPECT_EQ(closing.receiveAll(), "");
}

// A page whose own name leads to this machine is of the same origin for a browser.
TEST_F(ServerTest, votesUnderItsOwnNamesOnly) {
  const std::string beginning = "GET /add/a/feature1?delta=1 HTTP/1.1\r\nHost: ";
  const std::string page = "evil.example:8787\r\nOrigin: http://evil.example:8787\r\n\r\n";
  const auto statusOf = [&](TallyServer& server, const std::string& rest) {
    HttpClient client{server.port()};
    client.send(beginning + rest);
    return client.receive().status;
  };
  TallyServer own{store()};
  EXPECT_EQ(statusOf(own, page), 421U);
  EXPECT_EQ(statusOf(own, "evil.example\r\n\r\n"), 421U);
  EXPECT_EQ(statusOf(own, "127.0.0.1\r\n\r\n"), 200U);
  TallyServer named{"sqlite:" + folder.file("named.sqlite"), {"--host", "tally.example,other.example"}};
  EXPECT_EQ(statusOf(named, "Other.example\r\n\r\n"), 200U);
  EXPECT_EQ(statusOf(named, "localhost\r\n\r\n"), 421U);
  TallyServer everywhere{"sqlite:" + folder.file("everywhere.sqlite"), {"--listen", "0.0.0.0:0", "--allow-plain-http"}};
  EXPECT_EQ(statusOf(everywhere, page), 421U);
  EXPECT_EQ(statusOf(everywhere, "tally.example\r\n\r\n"), 200U) << "an app, and no page";
}

TEST_F(ServerTest, givesAnIPv6SiteTenTimesTheVotesOfAHousehold) {
  TallyServer server{store(), {"--votes-per-minute", "1", "--trust-forwarded-for", "192.0.2.0/24,127.0.0.0/8"}};
  HttpClient client{server.port()};
  const auto voteOf = [&](const std::string& household) {
    return client.get("/add/a/feature1?delta=1", {"X-Forwarded-For: 2001:db8:1:" + household + "::1"}).status;
  };
  for (int household = 1; household <= 10; ++household) EXPECT_EQ(voteOf(std::to_string(household)), 200U);
  EXPECT_EQ(voteOf("11"), 429U);
}

TEST_F(ServerTest, believesForwardedAddressesOfTheNamedProxiesOnly) {
  TallyServer server{store(), {"--votes-per-minute", "1", "--trust-forwarded-for", "192.0.2.0/24"}};
  HttpClient client{server.port()};
  EXPECT_EQ(client.get("/add/a/feature1?delta=1", {"X-Forwarded-For: 198.51.100.1"}).status, 200U);
  EXPECT_EQ(client.get("/add/a/feature1?delta=1", {"X-Forwarded-For: 198.51.100.2"}).status, 429U);
}

TEST_F(ServerTest, limitsTheVotesOfAnAddressOnly) {
  TallyServer server{store(), {"--votes-per-minute", "3", "--trust-forwarded-for"}};
  server.process().waitForLine("believes loopback and private addresses");
  HttpClient client{server.port()};
  const auto voteAs = [&](const std::string& address) {
    return client.get("/add/a/feature1?delta=1", {"X-Forwarded-For: 9.9.9.9, " + address}).status;
  };
  for (int i = 0; i < 3; ++i) EXPECT_EQ(voteAs("192.0.2.1"), 200U);
  const auto refused = client.get("/add/a/feature1?delta=1", {"X-Forwarded-For: 192.0.2.1"});
  EXPECT_EQ(refused.status, 429U);
  EXPECT_GT(std::stoi(refused.headers.at("retry-after")), 0);
  EXPECT_EQ(voteAs("192.0.2.2"), 200U);
  EXPECT_EQ(countOf(client.get("/get/a/feature1", {"X-Forwarded-For: 192.0.2.1"})), 4);
}

TEST_F(ServerTest, doesNotBelieveAForwardedAddressUntold) {
  TallyServer server{store(), {"--votes-per-minute", "1"}};
  HttpClient client{server.port()};
  EXPECT_EQ(client.get("/add/a/feature1?delta=1", {"X-Forwarded-For: 192.0.2.1"}).status, 200U);
  EXPECT_EQ(client.get("/add/a/feature1?delta=1", {"X-Forwarded-For: 192.0.2.2"}).status, 429U);
}

TEST_F(ServerTest, logsALineARequestWithoutAddresses) {
  TallyServer server{store()};
  HttpClient{server.port()}.get("/get/app.example/feature12");
  const auto line = server.process().waitForLine("feature12");
  EXPECT_THAT(line, HasSubstr(R"("method":"GET","target":"/get/app.example/feature12","status":200,"microseconds":)"));
  EXPECT_EQ(line.find("127.0.0.1"), std::string::npos);
  TallyServer telling{"sqlite:" + folder.file("other.sqlite"), {"--log-addresses"}};
  HttpClient{telling.port()}.get("/get/app.example/feature12");
  EXPECT_THAT(telling.process().waitForLine("feature12"), HasSubstr(R"("address":"127.0.0.1")"));
}

TEST_F(ServerTest, cutsOffWhoTakesTooLong) {
  TallyServer server{store(), {"--request-seconds", "2", "--idle-seconds", "2"}};
  HttpClient slow{server.port()};
  slow.send("GET /get/a/feature1 HT");
  HttpClient idle{server.port()};
  EXPECT_EQ(idle.get("/health").status, 200U);
  EXPECT_THAT(slow.receiveAll(), HasSubstr("408 Request Timeout"));
  EXPECT_EQ(idle.receiveAll(), "");
}

// A reset could take the answer with it.
TEST_F(ServerTest, readsAwayWhatComesAfterARefusal) {
  TallyServer server{store()};
  HttpClient client{server.port()};
  client.send("GET /get/a/feature1 HTTP/1.1\r\nHost: h\r\nContent-Length: 200000\r\n\r\n");
  EXPECT_EQ(client.receive().status, 413U);
  for (int piece = 0; piece < 20; ++piece) client.send(std::string(10'000, 'x'));
}

// The beginning of the next request came with the one before; that others time out says that a second has passed.
TEST_F(ServerTest, givesEachRequestOfAConnectionItsTime) {
  TallyServer server{store(), {"--request-seconds", "60", "--idle-seconds", "1"}};
  HttpClient begun{server.port()};
  begun.send("GET /health HTTP/1.1\r\nHost: h\r\n\r\nGET /get/a/feature1 HT");
  EXPECT_EQ(begun.receive().status, 200U);
  HttpClient idle{server.port()};
  EXPECT_EQ(idle.get("/health").status, 200U);
  EXPECT_EQ(idle.receiveAll(), "");
  begun.send("TP/1.1\r\nHost: h\r\n\r\n");
  EXPECT_EQ(countOf(begun.receive()), 0);
}

// Whatever is sent, the server lives, and the counters move by exactly the votes it answered with 200.
TEST_F(ServerTest, outlivesGarbage) {
  TallyServer server{store()};
  std::mt19937 random{7};
  const auto below = [&](std::size_t end) { return std::uniform_int_distribution<std::size_t>{0, end - 1}(random); };
  constexpr std::string_view original =
      "GET /add/a/feature1?delta=1 HTTP/1.1\r\nHost: localhost\r\nContent-Length: 0\r\n\r\n";
  int votes = 0;
  for (int i = 0; i < 2000; ++i) {
    std::string bytes{original};
    for (auto times = 1 + below(3); times > 0; --times) bytes[below(bytes.size())] = static_cast<char>(below(256));
    HttpClient client{server.port()};
    client.send(bytes + std::string{original});
    client.finishSending();
    const auto answers = client.receiveAll();
    for (auto at = answers.find("{\"value\""); at != std::string::npos; at = answers.find("{\"value\"", at + 1))
      ++votes;
  }
  HttpClient client{server.port()};
  EXPECT_THAT(client.get("/metrics").body,
              HasSubstr("mivo_tally_votes_total{delta=\"1\"} " + std::to_string(votes) + '\n'));
  EXPECT_GT(votes, 0);
}

}  // namespace
}  // namespace mivo::tally::test
