// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "adapters/curl/CurlURLSession.h"
#include "adapters/json/NlohmannDecoder.h"
#include "adapters/system/Awaited.h"
#include "mivo/roadmap/FeatureVoterTallyAPI.h"
#include "mivo/roadmap/JSONDataFetcher.h"
#include "mivo/roadmap/RoadmapFeatureVotingCount.h"
#include "tests/http/HttpServer.h"
#include "tests/support/FixedClients.h"
#include "tests/support/Threads.h"

namespace mivo {
namespace {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct RecordedLog : LogOutput {
  void print(std::string_view line) const override {
    const std::scoped_lock lock{mutex};
    lines += line;
    lines += '\n';
  }
  std::string taken() const {
    const std::scoped_lock lock{mutex};
    return std::exchange(lines, {});
  }
  mutable std::string lines;
  mutable std::mutex mutex;
};

std::int64_t fetched(const FeatureVoter& voter, const RoadmapFeature& feature) {
  return adapters::awaited<std::int64_t>([&](auto completion) { voter.fetch(feature, {}, completion); });
}

std::optional<std::int64_t> voted(const FeatureVoter& voter, const RoadmapFeature& feature) {
  return adapters::awaited<std::optional<std::int64_t>>([&](auto completion) { voter.vote(feature, completion); });
}

std::optional<std::int64_t> unvoted(const FeatureVoter& voter, const RoadmapFeature& feature) {
  return adapters::awaited<std::optional<std::int64_t>>([&](auto completion) { voter.unvote(feature, completion); });
}

class VoteClient : public testing::Test {
 protected:
  void serve(std::function<tests::HttpReply(const std::string&)> handler) {
    server = std::make_unique<tests::HttpServer>(std::move(handler));
    dependencies->servers.tally = server->address();
  }

  static std::shared_ptr<Dependencies> made() {
    auto dependencies = std::make_shared<Dependencies>(tests::fixedDependencies());
    dependencies->jsonDecoder = std::make_shared<adapters::NlohmannDecoder>();
    return dependencies;
  }

  void useSession(adapters::CurlURLSession::Options options) {
    dependencies->urlSession = std::make_shared<adapters::CurlURLSession>(std::move(options));
  }

