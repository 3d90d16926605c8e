// SPDX-License-Identifier: MIT
#include "tally/server/Outbox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::tally {
namespace {

const AnswerFrame frame{.date = "now"};

std::string textOf(const Outbox& outbox) {
  std::string text;
  for (const auto& part : outbox.unsent()) text.append(static_cast<const char*>(part.data()), part.size());
  return text;
}

Answer shared(const std::shared_ptr<const std::string>& body) {
  Answer answer;
  answer.shared = body;
  return answer;
}

TEST(OutboxTest, holdsASharedBodyOnceAndSendsItBehindItsOwnBytes) {
  const auto body = std::make_shared<const std::string>(100'000, 'x');
  Outbox first;
  Outbox second;
  first.append(countAnswer(7), frame);
  EXPECT_FALSE(first.isFull());
  first.append(shared(body), frame);
  second.append(shared(body), frame);
  EXPECT_EQ(body.use_count(), 3);
  EXPECT_TRUE(first.isFull());
  EXPECT_LT(first.ownBytes(), 1000U);
  auto text = textOf(first);
  EXPECT_THAT(text, testing::HasSubstr("{\"value\":7}HTTP/1.1 200 OK\r\n"));
  EXPECT_THAT(text, testing::HasSubstr("Content-Length: 100000\r\n"));
  EXPECT_THAT(text, testing::EndsWith("\r\n\r\n" + *body));
  while (!first.isEmpty()) {
    constexpr std::size_t piece = 333;
    ASSERT_EQ(textOf(first), text);
    const auto size = std::min(piece, text.size());
    first.sent(size);
    text.erase(0, size);
  }
  EXPECT_EQ(text, "");
  second.clear();
  EXPECT_EQ(body.use_count(), 1);
}

TEST(OutboxTest, sendsNoBodyToWhoAskedForNone) {
  const auto body = std::make_shared<const std::string>("a body");
  Outbox outbox;
  outbox.append(shared(body), {.date = "now", .withBody = false});
  EXPECT_FALSE(outbox.isFull());
  EXPECT_THAT(textOf(outbox), testing::HasSubstr("Content-Length: 6\r\n"));
  EXPECT_THAT(textOf(outbox), testing::EndsWith("\r\n\r\n"));
}

TEST(OutboxTest, isFullAtSixteenKilobytes) {
  Answer answer;
  answer.body = std::string(Outbox::mostOwnBytes - 1000, 'x');
  Outbox outbox;
  outbox.append(answer, frame);
  EXPECT_FALSE(outbox.isFull());
  answer.body = std::string(1000, 'x');
  outbox.append(answer, frame);
  EXPECT_TRUE(outbox.isFull());
  EXPECT_GE(outbox.ownBytes(), Outbox::mostOwnBytes);
  outbox.sent(Outbox::mostOwnBytes - 100);
  EXPECT_FALSE(outbox.isFull());
  EXPECT_LT(outbox.ownBytes(), Outbox::mostOwnBytes / 2) << "what was sent is not held";
}

}  // namespace
}  // namespace mivo::tally
