// SPDX-License-Identifier: MIT
#include "host/health/LinkedHealthClient.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

bool shouldAsk(const LinkedHealthClient& client) {
  bool answer = false;
  client.shouldRequestAuthorization([&answer](bool should) { answer = should; });
  return answer;
}

TEST(LinkedHealthClient, asksUntilAFileIsLinkedAndRemembersItAcrossRuns) {
  const auto defaults = std::make_shared<tests::MemoryDefaults>();
  const LinkedHealthClient client{defaults};
  EXPECT_TRUE(shouldAsk(client));
  bool isAnswered = false;
  client.requestAuthorization([&isAnswered] { isAnswered = true; });
  EXPECT_TRUE(isAnswered);
  EXPECT_TRUE(shouldAsk(client)) << "no file was chosen";
  client.link("/home/a/export.zip");
  EXPECT_FALSE(shouldAsk(client));
  EXPECT_EQ(LinkedHealthClient{defaults}.file(), "/home/a/export.zip");
  defaults->setHealthKitSync(true);
  client.unlink();
  EXPECT_TRUE(shouldAsk(LinkedHealthClient{defaults}));
  EXPECT_FALSE(defaults->healthKitSync());
}

TEST(LinkedHealthClient, keepsOutOfAHistoryThatIsNotItsOwn) {
  const auto defaults = std::make_shared<tests::MemoryDefaults>();
  const LinkedHealthClient own{defaults}, other{defaults, false};
  own.link("/home/a/export.zip");
  EXPECT_EQ(other.file(), "");
  EXPECT_FALSE(shouldAsk(other));
  other.link("/home/b/export.zip");
  other.unlink();
  EXPECT_EQ(own.file(), "/home/a/export.zip");
}

}  // namespace
}  // namespace mivo::host
