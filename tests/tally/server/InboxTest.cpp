// SPDX-License-Identifier: MIT
#include "tally/server/Inbox.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tally/request/RequestReader.h"

namespace mivo::tally {
namespace {

void receive(Inbox& inbox, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto room = inbox.room();
    ASSERT_GT(room.size(), 0U);
    const auto size = std::min(room.size(), bytes.size());
    std::memcpy(room.data(), bytes.data(), size);
    inbox.took(size);
    bytes.remove_prefix(size);
  }
}

TEST(InboxTest, doublesUpToTheLargestRequestAndAKilobyte) {
  Inbox inbox;
  EXPECT_EQ(inbox.size(), 0U);
  for (const std::size_t size : {1024U, 2048U, 4096U, 8192U, 9216U}) {
    receive(inbox, std::string(size - inbox.unread().size(), 'x'));
    EXPECT_EQ(inbox.size(), size);
  }
  EXPECT_EQ(inbox.unread(), std::string(largestRequest + 1024, 'x'));
  inbox.drop(inbox.unread().size());
  EXPECT_EQ(inbox.room().size(), 1024U) << "gives the memory back";
}

TEST(InboxTest, movesWhatIsUnreadToTheFrontBeforeItGrows) {
  Inbox inbox;
  receive(inbox, std::string(1000, 'a'));
  receive(inbox, "the rest of 24 bytes....");
  inbox.drop(1000);
  EXPECT_EQ(inbox.room().size(), 1000U);
  receive(inbox, "and more");
  EXPECT_EQ(inbox.unread(), "the rest of 24 bytes....and more");
  EXPECT_EQ(inbox.size(), 1024U);
  inbox.clear();
  EXPECT_TRUE(inbox.isEmpty());
}

}  // namespace
}  // namespace mivo::tally
