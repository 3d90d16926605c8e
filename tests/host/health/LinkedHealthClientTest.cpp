// SPDX-License-Identifier: MIT
#include "host/health/LinkedHealthClient.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

TEST(LinkedHealthClient, asksUntilAFileIsLinkedAndRemembersItAcrossRuns) {
  const auto defaults = std::make_shared<tests::MemoryDefaults>();
  const LinkedHealthClient client{defaults};
  EXPECT_TRUE(client.shouldRequestAuthorization());
  client.requestAuthorization();
  EXPECT_TRUE(client.shouldRequestAuthorization()) << "no file was chosen";
  client.link("/home/a/export.zip");
  EXPECT_FALSE(client.shouldRequestAuthorization());
  EXPECT_EQ(LinkedHealthClient{defaults}.file(), "/home/a/export.zip");
  defaults->setHealthKitSync(true);
  client.unlink();
  EXPECT_TRUE(LinkedHealthClient{defaults}.shouldRequestAuthorization());
  EXPECT_FALSE(defaults->healthKitSync());
}

TEST(LinkedHealthClient, keepsOutOfAHistoryThatIsNotItsOwn) {
  const auto defaults = std::make_shared<tests::MemoryDefaults>();
  const LinkedHealthClient own{defaults}, other{defaults, false};
  own.link("/home/a/export.zip");
  EXPECT_EQ(other.file(), "");
  EXPECT_FALSE(other.shouldRequestAuthorization());
  other.link("/home/b/export.zip");
  other.unlink();
  EXPECT_EQ(own.file(), "/home/a/export.zip");
}

}  // namespace
}  // namespace mivo::host
