// SPDX-License-Identifier: MIT
#include "tally/request/Answer.h"

#include <gtest/gtest.h>

#include <limits>

namespace mivo::tally {
namespace {

constexpr auto date = "Tue, 24 Nov 2026 21:50:00 GMT";

std::string sent(const Answer& answer, AnswerFrame frame) {
  frame.date = date;
  std::string out;
  appendAnswer(out, answer, frame);
  return out;
}

TEST(AppendAnswer, writesACountToTheLetter) {
  EXPECT_EQ(sent(countAnswer(-7), {}),
            "HTTP/1.1 200 OK\r\nDate: Tue, 24 Nov 2026 21:50:00 GMT\r\nContent-Type: application/json\r\n"
            "Content-Length: 12\r\nCache-Control: no-store\r\nX-Content-Type-Options: nosniff\r\n\r\n{\"value\":-7}");
}

TEST(AppendAnswer, saysTheLengthOfABodyThatHeadLeavesOut) {
  const auto out = sent(countAnswer(std::numeric_limits<std::int64_t>::min()), {.date = {}, .withBody = false});
  EXPECT_NE(out.find("Content-Length: 30\r\n"), std::string::npos);
  EXPECT_TRUE(out.ends_with("\r\n\r\n"));
}

TEST(AppendAnswer, writesARefusalWithItsHeaders) {
  auto answer = refusalAnswer({429, "too many"}, 3);
  answer.allowedOrigin = "https://app.example";
  answer.variesByOrigin = true;
  const auto out = sent(answer, {.date = {}, .withBody = true, .keepAlive = false});
  EXPECT_TRUE(out.starts_with("HTTP/1.1 429 Too Many Requests\r\n"));
  EXPECT_TRUE(
      out.ends_with("Retry-After: 3\r\nAccess-Control-Allow-Origin: https://app.example\r\nVary: Origin\r\n"
                    "Connection: close\r\n\r\n{\"error\":\"too many\"}"));
}

TEST(AppendAnswer, writesTheHeadOfAFileInPlaceOfItsOwn) {
  Answer answer;
  answer.shared = std::make_shared<const std::string>("{}");
  answer.head = std::make_shared<const std::string>("Content-Type: text/css\r\n");
  EXPECT_EQ(sent(answer, {}),
            "HTTP/1.1 200 OK\r\nDate: Tue, 24 Nov 2026 21:50:00 GMT\r\nContent-Length: 2\r\nContent-Type: "
            "text/css\r\nX-Content-Type-Options: nosniff\r\n\r\n");
  EXPECT_EQ(sent({.status = notModified, .head = answer.head}, {}),
            "HTTP/1.1 304 Not Modified\r\nDate: Tue, 24 Nov 2026 21:50:00 GMT\r\nContent-Type: "
            "text/css\r\nX-Content-Type-Options: nosniff\r\n\r\n");
}

TEST(AppendAnswer, tellsAnOldClientThatTheConnectionStays) {
  const AnswerFrame old{.date = {}, .withBody = true, .keepAlive = true, .isHttp11 = false};
  EXPECT_NE(sent(countAnswer(1), old).find("Connection: keep-alive\r\n"), std::string::npos);
  EXPECT_NE(sent(refusalAnswer(onlyGetAndHead), old).find("Allow: GET\r\n"), std::string::npos);
}

}  // namespace
}  // namespace mivo::tally
