// SPDX-License-Identifier: MIT
#include "host/health/StoredHealthClient.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

TEST(StoredHealthClient, asksOnceAndRemembersAcrossRuns) {
  const auto defaults = std::make_shared<tests::MemoryDefaults>();
  const StoredHealthClient client{defaults};
  EXPECT_TRUE(client.shouldRequestAuthorization());
  client.requestAuthorization();
  EXPECT_FALSE(client.shouldRequestAuthorization());
  EXPECT_FALSE(StoredHealthClient{defaults}.shouldRequestAuthorization());
}

}  // namespace
}  // namespace mivo::host
