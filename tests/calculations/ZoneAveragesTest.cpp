// SPDX-License-Identifier: MIT
#include "mivo/calculations/ZoneAverages.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "mivo/store/Print.h"
#include "tests/histories/CalendarRows.h"
#include "tests/histories/RandomHistories.h"

namespace mivo {

void PrintTo(const PiecesOfFast& pieces, std::ostream* out) {
  *out << printed(pieces.first) << " and " << printed(pieces.second);
}

namespace {

using tests::Fasts;

// Hours from the start of this range; the last one is a week long.
constexpr Date at(double hours) { return dateSince1970(1782691200 + hours * secondsPerHour); }
constexpr RangeStarts starts{at(0), at(-168)};
constexpr Date endOfToday = at(24);
constexpr double hour = 3600;

struct PiecesRow {
  const char* name;
  double start, end;
  PiecesOfFast expected;
};
void PrintTo(const PiecesRow& row, std::ostream* out) { *out << row.name; }
class Pieces : public testing::TestWithParam<PiecesRow> {};

TEST_P(Pieces, areCutAtTheStarts) {
  EXPECT_EQ(pieces({at(GetParam().start), at(GetParam().end), 0}, starts), GetParam().expected);
}
constexpr Date justBefore = at(0) - Duration{1};
INSTANTIATE_TEST_SUITE_P(
    Rows, Pieces,
    testing::Values(
        PiecesRow{
            "overBoth", -170, 5, {{at(-168), justBefore, 2 * hour}, TrendsFastingEntry{at(0), at(5), 170 * hour}}},
        PiecesRow{"overTheLastStart", -170, -150, {{at(-168), at(-150), 2 * hour}, {}}},
        PiecesRow{"overThisStart", -4, 8, {{at(-4), justBefore, 0}, TrendsFastingEntry{at(0), at(8), 4 * hour}}},
        PiecesRow{"inTheLastRange", -20, -4, {{at(-20), at(-4), 0}, {}}},
        PiecesRow{"endsAtThisStart", -20, 0, {{at(-20), at(0), 0}, {}}},
        PiecesRow{"startsAtThisStart", 0, 8, {{at(0), at(8), 0}, {}}},
        PiecesRow{"inThisRange", 2, 8, {{at(2), at(8), 0}, {}}}),
    [](const auto& row) { return std::string{row.param.name}; });

struct AveragesRow {
  const char* name;
  Fasts fasts;
  LegacyFastingZone zone;
  AverageThisLastTimeRange expected;  // hours in the range, not a day
};
void PrintTo(const AveragesRow& row, std::ostream* out) { *out << row.name; }
class Averages : public testing::TestWithParam<AveragesRow> {};

TEST_P(Averages, arePerDayOfTheRange) {
  const auto& row = GetParam();
  const auto found = zoneAverages(row.fasts, starts, endOfToday)[row.zone];
  EXPECT_NEAR(found.thisTimeRange, row.expected.thisTimeRange * hour, 1e-9);
  EXPECT_NEAR(found.lastTimeRange, row.expected.lastTimeRange * hour / 7, 1e-9);
}
constexpr double second = 1 / hour;
const Fasts overTheBorder{{at(-4), at(8), 0}}, thirtyHours{{at(-188), at(-158), 0}}, fourDays{{at(-100), at(-4), 0}};
using enum LegacyFastingZone;
INSTANTIATE_TEST_SUITE_P(
    Rows, Averages,
    testing::Values(AveragesRow{"nothingIsAllEating", {}, eating, {24, 168}},
                    AveragesRow{"nothingIsNoFasting", {}, fasting, {0, 0}},
                    AveragesRow{"loseASecondAtTheBorder", overTheBorder, fasting, {8, 4 - second}},
                    AveragesRow{"anabolicBeforeTheBorder", overTheBorder, anabolic, {0, 4 - second}},
                    AveragesRow{"catabolicAfterIt", overTheBorder, catabolic, {8, 0}},
                    AveragesRow{"fromTheTrueStartFatBurning", thirtyHours, fatBurning, {0, 4}},
                    AveragesRow{"fromTheTrueStartKetosis", thirtyHours, ketosis, {0, 6}},
                    AveragesRow{"ketosis", fourDays, ketosis, {0, 48}},
                    AveragesRow{"deepKetosisHasNoEnd", fourDays, deepKetosis, {0, 24}},
                    AveragesRow{"endingAtTheBorderIsInBoth", {{at(-3), at(0), 0}}, fasting, {3, 3}},
                    AveragesRow{"backwardIsNothing", {{at(8), at(6), 0}, {at(3), at(5), 0}}, fasting, {2, 0}},
                    AveragesRow{"beforeBothRanges", {{at(-200), at(-169), 0}}, fasting, {0, 0}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(ZoneAverages, ofARangeOfNoLengthAreNoNumbers) {
  const auto averages = zoneAverages(overTheBorder, starts, at(0));
  EXPECT_TRUE(std::isinf(averages[fasting].thisTimeRange));
  EXPECT_TRUE(std::isnan(averages[anabolic].thisTimeRange));
}

// The seconds of a fast between two instants during which it is between two ages: one interval, clipped twice.
double clipped(const FinishedFastingDataEntry& fast, Date from, Date to, double youngest, double oldest) {
  const Date start = std::max(from, fast.start + Duration{youngest});
  const Date end = std::min({to, fast.end, fast.start + Duration{oldest}});
  return std::max(0.0, secondsBetween(start, end));
}

class AveragesIn : public testing::TestWithParam<tests::CalendarRow> {};

TEST_P(AveragesIn, equalClippingEveryFastToEveryZone) {
  const auto calendar = GetParam().calendar();
  const Date around = GetParam().zone.around;
  EXPECT_TRUE(rc::check([&] {
    const Date now = around + Duration{*rc::gen::inRange(0, 20 * 86400) * 1.0};
    const auto range = *rc::gen::elementOf(std::vector(allTimeRanges.begin(), allTimeRanges.end()));
    const auto found = rangeStarts(range, *calendar, now).value();
    RC_ASSERT(found.lastStart < found.thisStart && found.thisStart < now);
    const Date end = calendar->endOfDay(now).value();
    const auto fasts = *tests::histories(around);
    const auto averages = zoneAverages(fasts, found, end);
    const double thisDays = secondsBetween(found.thisStart, end) / 86400;
    const double lastDays = secondsBetween(found.lastStart, found.thisStart) / 86400;

    std::array<double, 5> thisSeconds{}, lastSeconds{};
    for (const auto& fast : fasts)
      for (std::size_t i = 0; i < 5; ++i) {
        const double oldest = i == 4 ? std::numeric_limits<double>::infinity() : zoneBounds[i + 1];
        // A fast that goes on into this range loses the second before it; one that ends with the last is in both.
        const Date lastEnd = fast.end > found.thisStart ? found.thisStart - Duration{1} : found.thisStart;
        lastSeconds[i] += clipped(fast, found.lastStart, lastEnd, zoneBounds[i], oldest);
        const Date thisStart = fast.end == found.thisStart ? found.lastStart : found.thisStart;
        thisSeconds[i] += clipped(fast, thisStart, lastDate, zoneBounds[i], oldest);
      }
    double thisSum = 0, lastSum = 0;
    for (std::size_t i = 0; i < 5; ++i) {
      const auto& average = averages.zones[i + 2];
      RC_ASSERT(std::abs(average.thisTimeRange * thisDays - thisSeconds[i]) < 1e-5);
      RC_ASSERT(std::abs(average.lastTimeRange * lastDays - lastSeconds[i]) < 1e-5);
      thisSum += average.thisTimeRange;
      lastSum += average.lastTimeRange;
    }
    RC_ASSERT(std::abs(averages[fasting].thisTimeRange - thisSum) < 1e-6);
    RC_ASSERT(std::abs(averages[fasting].lastTimeRange - lastSum) < 1e-6);
    RC_ASSERT(std::abs(averages[fasting].lastTimeRange + averages[eating].lastTimeRange - 86400) < 1e-6);
    RC_ASSERT(std::abs(averages[fasting].thisTimeRange + averages[eating].thisTimeRange - 86400) < 1e-6);
  }));
}

INSTANTIATE_TEST_SUITE_P(Rows, AveragesIn, testing::ValuesIn(tests::calendarRows()), tests::calendarRowName);

}  // namespace
}  // namespace mivo
