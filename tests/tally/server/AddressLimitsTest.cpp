// SPDX-License-Identifier: MIT
#include "tally/server/AddressLimits.h"

#include <gtest/gtest.h>

namespace mivo::tally {
namespace {

asio::ip::address address(const char* text) { return asio::ip::make_address(text); }

TEST(AddressLimitsTest, countsAnIPv6HouseholdAsOneAndProxiesNotAtAll) {
  AddressLimits limits{{.connections = 2, .handshakesPerMinute = 0, .exempt = {*parseNetwork("10.0.0.0/8")}}};
  EXPECT_TRUE(limits.admit(address("2001:db8:1:2::1")));
  EXPECT_TRUE(limits.admit(address("2001:db8:1:2:ffff::2")));
  EXPECT_FALSE(limits.admit(address("2001:db8:1:2::3")));
  EXPECT_TRUE(limits.admit(address("2001:db8:1:3::3"))) << "another household";
  limits.leave(address("2001:db8:1:2::1"));
  EXPECT_TRUE(limits.admit(address("2001:db8:1:2::3")));
  EXPECT_FALSE(limits.admit(address("2001:db8:1:2::1")));
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(limits.admit(address("10.1.2.3")));
}

TEST(AddressLimitsTest, boundsTheHandshakesOfAMinute) {
  const RateLimiter::Instant start{std::chrono::hours{1}};
  AddressLimits limits{{.connections = 0, .handshakesPerMinute = 2, .exempt = {*parseNetwork("10.0.0.0/8")}}};
  EXPECT_TRUE(limits.mayGreet(address("192.0.2.1"), start));
  EXPECT_TRUE(limits.mayGreet(address("192.0.2.1"), start));
  EXPECT_FALSE(limits.mayGreet(address("192.0.2.1"), start));
  EXPECT_TRUE(limits.mayGreet(address("192.0.2.1"), start + std::chrono::seconds{30}));
  EXPECT_TRUE(limits.mayGreet(address("192.0.2.2"), start));
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(limits.mayGreet(address("10.1.2.3"), start));
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(limits.admit(address("192.0.2.1"))) << "0 takes all";
}

}  // namespace
}  // namespace mivo::tally
