// SPDX-License-Identifier: MIT
#include "tally/server/RateLimiter.h"

#include <gtest/gtest.h>

namespace mivo::tally {
namespace {

using std::chrono::seconds;
const RateLimiter::Instant start{std::chrono::hours{1}};

int taken(RateLimiter& limiter, std::uint64_t client, RateLimiter::Instant now) {
  int votes = 0;
  while (votes < 1000 && limiter.secondsToWait(client, now) == 0) ++votes;
  return votes;
}

TEST(RateLimiterTest, givesABurstThenATokenASecond) {
  RateLimiter limiter{60};
  EXPECT_EQ(taken(limiter, 1, start), 60);
  EXPECT_EQ(limiter.secondsToWait(1, start), 1U);
  EXPECT_EQ(taken(limiter, 1, start + seconds{10}), 10);
  EXPECT_EQ(taken(limiter, 1, start + seconds{10}), 0);
  EXPECT_EQ(taken(limiter, 1, start + seconds{1000}), 60) << "a bucket holds no more than a minute's worth";
}

TEST(RateLimiterTest, saysHowLongToWait) {
  RateLimiter limiter{2};
  EXPECT_EQ(taken(limiter, 1, start), 2);
  EXPECT_EQ(limiter.secondsToWait(1, start), 30U);
  EXPECT_EQ(limiter.secondsToWait(1, start + seconds{29}), 1U);
  EXPECT_EQ(limiter.secondsToWait(1, start + seconds{30}), 0U);
}

TEST(RateLimiterTest, countsEachClientForItself) {
  RateLimiter limiter{60};
  taken(limiter, 1, start);
  EXPECT_EQ(taken(limiter, 2, start), 60);
  EXPECT_EQ(taken(limiter, 1, start), 0) << "not forgotten for the other";
}

// Buckets move from one generation to the next; an emptied one must not be forgotten early.
TEST(RateLimiterTest, remembersAcrossMinutes) {
  RateLimiter limiter{60};
  EXPECT_EQ(taken(limiter, 1, start), 60);
  EXPECT_EQ(taken(limiter, 2, start + seconds{59}), 60);
  EXPECT_EQ(taken(limiter, 2, start + seconds{61}), 2);
  EXPECT_EQ(taken(limiter, 2, start + seconds{122}), 60);
}

TEST(SeededHashTest, letsNobodyChooseWhichNumbersFallTogether) {
  const SeededHash one;
  const SeededHash other;
  EXPECT_EQ(one(7), one(7));
  EXPECT_NE(one(7), one(8));
  EXPECT_NE(one(7), other(7));
}

TEST(RateLimiterTest, letsEverythingThroughWhenSwitchedOff) {
  RateLimiter limiter{0};
  EXPECT_EQ(taken(limiter, 1, start), 1000);
}

}  // namespace
}  // namespace mivo::tally
