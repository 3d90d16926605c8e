// SPDX-License-Identifier: MIT
#include "mivo/calculations/StatsContainer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "mivo/store/Print.h"
#include "tests/histories/ZoneRows.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Hours after Wednesday 2026-07-01T00:00Z.
constexpr Date at(double hours) { return dateSince1970(1782864000) + Duration{hours * secondsPerHour}; }
constexpr Date now = at(12);

FastingDataEntry finished(double startHour, double endHour) { return finishedFast({}, at(startHour), at(endHour), 0); }

struct Skeletons : DateFormatter {
  std::optional<std::string> string(Date date, std::string_view skeleton) const override {
    return std::string{skeleton} + ' ' + printed(date).substr(5, 5);
  }
};

class StatsContainerUpdate : public testing::Test {
 protected:
  StatsContainerUpdate() {
    auto clients = std::make_shared<Dependencies>(tests::fixedDependencies());
    clients->date = std::make_shared<tests::FixedClock>(now);
    clients->calendar = clients->currentCalendar = tests::gregorianCalendar("UTC");
    clients->dateFormatter = std::make_shared<Skeletons>();
    clients->issueReporter = issues;
    scope = std::make_unique<DependencyScope>(clients);
  }

  std::shared_ptr<tests::RecordedIssues> issues = std::make_shared<tests::RecordedIssues>();
  std::unique_ptr<DependencyScope> scope;
  StatsContainer stats = StatsContainer::empty();
};

TEST_F(StatsContainerUpdate, ofNothingIsNothing) {
  stats.update({}, std::nullopt, {}, TimeRange::week);
  EXPECT_EQ(stats.totalFasts, 0);
  EXPECT_EQ(stats.averageFast, 0);
  EXPECT_EQ(stats.longestFast, 0);
  EXPECT_EQ(stats.fastingAverages.value(), (AverageThisLastTimeRange{0, 0}));
  EXPECT_EQ(stats.eatingAverages.value(), (AverageThisLastTimeRange{86400, 86400}));
  EXPECT_TRUE(stats.fastingChartState.data->empty());
  EXPECT_EQ(stats.fastingChartState.maxTime, 0);
  EXPECT_EQ(stats.fastingChartState.now, now);
  EXPECT_EQ(stats.fastingChartScaleForWeek, 5184000);
  EXPECT_THAT(issues->messages, IsEmpty());
}

TEST_F(StatsContainerUpdate, countsTheOngoingFastUpToNowAndNoOtherUnfinishedOne) {
  stats.update(std::vector{ongoingFast({}, at(3), 0)}, ongoingFast({}, at(10.5), 0), {}, TimeRange::week);
  EXPECT_EQ(stats.totalFasts, 1);
  EXPECT_EQ(stats.totalHours, 1);
  EXPECT_EQ(stats.averageFast, 5400);
  EXPECT_EQ(stats.longestFast, 5400);
  EXPECT_EQ(stats.anabolicAverages->thisTimeRange, 5400 / 3.0) << "Monday to Wednesday";
}

TEST_F(StatsContainerUpdate, putsTheOngoingFastInItsPlace) {
  // By start: 0, 2 (ongoing until 12), 5. The last one ends within the break of the ongoing one.
  stats.update(std::vector{finished(5, 40), finished(0, 1)}, ongoingFast({}, at(2), 0),
               {StreakSettings::CountingEntity::fasts, false, 2}, TimeRange::week);
  EXPECT_EQ(stats.totalFasts, 3);
  EXPECT_EQ(stats.currentStreak, 3);
  EXPECT_TRUE(stats.hasOverlappingFasts.value());
}

