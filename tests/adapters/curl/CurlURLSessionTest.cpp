// SPDX-License-Identifier: MIT
#include "adapters/curl/CurlURLSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <latch>
#include <string>
#include <vector>

#include "adapters/system/Awaited.h"
#include "tests/http/HttpServer.h"
#include "tests/support/Threads.h"

namespace mivo::adapters {
namespace {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using tests::HttpReply;
using tests::HttpServer;

/// The body of the answer; throws its error.
std::string dataOf(const URLSession& session, const std::string& url, const StopToken& stop = {}) {
  return awaited<Answer<std::string>>([&](auto completion) { session.data(url, stop, completion); }).value();
}

/// The sentence of the error, or the answer where there was none.
std::string failureOf(const URLSession& session, const std::string& url) {
  try {
    return "no failure: " + dataOf(session, url);
  } catch (const URLError& error) {
    return error.what();
  }
}

HttpReply answered(const std::string& target) {
  if (target == "/big") return tests::ok(std::string(1001, 'x'));
  if (target == "/fits") return tests::ok(std::string(1000, 'x'));
  if (target == "/missing") return tests::status(404, "<html>not here</html>");
  if (target == "/broken") return tests::status(500);
  if (target == "/cut") return tests::cutOff("{\"value\": 7}");
  if (target == "/silent") return tests::silence();
  if (target == "/nonsense") return {"220 mail.example ready\r\n", HttpReply::Then::closes};
  if (target == "/elsewhere") return tests::redirection("/fits");
  return tests::ok("{\"asked\": \"" + target + "\"}");
}

class CurlURLSessionTest : public testing::Test {
 protected:
  HttpServer server{answered};
  CurlURLSession session{{.timeLimit = 10s, .sizeLimit = 1000}};
};

TEST_F(CurlURLSessionTest, returnsTheBodyAndKeepsTheConnection) {
  EXPECT_EQ(dataOf(session, server.address() + "/get/a/feature1?delta=-1"), R"({"asked": "/get/a/feature1?delta=-1"})");
  EXPECT_EQ(dataOf(session, server.address() + "/fits"), std::string(1000, 'x'));
  EXPECT_THAT(server.targets(), ElementsAre("/get/a/feature1?delta=-1", "/fits"));
  EXPECT_EQ(server.connectionCount(), 1);
}

// The server takes the request and is gone before it answers: whether it counted nobody knows.
TEST(CurlURLSession, sendsWhatCountsOnceWhereTheAnswerIsLost) {
  const HttpServer dying{[](const std::string& target) {
    return target == "/get" ? tests::ok("7") : HttpReply{"", HttpReply::Then::closes};
  }};
  const CurlURLSession own{{.timeLimit = 10s}};
  EXPECT_EQ(dataOf(own, dying.address() + "/get"), "7");  // leaves a connection open
  const auto answer = awaited<Answer<std::string>>(
      [&](auto completion) { own.dataSentOnce(dying.address() + "/add?delta=1", {}, completion); });
  EXPECT_THROW(answer.value(), URLError);
  EXPECT_THAT(dying.targets(), ElementsAre("/get", "/add?delta=1"));
}

struct FailureRow {
  const char *name, *path, *reason;
};
void PrintTo(const FailureRow& row, std::ostream* out) { *out << row.name; }
class CurlFailure : public CurlURLSessionTest, public testing::WithParamInterface<FailureRow> {};

TEST_P(CurlFailure, isOneSentenceThatBeginsWithTheAddress) {
  const std::string url = server.address() + GetParam().path;
  EXPECT_THAT(failureOf(session, url), AllOf(StartsWith(url + ": "), HasSubstr(GetParam().reason)));
  EXPECT_EQ(dataOf(session, server.address() + "/fits").size(), 1000u) << "the session goes on";
}

INSTANTIATE_TEST_SUITE_P(Rows, CurlFailure,
                         testing::Values(FailureRow{"notFound", "/missing", "the server answered 404"},
                                         FailureRow{"serverError", "/broken", "the server answered 500"},
                                         FailureRow{"tooLarge", "/big", "the answer is larger than 1000 bytes"},
                                         // the rest of these sentences is the library's, and changes with it
                                         FailureRow{"cutInMidAnswer", "/cut", ""},
                                         FailureRow{"notHttp", "/nonsense", ""},
                                         FailureRow{"redirectToPlainHttp", "/elsewhere", ""}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST_F(CurlURLSessionTest, givesUpOnAServerThatNeverAnswers) {
  const CurlURLSession hasty{{.timeLimit = 50ms}};
  const std::string url = server.address() + "/silent";
  EXPECT_THAT(failureOf(hasty, url), StartsWith(url + ": "));
}

TEST_F(CurlURLSessionTest, asksTheProxyOfTheEnvironment) {
  ::setenv("http_proxy", server.address().c_str(), 1);
  const std::string answer = failureOf(session, "http://tally.invalid/get");
  ::unsetenv("http_proxy");
  EXPECT_EQ(answer, R"(no failure: {"asked": "http://tally.invalid/get"})");
}

TEST_F(CurlURLSessionTest, nobodyListens) {
  std::string address;
  {
    const HttpServer gone{answered};
    address = gone.address();
  }
  EXPECT_THAT(failureOf(session, address), StartsWith(address + ": "));
}

TEST_F(CurlURLSessionTest, refusesOtherSchemesAndWhatIsNoAddress) {
  for (const char* url : {"file:///etc/hostname", "ftp://127.0.0.1/", "", "http://", "not an address", "http://[::1"})
    EXPECT_THAT(failureOf(session, url), StartsWith(std::string{url} + ": "));
}

TEST_F(CurlURLSessionTest, stopsWhileItWaits) {
  CurlURLSession patient;
  tests::Threads stopper;
  std::latch isAsked{1};
  const HttpServer hanging{[&](const std::string&) {
    isAsked.count_down();
    return tests::silence();
  }};
  StopSource stop;
  stopper.start([&] {
    isAsked.wait();
    stop.requestStop();
  });
  try {
    dataOf(patient, hanging.address(), stop.token());
    FAIL();
  } catch (const URLError& error) {
    EXPECT_EQ(error.what(), hanging.address() + ": the request was stopped");
  }
  EXPECT_THROW(dataOf(patient, server.address() + "/fits", stop.token()), URLError) << "stopped before it began";
}

TEST_F(CurlURLSessionTest, threadsAskBesideEachOther) {
  constexpr std::size_t count = 8;
  std::latch allAsked{static_cast<std::ptrdiff_t>(count)};
  const HttpServer meeting{[&](const std::string& target) {
    allAsked.arrive_and_wait();
    return tests::ok(target);
  }};
  std::vector<std::string> answers(count);
  {
    const CurlURLSession patient;
    tests::Threads threads;
    for (std::size_t thread = 0; thread < count; ++thread)
      threads.start(
          [&, thread] { answers[thread] = dataOf(patient, meeting.address() + "/" + std::to_string(thread)); });
    threads.join();
  }
  for (std::size_t thread = 0; thread < count; ++thread) EXPECT_EQ(answers[thread], "/" + std::to_string(thread));
}

class CurlCertificates : public testing::Test {
 protected:
  static constexpr long day = 86400;

  std::string answerFrom(const tests::TlsIdentity& identity, bool isTrusted, const std::string& path = "/") const {
    const HttpServer server{answered, identity};
    const std::filesystem::path file = testing::TempDir() + "curl-test-authorities.pem";
    std::ofstream{file} << identity.certificatePem;
    CurlURLSession::Options options{.timeLimit = 5s};
    if (isTrusted) options.certificateAuthorities = file;
    const std::string answer = failureOf(CurlURLSession{options}, server.address() + path);
    std::filesystem::remove(file);
    return answer;
  }
};

TEST_F(CurlCertificates, aTrustedOneIsTaken) {
  EXPECT_EQ(answerFrom(tests::TlsIdentity::make(-day, day), true), R"(no failure: {"asked": "/"})");
}

TEST_F(CurlCertificates, aRedirectWithinHttpsIsFollowed) {
  EXPECT_EQ(answerFrom(tests::TlsIdentity::make(-day, day), true, "/elsewhere"),
            "no failure: " + std::string(1000, 'x'));
}

TEST_F(CurlCertificates, anExpiredOneIsRefused) {
  EXPECT_THAT(answerFrom(tests::TlsIdentity::make(-2 * day, -day), true), HasSubstr("expired"));
}

TEST_F(CurlCertificates, anUnknownOneIsRefused) {
  EXPECT_THAT(answerFrom(tests::TlsIdentity::make(-day, day), false), HasSubstr("self-signed certificate"));
}

}  // namespace
}  // namespace mivo::adapters
