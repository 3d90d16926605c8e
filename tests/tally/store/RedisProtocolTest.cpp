// SPDX-License-Identifier: MIT
#include "tally/store/RedisProtocol.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::tally {
namespace {

std::optional<RedisReply> read(std::string_view bytes) {
  RedisReplyReader reader;
  reader.feed(bytes);
  return reader.next();
}

TEST(RedisProtocolTest, believesNoListToBeLongerThanAnyThatIsAskedFor) {
  for (const auto* header : {"*100001\r\n", "*244444444\r\n", "*2\r\n*1\r\n*2147483647\r\n"})
    EXPECT_THAT([&] { read(header); },
                testing::ThrowsMessage<std::runtime_error>("a reply that is too large to be held"))
        << header;
  EXPECT_FALSE(read("*100000\r\n").has_value()) << "the elements are still to come";
}

TEST(RedisProtocolTest, readsListsWithinLists) {
  const auto reply = read("*2\r\n$1\r\n0\r\n*3\r\n$1\r\na\r\n:7\r\n$-1\r\n");
  ASSERT_TRUE(reply);
  ASSERT_EQ(reply->list.size(), 2U);
  EXPECT_EQ(reply->list[0].text, "0");
  const auto& inner = reply->list[1].list;
  ASSERT_EQ(inner.size(), 3U);
  EXPECT_EQ(inner[0].text, "a");
  EXPECT_EQ(inner[1].integer, 7);
  EXPECT_EQ(inner[2].kind, RedisReply::Kind::nothing);
}

}  // namespace
}  // namespace mivo::tally
