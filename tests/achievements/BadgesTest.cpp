// SPDX-License-Identifier: MIT
#include "mivo/achievements/Badges.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

struct BadgeRow {
  const char* name;
  std::int64_t threshold;
  int tier, marks;
  Color flameEnd;
};
void PrintTo(const BadgeRow& row, std::ostream* out) { *out << row.name; }
class Badge : public testing::TestWithParam<BadgeRow> {};

TEST_P(Badge, looksLikeItsTier) {
  const BadgeRow& row = GetParam();
  const tests::EnglishTexts texts;
  const tests::PlainNumbers numbers;
  EXPECT_EQ(badgeTier(badgeRank(row.threshold)), row.tier);
  const MilestoneBadge milestone = milestoneBadge(row.threshold, 0, 96, true, texts, numbers);
  EXPECT_EQ(milestone.starCount, row.marks);
  const StreakBadge streak = streakBadge(row.threshold, 0, 96, false);
  EXPECT_EQ(streak.flameCount, row.marks);
  EXPECT_EQ(streak.flameColorEnd, row.flameEnd);
}

TEST_P(Badge, isEarnedAtItsThreshold) {
  const std::int64_t threshold = GetParam().threshold;
  const tests::EnglishTexts texts;
  const tests::PlainNumbers numbers;
  EXPECT_EQ(milestoneBadge(threshold, threshold - 1, 96, true, texts, numbers).grayscale, 1);
  EXPECT_EQ(milestoneBadge(threshold, threshold, 96, true, texts, numbers).grayscale, 0);
  EXPECT_EQ(streakBadge(threshold, threshold - 1, 96, true).grayscale, 1);
  EXPECT_EQ(streakBadge(threshold, threshold, 96, true).grayscale, 0);
}

constexpr Color ember{0xF2, 0x70, 0x2B}, rose{0xE8, 0x41, 0x6F}, violet{0x93, 0x55, 0xE8}, blue{0x2E, 0x9B, 0xEA};

INSTANTIATE_TEST_SUITE_P(Rows, Badge,
                         testing::Values(BadgeRow{"first", 1, 0, 1, ember}, BadgeRow{"five", 5, 0, 2, ember},
                                         BadgeRow{"ten", 10, 0, 3, ember}, BadgeRow{"twentyFive", 25, 1, 1, rose},
                                         BadgeRow{"fifty", 50, 1, 2, rose}, BadgeRow{"hundred", 100, 1, 3, rose},
                                         BadgeRow{"twoHundredFifty", 250, 2, 1, violet},
                                         BadgeRow{"fiveHundred", 500, 2, 2, violet},
                                         BadgeRow{"thousand", 1000, 2, 3, violet},
                                         BadgeRow{"twoAndAHalfThousand", 2500, 3, 1, blue},
                                         BadgeRow{"last", 5000, 3, 2, blue}),
                         [](const auto& row) { return std::string{row.param.name}; });

struct ProgressRow {
  const char* name;
  std::int64_t count;
  std::int64_t earned;
  double fraction;
  const char* text;
  const char* remaining;
};
void PrintTo(const ProgressRow& row, std::ostream* out) { *out << row.name; }
class Progress : public testing::TestWithParam<ProgressRow> {};

TEST_P(Progress, countsTowardsTheNextBadge) {
  const tests::EnglishTexts texts;
  const tests::PlainNumbers numbers;
  const BadgeProgress progress = badgeProgress(badgeThresholds, GetParam().count);
  EXPECT_EQ(progress.earnedBadges, GetParam().earned);
  EXPECT_DOUBLE_EQ(progress.fraction(), GetParam().fraction);
  EXPECT_EQ(progressText(progress, texts, numbers), GetParam().text);
  EXPECT_EQ(remainingText(progress, texts, numbers), GetParam().remaining);
}

INSTANTIATE_TEST_SUITE_P(Rows, Progress,
                         testing::Values(ProgressRow{"none", 0, 0, 0.0, "0 of 1", "1 more to 1"},
                                         ProgressRow{"belowZero", -3, 0, 0.0, "0 of 1", "1 more to 1"},
                                         ProgressRow{"between", 7, 2, 0.7, "7 of 10", "3 more to 10"},
                                         ProgressRow{"exactlyOnOne", 10, 3, 0.4, "10 of 25", "15 more to 25"},
                                         ProgressRow{"oneBelowTheLast", 4999, 10, 0.9998, "4999 of 5000",
                                                     "1 more to 5000"},
                                         ProgressRow{"all", 5000, 11, 1.0, "All badges earned", ""}),
                         [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo
