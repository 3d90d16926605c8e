// SPDX-License-Identifier: MIT
#include "mivo/trends/ZoneTrendDisplay.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using enum LegacyFastingZone;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double endless = std::numeric_limits<double>::infinity();

struct TrendRow {
  const char* name;
  double thisAverage, lastAverage;
  const char *thisText, *lastText;
  double thisFraction, lastFraction;
  bool thisInside, lastInside;
};
void PrintTo(const TrendRow& row, std::ostream* out) { *out << row.name; }

class ZoneTrend : public testing::TestWithParam<TrendRow> {};

testing::AssertionResult sameNumber(double found, double expected) {
  if (found == expected || (std::isnan(found) && std::isnan(expected))) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "found " << found << ", expected " << expected;
}

TEST_P(ZoneTrend, comparesTwoAverages) {
  const auto& row = GetParam();
  const ZoneTrendDisplay trend{TimeRange::week,       anabolic,
                               row.thisAverage,       row.lastAverage,
                               tests::EnglishTexts{}, tests::EnglishHoursAndMinutes{}};
  EXPECT_EQ(trend.thisTimeRangeAvg, row.thisText);
  EXPECT_EQ(trend.lastTimeRangeAvg, row.lastText);
  EXPECT_TRUE(sameNumber(trend.thisTimeRangeFraction, row.thisFraction));
  EXPECT_TRUE(sameNumber(trend.lastTimeRangeFraction, row.lastFraction));
  EXPECT_EQ(trend.thisTimeRangeInsideCapsule, row.thisInside);
  EXPECT_EQ(trend.lastTimeRangeInsideCapsule, row.lastInside);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ZoneTrend,
    testing::Values(TrendRow{"nothing", 0, 0, "0m", "0m", 0, 0, false, false},
                    TrendRow{"aSecondIsNothing", 0.5, 1, "0m", "0m", 0, 0, false, false},
                    TrendRow{"justOverASecond", 0.5, 1.25, "0m", "0m", 0.4, 1, false, true},
                    TrendRow{"same", 45000, 45000, "12h 30m", "12h 30m", 1, 1, true, true},
                    TrendRow{"halfStandsOutside", 3600, 1800, "1h 0m", "30m", 1, 0.5, true, false},
                    TrendRow{"justOverHalfFits", 3600, 1800.5, "1h 0m", "30m", 1, 1800.5 / 3600, true, true},
                    TrendRow{"lastIsLonger", 2700, 10800, "45m", "3h 0m", 0.25, 1, false, true},
                    TrendRow{"negative", -3600, 7200, "-1h 0m", "2h 0m", -0.5, 1, false, true},
                    TrendRow{"thisIsNotANumber", notANumber, 3600, "0", "1h 0m", notANumber, notANumber, false, false},
                    TrendRow{"lastIsNotANumber", 3600, notANumber, "1h 0m", "0", 1, notANumber, true, false},
                    TrendRow{"lastIsEndless", 3600, endless, "1h 0m", "0", 0, notANumber, false, false}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(ZoneTrend, takesTextsFromTheCurrentDependencies) {
  const DependencyScope scope{std::make_shared<const Dependencies>(tests::fixedDependencies())};
  const ZoneTrendDisplay trend{TimeRange::week, fasting, 57600, 43200};
  EXPECT_EQ(trend.averageFastTimeRangeText, "You're fasting more this week compared to last week.");
  EXPECT_EQ(trend, ZoneTrendDisplay(TimeRange::week, fasting, 57600, 43200, tests::EnglishTexts{},
                                    tests::EnglishHoursAndMinutes{}));
}

}  // namespace
}  // namespace mivo