  std::shared_ptr<Dependencies> dependencies = made();
  std::shared_ptr<const RecordedLog> log = std::make_shared<RecordedLog>();
  std::unique_ptr<tests::HttpServer> server;
  const RoadmapFeature feature{"12", "Water log", "", "planned"};
  const FeatureVoterTallyAPI voter{"app.example"};
  const DependencyScope scope = [this] {
    dependencies->log = log;
    useSession({.timeLimit = 10s});
    return DependencyScope{dependencies};
  }();
};

TEST_F(VoteClient, composesAddressesByPlainConcatenation) {
  serve([](const std::string&) { return tests::ok(R"({"value": 7})"); });
  EXPECT_EQ(fetched(voter, feature), 7);
  EXPECT_EQ(voted(voter, feature), 7);
  EXPECT_EQ(unvoted(voter, feature), 7);
  EXPECT_THAT(server->targets(), ElementsAre("/get/app.example/feature12", "/add/app.example/feature12?delta=1",
                                             "/add/app.example/feature12?delta=-1"));
  EXPECT_EQ(server->connectionCount(), 3) << "each vote on its own, where nothing is sent twice";
  EXPECT_EQ(log->taken(),
            "Successfully voted, count is now: Optional(7)\nSuccessfully voted, count is now: Optional(7)\n");
}

struct AnswerRow {
  const char* name;
  tests::HttpReply reply;
  std::int64_t fetched;
  std::optional<std::int64_t> voted;
  const char* fetchLog;  ///< "#" stands for the address
  const char* voteLog;
};
void PrintTo(const AnswerRow& row, std::ostream* out) { *out << row.name; }
class VoteAnswer : public VoteClient, public testing::WithParamInterface<AnswerRow> {};

std::string replaced(std::string text, const std::string& address) {
  for (std::size_t at = text.find('#'); at != std::string::npos; at = text.find('#')) text.replace(at, 1, address);
  return text;
}

TEST_P(VoteAnswer, isACountOrItsNeutralResultAndALine) {
  const AnswerRow& row = GetParam();
  serve([&row](const std::string&) { return row.reply; });
  EXPECT_EQ(fetched(voter, feature), row.fetched);
  EXPECT_EQ(log->taken(), replaced(row.fetchLog, server->address() + "/get/app.example/feature12"));
  EXPECT_EQ(voted(voter, feature), row.voted);
  EXPECT_EQ(log->taken(), replaced(row.voteLog, server->address() + "/add/app.example/feature12?delta=1"));
}

constexpr const char* votedNil = "Successfully voted, count is now: nil\n";
constexpr const char* noObject =
    "DecodingError(\"the tally's answer: expected an object\")\n"
    "Fetching voting count failed with error: the tally's answer: expected an object\n";
constexpr const char* noNumber =
    "DecodingError(\"the tally's answer: value: expected a whole number\")\n"
    "Fetching voting count failed with error: the tally's answer: value: expected a whole number\n";
constexpr const char* voteNoNumber = "Voting failed: the tally's answer: value: expected a whole number\n";

INSTANTIATE_TEST_SUITE_P(
    Rows, VoteAnswer,
    testing::Values(AnswerRow{"negative", tests::ok(R"({"value": -3})"), -3, -3, "",
                              "Successfully voted, count is now: Optional(-3)\n"},
                    AnswerRow{"largest", tests::ok(R"({"value": 9223372036854775807})"), INT64_MAX, INT64_MAX, "",
                              "Successfully voted, count is now: Optional(9223372036854775807)\n"},
                    AnswerRow{"moreMembers", tests::ok(R"({"key": "a", "value": 1})"), 1, 1, "",
                              "Successfully voted, count is now: Optional(1)\n"},
                    AnswerRow{"noValue", tests::ok("{}"), 0, std::nullopt, "", votedNil},
                    AnswerRow{"nullValue", tests::ok(R"({"value": null})"), 0, std::nullopt, "", votedNil},
                    AnswerRow{"null", tests::ok("null"), 0, std::nullopt, noObject,
                              "Voting failed: the tally's answer: expected an object\n"},
                    AnswerRow{"hugeNumber", tests::ok(R"({"value": 99999999999999999999999})"), 0, std::nullopt,
                              noNumber, voteNoNumber},
                    AnswerRow{"fraction", tests::ok(R"({"value": 7.5})"), 0, std::nullopt, noNumber, voteNoNumber},
                    AnswerRow{"text", tests::ok(R"({"value": "7"})"), 0, std::nullopt, noNumber, voteNoNumber},
                    AnswerRow{"notFound", tests::status(404, "<html>"), 0, std::nullopt,
                              "URLError(\"#: the server answered 404\")\n"
                              "Fetching voting count failed with error: #: the server answered 404\n",
                              "Voting failed: #: the server answered 404\n"},
                    AnswerRow{"serverError", tests::status(500, R"({"value": 7})"), 0, std::nullopt,
                              "URLError(\"#: the server answered 500\")\n"
                              "Fetching voting count failed with error: #: the server answered 500\n",
                              "Voting failed: #: the server answered 500\n"}),
    [](const auto& row) { return std::string{row.param.name}; });

struct FailureRow {
  const char* name;
  tests::HttpReply reply;
};
void PrintTo(const FailureRow& row, std::ostream* out) { *out << row.name; }
class VoteFailure : public VoteClient, public testing::WithParamInterface<FailureRow> {};

/// Where the sentence is that of a library.
TEST_P(VoteFailure, isSaidAndNeutral) {
  serve([](const std::string&) { return GetParam().reply; });
  useSession({.timeLimit = GetParam().reply.then == tests::HttpReply::Then::hangs ? Duration{50ms} : Duration{10s}});
  EXPECT_EQ(fetched(voter, feature), 0);
  EXPECT_THAT(log->taken(), HasSubstr("\nFetching voting count failed with error: "));
  EXPECT_EQ(unvoted(voter, feature), std::nullopt);
  EXPECT_THAT(log->taken(), StartsWith("Voting failed: "));
}

INSTANTIATE_TEST_SUITE_P(Rows, VoteFailure,
                         testing::Values(FailureRow{"html", tests::ok("<html><body>Sign in</body></html>")},
                                         FailureRow{"empty", tests::ok("")},
                                         FailureRow{"cutInMidAnswer", tests::cutOff(R"({"value": 7})")},
                                         FailureRow{"neverAnswers", tests::silence()},
                                         FailureRow{"nonsense", {"\x16\x03\x01\n", tests::HttpReply::Then::closes}}),
                         [](const auto& row) { return std::string{row.param.name}; });

struct HostileAnswer final : URLSession {
  void data(std::string_view, StopToken, Completion<std::string> completion) const override {
    completion(std::make_exception_ptr(URLError{"\x1B[2J\x7F\xC2\x80\xC2\x9F\xC2\xA0\xC3\x9F\nfound"}));
  }
};

TEST_F(VoteClient, whatOthersSayDoesNotCommandTheTerminal) {
  dependencies->servers.tally = "https://tally.example";
  dependencies->urlSession = std::make_shared<HostileAnswer>();
  EXPECT_EQ(voted(voter, feature), std::nullopt);
  EXPECT_EQ(log->taken(), "Voting failed: \\x1b[2J\\x7f\\x80\\x9f\xC2\xA0\xC3\x9F\nfound\n");
}

/// Answers when the test says so.
struct LateAnswer final : URLSession {
  void data(std::string_view, StopToken, Completion<std::string> completion) const override {
    asked.push_back(std::move(completion));
  }
  mutable std::vector<Completion<std::string>> asked;
};

TEST_F(VoteClient, isAnsweredLaterOnAThreadThatKnowsNoDependencies) {
  const auto late = std::make_shared<const LateAnswer>();
  dependencies->servers.tally = "https://tally.example";
  dependencies->urlSession = late;
  std::vector<std::optional<std::int64_t>> counts;
  voter.vote(feature, [&counts](std::optional<std::int64_t> count) { counts.push_back(count); });
  voter.fetch(feature, {}, [&counts](std::int64_t count) { counts.emplace_back(count); });
  EXPECT_THAT(counts, IsEmpty());
  std::thread{[&late] {
    late->asked[0](std::string{R"({"value": 7})"});
    late->asked[1](std::make_exception_ptr(URLError{"no connection"}));
  }}.join();
  late->asked.clear();  // they hold the dependencies, which hold what was asked
  EXPECT_THAT(counts, ElementsAre(7, 0));
  EXPECT_EQ(log->taken(),
            "Successfully voted, count is now: Optional(7)\n"
            "URLError(\"no connection\")\nFetching voting count failed with error: no connection\n");
}

TEST_F(VoteClient, anExpiredCertificateIsRefused) {
  constexpr long day = 86400;
  const auto identity = tests::TlsIdentity::make(-2 * day, -day);
  const std::filesystem::path authorities = testing::TempDir() + "vote-client-authorities.pem";
  std::ofstream{authorities} << identity.certificatePem;
  const tests::HttpServer expired{[](const std::string&) { return tests::ok(R"({"value": 7})"); }, identity};
  dependencies->servers.tally = expired.address();
  useSession({.timeLimit = 10s, .certificateAuthorities = authorities});
  EXPECT_EQ(voted(voter, feature), std::nullopt);
  EXPECT_THAT(log->taken(), AllOf(StartsWith("Voting failed: " + expired.address()), HasSubstr("expired")));
  EXPECT_THAT(expired.targets(), IsEmpty());
}

TEST_F(VoteClient, nobodyListens) {
  serve([](const std::string&) { return tests::ok(""); });
  server.reset();
  EXPECT_EQ(fetched(voter, feature), 0);
  EXPECT_EQ(voted(voter, feature), std::nullopt);
  EXPECT_THAT(log->taken(), HasSubstr("Voting failed: " + dependencies->servers.tally + "/add/app.example/feature12"));
}

struct AddressRow {
  const char *name, *tally, *namespaceName, *id;
};
void PrintTo(const AddressRow& row, std::ostream* out) { *out << row.name; }
class InvalidAddress : public VoteClient, public testing::WithParamInterface<AddressRow> {};

TEST_P(InvalidAddress, asksNobody) {
  const AddressRow& row = GetParam();
  dependencies->servers.tally = row.tally;
  const FeatureVoterTallyAPI odd{row.namespaceName};
  const RoadmapFeature asked{row.id, "", "", ""};
  const std::string counter = std::string{row.namespaceName} + "/feature" + row.id;
  EXPECT_EQ(fetched(odd, asked), 0);
  EXPECT_EQ(log->taken(), "invalidURL\nFetching voting count failed with error: The address \"" +
                              std::string{row.tally} + "/get/" + counter + "\" is not valid.\n");
  EXPECT_EQ(voted(odd, asked), std::nullopt);
  EXPECT_EQ(log->taken(), "Voting failed: The address \"" + std::string{row.tally} + "/add/" + counter +
                              "?delta=1\" is not valid.\n");
}

INSTANTIATE_TEST_SUITE_P(Rows, InvalidAddress,
                         testing::Values(AddressRow{"noServer", "", "app", "1"},
                                         AddressRow{"noScheme", "tally.example", "app", "1"},
                                         AddressRow{"noHost", "https://", "app", "1"},
                                         AddressRow{"digitFirst", "1h://tally.example", "app", "1"},
                                         AddressRow{"blank", "https://tally.example", "my app", "1"},
                                         AddressRow{"umlaut", "https://tally.example", "äpp", "1"},
                                         AddressRow{"percent", "https://tally.example", "50%", "1"},
                                         AddressRow{"angleBrackets", "https://tally.example", "app", "<1>"},
                                         AddressRow{"lineBreak", "https://tally.example", "app", "1\n2"}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST_F(VoteClient, oddButValidNamesAreSentAsTheyAre) {
  serve([](const std::string&) { return tests::ok(R"({"value": 1})"); });
  for (const char* name : {"a.b-c_d~e", "%C3%A4pp", "%9fpp", "%FApp", "a/b", "a+b;c=d,e!f"})
    fetched(FeatureVoterTallyAPI{name}, feature);
  EXPECT_THAT(server->targets(),
              ElementsAre("/get/a.b-c_d~e/feature12", "/get/%C3%A4pp/feature12", "/get/%9fpp/feature12",
                          "/get/%FApp/feature12", "/get/a/b/feature12", "/get/a+b;c=d,e!f/feature12"));
}

TEST_F(VoteClient, featuresAreAskedBesideEachOther) {
  constexpr std::size_t count = 6;
  serve([](const std::string& target) { return tests::ok("{\"value\": " + target.substr(target.size() - 1) + "}"); });
  std::vector<std::int64_t> counts(count);
  {
    tests::Threads threads;
    for (std::size_t number = 0; number < count; ++number)
      threads.start([&, number] {
        const DependencyScope own{dependencies};
        counts[number] = fetched(voter, {std::to_string(number), "", "", ""});
      });
  }
  EXPECT_THAT(counts, ElementsAre(0, 1, 2, 3, 4, 5));
}

TEST(VotingCount, isWrittenOnlyWhereItIsSet) {
  EXPECT_EQ(RoadmapFeatureVotingCount{7}.encoded(), (JSONValue{JSONValue::Object{{"value", {std::int64_t{7}}}}}));
  EXPECT_EQ(RoadmapFeatureVotingCount{}.encoded(), JSONValue{JSONValue::Object{}});
  for (const RoadmapFeatureVotingCount count : {RoadmapFeatureVotingCount{7}, RoadmapFeatureVotingCount{}})
    EXPECT_EQ(RoadmapFeatureVotingCount::decoded(count.encoded()), count);
}

TEST(LogLine, goesToStandardOutputWithoutALog) {
  testing::internal::CaptureStdout();
  logLine("Successfully voted, count is now: nil");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "Successfully voted, count is now: nil\n");
}

}  // namespace
}  // namespace mivo
