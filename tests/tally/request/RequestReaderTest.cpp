// SPDX-License-Identifier: MIT
#include "tally/request/RequestReader.h"

#include <gtest/gtest.h>

#include <string>

namespace mivo::tally {
namespace {

using State = RequestReading::State;

struct ReadingRow {
  const char* name;
  std::string bytes;
  State state;
  unsigned status;  // of the refusal
};
void PrintTo(const ReadingRow& row, std::ostream* out) { *out << row.name; }

class Reading : public testing::TestWithParam<ReadingRow> {};

TEST_P(Reading, completesWaitsOrRefuses) {
  const auto reading = readRequest(GetParam().bytes);
  EXPECT_EQ(reading.state, GetParam().state);
  EXPECT_EQ(reading.refusal.status, GetParam().status);
}

std::string get(const std::string& headers) { return "GET /health HTTP/1.1\r\n" + headers + "\r\n"; }

INSTANTIATE_TEST_SUITE_P(
    Rows, Reading,
    testing::Values(
        ReadingRow{"nothing", "", State::needsMore, 0}, ReadingRow{"half", "GET /hea", State::needsMore, 0},
        ReadingRow{"headersNotEnded", "GET / HTTP/1.1\r\nHost: a\r\n", State::needsMore, 0},
        ReadingRow{"whole", get("Host: a\r\n"), State::complete, 0},
        ReadingRow{"emptyLinesBefore", "\r\n\r\n" + get("Host: a\r\n"), State::complete, 0},
        ReadingRow{"oldVersionWithoutHost", "GET / HTTP/1.0\r\n\r\n", State::complete, 0},
        ReadingRow{"emptyBody", get("Host: a\r\nContent-Length: 0\r\n"), State::complete, 0},
        ReadingRow{"noHost", get(""), State::refused, 400},
        ReadingRow{"twoHosts", get("Host: a\r\nHost: b\r\n"), State::refused, 400},
        ReadingRow{"twoOrigins", get("Host: a\r\nOrigin: http://a\r\nOrigin: http://b\r\n"), State::refused, 400},
        ReadingRow{"foldedLine", get("Host: a\r\nOrigin: http://a\r\n b\r\n"), State::refused, 400},
        ReadingRow{"emptyFoldedLine", get("Host: a\r\nOrigin:\r\n \r\n"), State::refused, 400},
        ReadingRow{"emptyLineFoldedByATab", get("Host: a\r\nOrigin:\r\n\t\r\n"), State::refused, 400},
        ReadingRow{"emptyHostThenAnother", get("Host:\r\nHost: b\r\n"), State::refused, 400},
        ReadingRow{"tlsGreeting", "\x16\x03\x01\x02", State::refused, 400},
        ReadingRow{"lowerCaseMethod", "get / HTTP/1.1\r\n", State::refused, 400},
        ReadingRow{"otherProtocol", "GET / RTSP/1.0\r\nHost: a\r\n\r\n", State::refused, 400},
        ReadingRow{"otherVersion", "GET / HTTP/2.0\r\nHost: a\r\n\r\n", State::refused, 400},
        ReadingRow{"noVersion", "GET /\r\nHost: a\r\n\r\n", State::refused, 400},
        ReadingRow{"blankBeforeColon", get("Host : a\r\n"), State::refused, 400},
        ReadingRow{"bareLineFeed", "GET / HTTP/1.1\nHost: a\r\n\r\n", State::refused, 400},
        ReadingRow{"zeroByte", get(std::string{"Host: a\0b\r\n", 11}), State::refused, 400},
        ReadingRow{"body", get("Host: a\r\nContent-Length: 3\r\n") + "abc", State::refused, 413},
        ReadingRow{"hugeBody", get("Host: a\r\nContent-Length: 99999999999\r\n"), State::refused, 413},
        ReadingRow{"chunkedBody", get("Host: a\r\nTransfer-Encoding: chunked\r\n"), State::refused, 413},
        ReadingRow{"oddEncoding", get("Host: a\r\nTransfer-Encoding: gzip\r\n"), State::refused, 413},
        ReadingRow{"twoLengths", get("Host: a\r\nContent-Length: 0\r\nContent-Length: 3\r\n"), State::refused, 400},
        ReadingRow{"lengthAndChunks", get("Host: a\r\nContent-Length: 3\r\nTransfer-Encoding: chunked\r\n"),
                   State::refused, 400},
        ReadingRow{"postWithBody", "POST / HTTP/1.1\r\nHost: a\r\nContent-Length: 3\r\n\r\nabc", State::refused, 405},
        ReadingRow{"longestThatFits", get("Host: a\r\nX: " + std::string(largestRequest - 38, 'x') + "\r\n"),
                   State::complete, 0},
        ReadingRow{"oneByteTooLong", get("Host: a\r\nX: " + std::string(largestRequest - 37, 'x') + "\r\n"),
                   State::refused, 431},
        ReadingRow{"endlessTarget", "GET /" + std::string(largestRequest, 'x'), State::refused, 431}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(ReadRequest, keepsWhatTheServerAsksAbout) {
  const std::string bytes =
      "GET /get/a/feature1?b HTTP/1.1\r\nHost: tally.example:8443\r\norigin: https://app.example\r\n"
      "SEC-FETCH-SITE: same-site\r\nX-Forwarded-For: 192.0.2.1\r\nX-Forwarded-For: 192.0.2.2, 192.0.2.3\r\n"
      "Purpose: prefetch\r\nConnection: close\r\n\r\nGET /next";
  const auto reading = readRequest(bytes);
  ASSERT_EQ(reading.state, State::complete);
  EXPECT_EQ(bytes.substr(reading.consumed), "GET /next");
  const auto& request = reading.request;
  EXPECT_EQ(request.method, Method::get);
  EXPECT_EQ(request.target, "/get/a/feature1?b");
  EXPECT_EQ(request.host, "tally.example:8443");
  EXPECT_EQ(request.origin, "https://app.example");
  EXPECT_EQ(request.fetchSite, "same-site");
  EXPECT_EQ(request.forwardedFor, "192.0.2.2, 192.0.2.3");
  EXPECT_TRUE(request.isPrefetch);
  EXPECT_FALSE(request.keepAlive);
}

// Also those that some release of the library has a name of its own for.
TEST(ReadRequest, findsWhatProtectsByItsName) {
  const auto reading = [](const std::string& header) {
    const auto result = readRequest(get("Host: a\r\n" + header + "\r\n"));
    EXPECT_EQ(result.state, State::complete) << header;
    return result.request;
  };
  EXPECT_EQ(reading("Sec-Fetch-Site: cross-site").fetchSite.size(), 10U);
  EXPECT_EQ(reading("referer: https://a/").referer.size(), 10U);
  EXPECT_EQ(reading("X-Forwarded-For: 192.0.2.1").forwardedFor.size(), 9U);
  for (const std::string name : {"Sec-Purpose", "Purpose", "X-Purpose", "X-Moz", "sec-purpose"})
    EXPECT_TRUE(reading(name + ": prefetch").isPrefetch) << name;
  EXPECT_FALSE(reading("Purposes: prefetch").isPrefetch);
}

TEST(ReadRequest, knowsTheVersionThatWasSaid) {
  const auto old = readRequest("GET / HTTP/1.0\r\nHost: a\r\n\r\n").request;
  EXPECT_FALSE(old.isHttp11);
  EXPECT_FALSE(old.keepAlive);
  EXPECT_TRUE(readRequest("GET / HTTP/1.1\r\nHost: a\r\n\r\n").request.isHttp11);
}

TEST(ReadRequest, forgetsBlankLinesOfARequestThatHasNotCome) { EXPECT_EQ(readRequest("\r\n\r\n").consumed, 4U); }

}  // namespace
}  // namespace mivo::tally
