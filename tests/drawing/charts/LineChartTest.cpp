// SPDX-License-Identifier: MIT
#include "drawing/charts/LineChart.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/pages/Pages.h"
#include "tests/support/TestWorld.h"

namespace mivo::drawing {
namespace {

using testing::ElementsAre;
using testing::Optional;
using tests::utc;
using Row = LineChart::Row;

constexpr double pound = 0.45359237;

/// "02-25..03-04"
struct PlainIntervals final : DateIntervalFormatter {
  std::optional<std::string> string(DateInterval interval) const override {
    return tests::text(interval.start).substr(5, 5) + ".." + tests::text(interval.end).substr(5, 5);
  }
};

class LineCharts : public testing::Test {
 protected:
  LineCharts() { world.dependencies.dateIntervalFormatter = std::make_shared<PlainIntervals>(); }

  PageClients clients() const { return pages.at(utc("2026-03-03 12:00")); }

  tests::TestWorld world;
  tests::Pages pages;
};

BodyWeightSample weighed(const char* date, double weightInKg) { return {UUID{0, 1}, utc(date), weightInKg}; }
WeightAverageEntry weight(const char* date, double weightInKg) { return {UUID{0, 1}, utc(date), weightInKg}; }
FastingAverageEntry fasted(const char* date, double hours) {
  return {UUID{0, 1}, utc(date), hours * secondsPerHour, hours};
}

const WeightChart weights{
    {weighed("2026-03-01 07:00", 80), weighed("2026-03-02 07:00", 81), weighed("2026-03-20 07:00", 90)},
    TimeRange::week};

WeightFastingChart pair() {
  return {.weightEntries = {weight("2026-03-01 00:00", 80), weight("2026-03-08 00:00", 82)},
          .fastingEntries = {fasted("2026-03-08 00:00", 17), fasted("2026-03-15 00:00", 18)},
          .timeRange = TimeRange::month,
          .weightScale = 80,
          .fastingScale = 72000};
}

TEST_F(LineCharts, showWeightsInTheUnitOfTheScreen) {
  const DependencyScope scope = world.enter();
  const LineChart chart{WeightChart{{weighed("2026-03-01 07:00", 80 * pound)}}, WeightUnit::pounds};
  ASSERT_EQ(chart.lines().size(), 1U);
  EXPECT_THAT(chart.lines()[0].points, ElementsAre(LinePoint{utc("2026-03-01 07:00"), 80}));
  EXPECT_EQ(chart.lines()[0].scale, 1);
  EXPECT_EQ(chart.valueText(0, 80, clients()), "36.3 kg") << "kilograms go to the formatter";
}

TEST_F(LineCharts, divideTwoLinesByTheirScales) {
  const DependencyScope scope = world.enter();
  const LineChart chart{pair(), WeightUnit::pounds};
  ASSERT_EQ(chart.lines().size(), 2U);
  EXPECT_DOUBLE_EQ(chart.lines()[0].points[0].value, 80 / pound);
  EXPECT_DOUBLE_EQ(chart.lines()[0].scale, 80 / pound);
  EXPECT_EQ(chart.lines()[1].points[0].value, 17);
  EXPECT_EQ(chart.lines()[1].scale, 20);
  EXPECT_EQ(chart.valueText(1, 17.9, clients()), "17h");
  EXPECT_EQ(chart.average(clients()), "") << "two lines have none";
}

TEST_F(LineCharts, readAsATableFromTheLatestPointOn) {
  const DependencyScope scope = world.enter();
  const LineChart chart{pair(), WeightUnit::kilograms};
  ASSERT_EQ(chart.rowCount(), 4U);
  EXPECT_EQ(chart.row(0, clients()), (Row{"03-08 00:00", "82.0 kg"}));
  EXPECT_EQ(chart.row(1, clients()), (Row{"03-01 00:00", "80.0 kg"}));
  EXPECT_EQ(chart.row(2, clients()), (Row{"03-15 00:00", "18h"}));
  EXPECT_EQ(chart.row(3, clients()), (Row{"03-08 00:00", "17h"}));
  EXPECT_EQ(chart.row(4, clients()), Row{});
}

TEST_F(LineCharts, tellTheDatesAndTheAverageOfWhatIsOnScreen) {
  const DependencyScope scope = world.enter();
  LineChart chart{weights, WeightUnit::kilograms};
  int told = 0;
  const Subscription following = chart.observeHeader([&told] { ++told; });
  EXPECT_EQ(chart.visibleDates(), "");
  chart.didScroll(utc("2026-02-25 12:00"));
  EXPECT_EQ(told, 1);
  EXPECT_EQ(chart.visibleDates(), "02-25..03-04");
  EXPECT_EQ(chart.average(clients()), "80.5 kg");
  chart.didScroll(utc("2026-03-05 12:00"));
  EXPECT_EQ(chart.average(clients()), "–") << "nobody was weighed";
}

TEST_F(LineCharts, sayWhereTheyHaveNothingToShow) {
  const DependencyScope scope = world.enter();
  const LineChart chart{weights, WeightUnit::kilograms};
  const auto weekFrom = [](const char* date) {
    return DateInterval{utc(date), utc(date) + Duration{7 * secondsPerDay}};
  };
  EXPECT_EQ(chart.note(weekFrom("2026-02-25 00:00"), clients()), "");
  EXPECT_EQ(chart.note(weekFrom("2026-03-05 00:00"), clients()), "") << "the line runs through";
  EXPECT_EQ(chart.note(weekFrom("2026-03-21 00:00"), clients()),
            "No weight between these dates. The latest one is of 03-20.");
  EXPECT_EQ((LineChart{pair(), WeightUnit::kilograms}.note(weekFrom("2026-04-01 00:00"), clients())),
            "No weight and no fast between these dates. The latest is of 03-15.");
  EXPECT_EQ((LineChart{WeightChart{}, WeightUnit::kilograms}.note(weekFrom("2026-03-01 00:00"), clients())), "")
      << "the card says what to do";
}

TEST_F(LineCharts, knowTheLongestTextsOfTheirGutter) {
  const DependencyScope scope = world.enter();
  EXPECT_THAT((LineChart{weights, WeightUnit::kilograms}.gutterTexts(clients())), ElementsAre("90.0"));
  EXPECT_THAT((LineChart{pair(), WeightUnit::kilograms}.gutterTexts(clients())), ElementsAre("82.0", "18"));
  EXPECT_EQ(LineChart::gutterText(0, 81.26, clients()), "81.3");
  EXPECT_EQ(LineChart::gutterText(1, 16.5, clients()), "16") << "as a touched point says it";
}

TEST_F(LineCharts, tellWhatIsTouched) {
  const DependencyScope scope = world.enter();
  LineChart chart{pair(), WeightUnit::kilograms};
  EXPECT_FALSE(chart.annotation(clients()));
  EXPECT_EQ(chart.spokenSelection(clients()), "");

  chart.didTouch(utc("2026-03-08 06:00"));  // both lines have a point there
  EXPECT_THAT(chart.selection(), ElementsAre(Optional(LinePoint{utc("2026-03-08 00:00"), 82}),
                                             Optional(LinePoint{utc("2026-03-08 00:00"), 17})));
  EXPECT_EQ(chart.spokenSelection(clients()), "03-08, 82.0 kg, 17h");

  chart.didTouch(utc("2026-03-15 06:00"));  // only the second one
  EXPECT_THAT(chart.selection(), ElementsAre(std::nullopt, Optional(LinePoint{utc("2026-03-15 00:00"), 18})));
  EXPECT_THAT(chart.annotation(clients())->values, ElementsAre("", "18h"));
  EXPECT_EQ(chart.spokenSelection(clients()), "03-15, 18h");

  chart.didTouch(std::nullopt);
  EXPECT_FALSE(chart.annotation(clients()));
}

TEST_F(LineCharts, reachFromTheFirstPointOfAnyLineToTheEndOfToday) {
  const DependencyScope scope = world.enter();
  WeightFastingChart chart = pair();
  chart.fastingEntries = {fasted("2025-06-01 00:00", 17)};
  EXPECT_EQ((LineChart{chart, WeightUnit::kilograms}.domain(clients())),
            (DateInterval{utc("2025-06-01 00:00"), utc("2026-03-04 00:00")}));
  const LineChart empty{WeightChart{}, WeightUnit::kilograms};
  EXPECT_TRUE(empty.isEmpty());
  EXPECT_EQ(secondsBetween(empty.domain(clients()).start, empty.domain(clients()).end), 7 * secondsPerDay);
}

TEST_F(LineCharts, knowWhetherTheyShowTheSame) {
  const DependencyScope scope = world.enter();
  const LineChart chart{weights, WeightUnit::kilograms};
  EXPECT_TRUE(chart.shows(weights, WeightUnit::kilograms));
  EXPECT_FALSE(chart.shows(weights, WeightUnit::pounds));
  EXPECT_FALSE(chart.shows(WeightChart{weights.entries, TimeRange::month}, WeightUnit::kilograms));
  EXPECT_FALSE(chart.shows(pair(), WeightUnit::kilograms));
}

}  // namespace
}  // namespace mivo::drawing