TEST_F(StatsContainerUpdate, fillsBothChartsAndTheFastingLine) {
  stats.update(std::vector{finished(-30, -14), finished(-6, 10)}, std::nullopt, {}, TimeRange::week);
  const auto& fasting = stats.fastingChartState;
  ASSERT_EQ(fasting.data->size(), 3u);  // 29 June to 1 July
  EXPECT_EQ(fasting.chartTimeUnit, ChartTimeUnit::day);
  EXPECT_EQ(fasting.maxTime, 16 * 3600.0) << "10 h and 6 h of the 30th";
  EXPECT_EQ((*fasting.data)[0].value, 6.0 / 16);
  EXPECT_EQ((*fasting.data)[1].value, 1);
  EXPECT_EQ((*fasting.data)[2].value, 10.0 / 16);
  EXPECT_EQ((*fasting.data)[2].xAxisLabel, "EEE 07-01");
  EXPECT_EQ((*fasting.data)[2].dateInterval, (DateInterval{at(0), at(24)}));
  const auto& eating = stats.eatingChartState;
  EXPECT_EQ(eating.maxTime, 8 * 3600.0);
  EXPECT_EQ((*eating.data)[0].value, 0) << "the first day counts from the first fast's start";
  EXPECT_EQ((*eating.data)[1].value, 1);
  EXPECT_EQ((*eating.data)[2].value, 2.0 / 8) << "10 o'clock to now";
  EXPECT_FALSE(stats.hasOverlappingFasts.value());

  ASSERT_EQ(stats.fastingAvgLogsForWeek->size(), 2u);
  EXPECT_EQ(stats.fastingAvgLogsForWeek->back().date, at(10));
  EXPECT_EQ(stats.fastingAvgLogsForWeek->back().value, 32 * 3600.0);
  EXPECT_EQ(stats.fastingAvgLogsForWeek->back().hours, 32);
  EXPECT_EQ(stats.fastingAvgLogsForYear->size(), 1u) << "one a week";
  EXPECT_EQ(stats.fastingChartScaleForYear, 32 * 3600.0);
}

TEST_F(StatsContainerUpdate, leavesBackwardFastsOutOfTheChartsAndReportsThemOnce) {
  stats.update(std::vector{finished(8, 6), finished(2, 3), finished(9, 7)}, std::nullopt, {}, TimeRange::week);
  EXPECT_THAT(issues->messages,
              ElementsAre("invalid ordering F: 2026-07-01T08:00:00Z-2026-07-01T06:00:00Z "
                          "DI:2026-07-01T00:00:00Z-2026-07-02T00:00:00Z "
                          "[2026-07-01T00:00:00Z-2026-07-02T00:00:00Z, 2026-07-01T00:00:00Z-2026-07-02T00:00:00Z] "
                          "[2026-07-01T08:00:00Z-2026-07-01T06:00:00Z, 2026-07-01T09:00:00Z-2026-07-01T07:00:00Z]"));
  EXPECT_EQ(stats.totalFasts, 3);
  EXPECT_EQ(stats.totalHours, 1);
  EXPECT_EQ(stats.fastingAvgLogsForWeek->size(), 1u);
  EXPECT_EQ(stats.fastingChartState.maxTime, 3600);
  EXPECT_FALSE(stats.hasOverlappingFasts.value());
}

TEST_F(StatsContainerUpdate, keepsAveragesAndChartsWhereThereIsNoRangeStart) {
  auto clients = std::make_shared<Dependencies>(*currentContext());
  clients->date = std::make_shared<tests::FixedClock>(firstDate + Duration{3 * secondsPerDay});
  stats.update(std::vector{finished(0, 16)}, std::nullopt, {}, TimeRange::year);
  const StatsContainer before = stats;
  withDependencies(clients, [&] { stats.update(std::vector{finished(0, 2)}, std::nullopt, {}, TimeRange::year); });
  EXPECT_EQ(stats.totalHours, 2);
  EXPECT_EQ(stats.longestFast, 7200);
  StatsContainer withOldTotals = stats;
  withOldTotals.totalHours = before.totalHours.value();
  withOldTotals.averageFast = before.averageFast.value();
  withOldTotals.longestFast = before.longestFast.value();
  EXPECT_EQ(withOldTotals, before);
}

