// SPDX-License-Identifier: MIT
#include "tally/server/VoteAllowance.h"

#include <gtest/gtest.h>

namespace mivo::tally {
namespace {

const auto someone = asio::ip::make_address("192.0.2.1");
const std::chrono::sys_days today{std::chrono::days{20'000}};
constexpr auto feature = "app.example/feature1";

int taken(VoteAllowance& allowance, const asio::ip::address& client, int delta, std::chrono::sys_days day = today,
          std::string_view counter = feature) {
  int votes = 0;
  while (votes < 1000 && allowance.take(client, counter, delta, day)) ++votes;
  return votes;
}

TEST(VoteAllowanceTest, isOfAFeatureADirectionAnAddressAndADay) {
  VoteAllowance allowance{20};
  EXPECT_EQ(taken(allowance, someone, 1), 20);
  EXPECT_EQ(taken(allowance, someone, -1), 20);
  EXPECT_EQ(taken(allowance, someone, 1, today, "app.example/feature2"), 20);
  EXPECT_EQ(taken(allowance, asio::ip::make_address("192.0.2.2"), 1), 20);
  EXPECT_EQ(taken(allowance, asio::ip::make_address("::ffff:192.0.2.1"), 1), 0) << "the same address";
  EXPECT_EQ(taken(allowance, someone, 1, today + std::chrono::days{1}), 20);
  EXPECT_EQ(allowance.size(), 1U) << "nothing of yesterday is kept";
}

TEST(VoteAllowanceTest, isTenfoldForTheSiteOfAnIPv6Household) {
  VoteAllowance allowance{3};
  const auto household = [](int number) {
    return asio::ip::make_address("2001:db8:1:" + std::to_string(number) + "::1");
  };
  EXPECT_EQ(taken(allowance, household(1), 1), 3);
  EXPECT_EQ(taken(allowance, asio::ip::make_address("2001:db8:1:1::2"), 1), 0) << "the same household";
  for (int number = 2; number <= 10; ++number) EXPECT_EQ(taken(allowance, household(number), 1), 3);
  EXPECT_EQ(taken(allowance, household(11), 1), 0) << "the eleventh household of the site";
  EXPECT_EQ(taken(allowance, household(11), -1), 3);
  EXPECT_EQ(taken(allowance, asio::ip::make_address("2001:db8:2:1::1"), 1), 3) << "another site";
}

TEST(VoteAllowanceTest, isWithoutEndWhenSwitchedOff) {
  VoteAllowance allowance{0};
  EXPECT_EQ(taken(allowance, someone, 1), 1000);
  EXPECT_EQ(allowance.size(), 0U);
}

TEST(VoteAllowanceTest, remembersSoManyAndBeginsAnew) {
  VoteAllowance allowance{1, 1000};
  EXPECT_EQ(taken(allowance, someone, 1), 1);
  for (unsigned number = 1; number < 998; ++number)
    ASSERT_TRUE(allowance.take(asio::ip::make_address_v4(number), feature, 1, today));
  EXPECT_EQ(allowance.size(), 998U);
  EXPECT_EQ(taken(allowance, someone, 1), 0) << "not forgotten yet";
  EXPECT_TRUE(allowance.take(asio::ip::make_address_v4(998), feature, 1, today));
  EXPECT_EQ(taken(allowance, someone, 1), 1) << "there was no room";
  EXPECT_EQ(allowance.size(), 1U);
}

}  // namespace
}  // namespace mivo::tally
