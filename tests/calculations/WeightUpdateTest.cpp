// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "mivo/calculations/StatsContainer.h"
#include "mivo/store/Print.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using Samples = std::vector<BodyWeightSample>;

constexpr Date now = dateSince1970(1782907200);  // 2026-07-01T12:00Z
constexpr Date daysAgo(double days) { return now - Duration{days * secondsPerDay}; }

class WeightUpdate : public testing::Test {
 protected:
  DependencyScope scope{std::make_shared<Dependencies>(tests::fixedDependencies())};
};

TEST_F(WeightUpdate, ofNoSamplesHasScalesAndNothingElse) {
  const auto stats = StatsContainer::update(Samples{});
  StatsContainer expected = StatsContainer::empty();
  expected.weightChartScaleForWeek = expected.weightChartScaleForMonth = expected.weightChartScaleForYear = 75.0;
  EXPECT_EQ(stats, expected);
}

TEST_F(WeightUpdate, ofOneSampleHasNoTrend) {
  const BodyWeightSample sample{{1, 1}, daysAgo(1), 81.4};
  const auto stats = StatsContainer::update(Samples{sample});
  EXPECT_EQ(stats.weightLogsForWeek.value(), List{sample});
  EXPECT_EQ(stats.weightLogsForYear.value(), List{sample});
  EXPECT_EQ(stats.weightAvgLogsForMonth->front().value, 81.4);
  EXPECT_EQ(stats.weightChartScaleForMonth, 81.4);
  EXPECT_EQ(stats.currentWeightInKg.value(), 81.4);
  EXPECT_EQ(stats.trendTimeRange.value(), std::nullopt);
  EXPECT_EQ(stats.weightTrendInKg.value(), std::nullopt);
}

TEST_F(WeightUpdate, cutsEachRangeOffWithTheCutOffInside) {
  const double justOut = 1.0 / secondsPerDay;
  const Samples samples{{{0, 1}, daysAgo(3650 + justOut), 90}, {{0, 2}, daysAgo(3650), 89},
                        {{0, 3}, daysAgo(365 + justOut), 88},  {{0, 4}, daysAgo(365), 87},
                        {{0, 5}, daysAgo(90 + justOut), 86},   {{0, 6}, daysAgo(90), 85}};
  const auto stats = StatsContainer::update(samples);
  EXPECT_EQ(stats.weightLogsForWeek.value(), List{samples[5]});
  // Of two weighings within a day, or a week, the chart of a longer range shows the later one.
  EXPECT_EQ(stats.weightLogsForMonth.value(), (List{samples[3], samples[5]}));
  EXPECT_EQ(stats.weightLogsForYear.value(), (List{samples[1], samples[3], samples[5]}));
  EXPECT_EQ(stats.weightAvgLogsForYear->front().value, 89.5) << "the average reaches back beyond the cut-off";
  EXPECT_EQ(stats.weightChartScaleForYear, 89.5);
  EXPECT_EQ(stats.currentWeightInKg.value(), 85);
  EXPECT_EQ(stats.trendTimeRange.value(), std::nullopt) << "one sample in 90 days";
}

TEST_F(WeightUpdate, fitsTheLastNinetyDays) {
  const Samples samples{{{0, 1}, daysAgo(91), 60}, {{0, 2}, daysAgo(40), 80}, {{0, 3}, daysAgo(10), 78}};
  const auto stats = StatsContainer::update(samples);
  EXPECT_EQ(stats.trendTimeRange.value(), (ClosedDateRange{daysAgo(40), daysAgo(10)}));
  EXPECT_NEAR(stats.weightTrendInKg->value(), -2, 1e-12);
}

TEST_F(WeightUpdate, scalesAreTakenAfterThinning) {
  const Samples samples{{{0, 1}, daysAgo(100.2), 99}, {{0, 2}, daysAgo(100.1), 81}};  // both on one day
  const auto stats = StatsContainer::update(samples);
  EXPECT_EQ(stats.weightAvgLogsForMonth->size(), 1u);
  EXPECT_EQ(stats.weightChartScaleForMonth, 90);
}

TEST_F(WeightUpdate, mergesTheWeightHalfOnly) {
  auto stats = StatsContainer::empty();
  stats.totalFasts = 7;
  stats.updateWeightChart(StatsContainer::update(Samples{{{0, 1}, daysAgo(3), 80}, {{0, 2}, daysAgo(1), 79}}));
  EXPECT_EQ(stats.totalFasts, 7);
  EXPECT_EQ(stats.weightLogsForWeek->size(), 2u);
  EXPECT_EQ(stats.weightAvgLogsForYear->size(), 1u);
  EXPECT_EQ(stats.weightChartScaleForWeek, 80);
  EXPECT_EQ(stats.currentWeightInKg.value(), 79);
  EXPECT_TRUE(stats.trendTimeRange->has_value());
  EXPECT_NEAR(stats.weightTrendInKg->value(), -1, 1e-12);
}

}  // namespace
}  // namespace mivo
