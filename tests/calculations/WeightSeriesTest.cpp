// SPDX-License-Identifier: MIT
#include "mivo/calculations/WeightSeries.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "mivo/store/Print.h"
#include "tests/support/FixedClients.h"

namespace mivo {

void showValue(const BodyWeightSample& sample, std::ostream& out) {
  out << secondsSince1970(sample.date) << " s: " << sample.weightInKg << " kg";
}

namespace {

using Samples = std::vector<BodyWeightSample>;

constexpr Date day(double number) { return dateSince1970(1782864000 + number * secondsPerDay); }

double averageOfWindow(const Samples& samples, std::size_t last) {
  long double sum = 0;
  int count = 0;
  for (std::size_t i = 0; i <= last; ++i)
    if (secondsBetween(samples[i].date, samples[last].date) <= 604800) sum += samples[i].weightInKg, ++count;
  return static_cast<double>(sum / count);
}

Samples randomSamples() {
  Samples samples;
  double seconds = 0;
  const int count = *rc::gen::inRange(0, 200);
  for (int i = 0; i < count; ++i) {
    seconds += *rc::gen::element(0.0, 1.0, 3600.0, 86400.0, 86400.0, 604799.0, 604800.0, 604801.0);
    samples.push_back({{}, dateSince1970(1.7e9 + seconds), *rc::gen::inRange(300, 2000) / 10.0});
  }
  return samples;
}

RC_GTEST_PROP(WeeklyAverages, equalAddingUpEachWindow, ()) {
  const auto samples = randomSamples();
  const auto averages = weeklyAverages(samples, tests::CountingUUIDs{});
  RC_ASSERT(averages.size() == samples.size());
  for (std::size_t i = 0; i < samples.size(); ++i) {
    RC_ASSERT(averages[i].date == samples[i].date);
    RC_ASSERT(std::abs(averages[i].value - averageOfWindow(samples, i)) < 1e-13 * averages[i].value);
  }
}

TEST(WeeklyAverages, ofSamplesEightDaysApartAreTheSamplesExactly) {
  Samples samples;
  for (int i = 0; i < 100; ++i) samples.push_back({{}, day(8 * i), 80.1 + 0.37 * i});
  const auto averages = weeklyAverages(samples, tests::CountingUUIDs{});
  for (std::size_t i = 0; i < samples.size(); ++i) EXPECT_EQ(averages[i].value, samples[i].weightInKg);
  EXPECT_NE(averages[0].id, averages[1].id);
}

TEST(WeeklyAverages, keepASampleThatIsExactlySevenDaysOlder) {
  EXPECT_EQ(weeklyAverages(Samples{{{}, day(0), 80}, {{}, day(7), 78}}, tests::CountingUUIDs{}).back().value, 79);
}

TEST(WeeklyAverages, forgetAWeightThatIsNotFiniteOnceItIsOutOfTheirWindow) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double odd : {infinity, -infinity, std::nan("")}) {
    const Samples samples{{{}, day(0), 80}, {{}, day(1), odd}, {{}, day(8), 78}, {{}, day(9), 82}};
    const auto averages = weeklyAverages(samples, tests::CountingUUIDs{});
    EXPECT_EQ(averages[0].value, 80);
    EXPECT_FALSE(std::isfinite(averages[1].value));
    EXPECT_FALSE(std::isfinite(averages[2].value)) << "exactly seven days later";
    EXPECT_EQ(averages[3].value, 80) << odd;
  }
}

TEST(TrendTimeRange, needsTwoSamplesThatDiffer) {
  const BodyWeightSample one{{1, 1}, day(0), 80}, sameButItsID{{1, 2}, day(0), 80};
  EXPECT_EQ(trendTimeRange({}), std::nullopt);
  EXPECT_EQ(trendTimeRange(Samples{one}), std::nullopt);
  EXPECT_EQ(trendTimeRange(Samples{one, one}), std::nullopt);
  EXPECT_EQ(trendTimeRange(Samples{one, sameButItsID}), (ClosedDateRange{day(0), day(0)}));
}

TEST(TrendTimeRangeDeathTest, stopsWhereSamplesAreOutOfOrder) {
  EXPECT_DEATH(trendTimeRange(Samples{{{}, day(1), 80}, {{}, day(0), 80}}), "ascending order");
}

TEST(WeightTrend, isTheFittedChangeOfAClearLine) {
  const ClosedDateRange month{day(0), day(30)};
  EXPECT_NEAR(weightTrendInKg(Samples{{{}, day(0), 80}, {{}, day(30), 78}}, month).value(), -2, 1e-12);
  EXPECT_EQ(weightTrendInKg(Samples{{{}, day(0), 80}, {{}, day(15), 70}, {{}, day(30), 80}}, month), std::nullopt);
  EXPECT_EQ(weightTrendInKg(Samples{{{}, day(0), 80}, {{}, day(30), 80}}, month), std::nullopt) << "no spread at all";
  EXPECT_EQ(weightTrendInKg(Samples{{{}, day(0), 80}}, month), std::nullopt);
}

}  // namespace
}  // namespace mivo