TEST_F(StatsContainerUpdate, doesNotTouchTheWeights) {
  stats.currentWeightInKg = 81.5;
  stats.weightChartScaleForWeek = 82.0;
  stats.update(std::vector{finished(0, 16)}, std::nullopt, {}, TimeRange::month);
  EXPECT_EQ(stats.currentWeightInKg.value(), 81.5);
  EXPECT_EQ(stats.weightChartScaleForWeek, 82.0);
}

TEST_F(StatsContainerUpdate, copyHasTheSameValuesAndOtherStamps) {
  stats.update(std::vector{finished(0, 11)}, std::nullopt, {}, TimeRange::week);
  const StatsContainer copy = stats.copy();
  EXPECT_EQ(copy, stats);
  EXPECT_NE(copy.totalFasts.stamp(), stats.totalFasts.stamp());
  EXPECT_NE(copy.trendTimeRange.stamp(), stats.trendTimeRange.stamp());
  EXPECT_NE(copy.fastingChartState.data.stamp(), stats.fastingChartState.data.stamp());
}

TEST_F(StatsContainerUpdate, mergeOfTheFastingHalfKeepsWeightsSelectionAndTheIdsOfTheSamePeriods) {
  stats.update(std::vector{finished(-30, -14)}, std::nullopt, {}, TimeRange::week);
  stats.currentWeightInKg = 81.5;
  const UUID monday = stats.fastingChartState.data->front().id, eatenMonday = stats.eatingChartState.data->front().id;
  stats.fastingChartState.selectedUUID = monday;
  stats.fastingChartState.scrollViewMidX = 140.0;

  StatsContainer fresh = stats.copy();
  fresh.currentWeightInKg = std::nullopt;
  fresh.update(std::vector{finished(-54, -40), finished(-30, -10)}, std::nullopt, {}, TimeRange::week);
  ASSERT_NE((*fresh.fastingChartState.data)[1].id, monday);
  const auto stamp = stats.totalFasts.stamp();
  stats.updateFastingChart(fresh);

  const auto& bars = *stats.fastingChartState.data;
  ASSERT_EQ(bars.size(), 4u);  // 28 June to 1 July
  EXPECT_EQ(bars[1].id, monday);
  EXPECT_EQ((*stats.eatingChartState.data)[1].id, eatenMonday);
  EXPECT_EQ(bars[0].id, (*fresh.fastingChartState.data)[0].id);
  EXPECT_EQ(bars[1].value, (*fresh.fastingChartState.data)[1].value);
  EXPECT_EQ(stats.fastingChartState.selectedUUID.value(), monday);
  EXPECT_EQ(stats.fastingChartState.scrollViewMidX.value(), 140.0);
  EXPECT_EQ(stats.fastingChartState.maxTime, fresh.fastingChartState.maxTime.value());
  EXPECT_EQ(stats.totalFasts, 2);
  EXPECT_NE(stats.totalFasts.stamp(), stamp);
  EXPECT_EQ(stats.fastingAvgLogsForWeek, fresh.fastingAvgLogsForWeek);
  EXPECT_EQ(stats.currentWeightInKg.value(), 81.5);
}

TEST_F(StatsContainerUpdate, mergeOfEqualChartsNotifiesNobodyOfTheirBars) {
  stats.update(std::vector{finished(-30, -14)}, std::nullopt, {}, TimeRange::week);
  StatsContainer fresh = stats.copy();
  fresh.update(std::vector{finished(-30, -14)}, std::nullopt, {}, TimeRange::week);
  const auto stamp = stats.fastingChartState.data.stamp();
  stats.updateFastingChart(fresh);
  EXPECT_EQ(stats.fastingChartState.data.stamp(), stamp);
}

TEST(StatsContainer, listsItsFieldsInOrder) {
  std::vector<std::string> names;
  const StatsContainer stats = StatsContainer::empty();
  fields(stats, [&](std::string_view name, const auto&) { names.emplace_back(name); });
  ASSERT_EQ(names.size(), 34u);
  EXPECT_EQ(names[6], "fastingAverages");
  EXPECT_EQ(names[28], "fastingChartState");
  EXPECT_EQ(names[33], "trendTimeRange");
}

}  // namespace
}  // namespace mivo
