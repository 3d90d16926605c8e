// SPDX-License-Identifier: MIT
#include "mivo/store/Observed.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <span>

#include "mivo/model/Record.h"
#include "mivo/store/IdentifiedArray.h"
#include "mivo/store/List.h"
#include "mivo/store/Print.h"

namespace mivo {
namespace {

struct Chart {
  Observed<double> maxTime;
  bool operator==(const Chart&) const = default;
};

template <RecordOf<Chart> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [maxTime] = record;
  visit("maxTime", maxTime);
}

struct Stats {
  Observed<std::int64_t> totalFasts;
  Observed<List<double>> weights;
  Observed<std::optional<double>> trend;
  Observed<std::map<int, double>> middles;
  Chart chart;
  bool operator==(const Stats&) const = default;
};

template <RecordOf<Stats> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [totalFasts, weights, trend, middles, chart] = record;
  visit("totalFasts", totalFasts);
  visit("weights", weights);
  visit("trend", trend);
  visit("middles", middles);
  visit("chart", chart);
}

Stats someStats() {
  return {.totalFasts = 3,
          .weights = List<double>{81.5, 80.0},
          .trend = std::nullopt,
          .middles = std::map<int, double>{{1, 2.0}},
          .chart = {.maxTime = 7200.0}};
}

static_assert(!std::is_default_constructible_v<Observed<double>>);
static_assert(!std::is_default_constructible_v<Stats>);

TEST(Observed, scalarWritesStampAlsoWhereTheValueStaysTheSame) {
  Stats stats = someStats();
  const Stamp fasts = stats.totalFasts.stamp(), trend = stats.trend.stamp(), middles = stats.middles.stamp();
  stats.totalFasts = 3;
  stats.trend = std::nullopt;
  stats.middles = std::map<int, double>{{1, 2.0}};
  EXPECT_NE(stats.totalFasts.stamp(), fasts);
  EXPECT_NE(stats.trend.stamp(), trend);
  EXPECT_NE(stats.middles.stamp(), middles);
  EXPECT_EQ(stats, someStats());
}

TEST(Observed, listWritesStampOnlyWhereTheListChanged) {
  Stats stats = someStats();
  const Stamp before = stats.weights.stamp();
  const List<double> sameStorage = stats.weights;
  stats.weights = sameStorage;
  stats.weights = List<double>{81.5, 80.0};
  stats.weights = std::vector{81.5, 80.0};
  EXPECT_EQ(stats.weights.stamp(), before);
  EXPECT_TRUE(stats.weights->sharesStorageWith(sameStorage));
  stats.weights = List<double>{81.5};
  EXPECT_NE(stats.weights.stamp(), before);
}

TEST(Observed, aStatePutBackCarriesItsOldStamps) {
  Stats stats = someStats();
  const Stats old = stats;
  EXPECT_EQ(old.totalFasts.stamp(), stats.totalFasts.stamp());
  stats.totalFasts = 4;
  const Stamp written = stats.totalFasts.stamp();
  stats = old;
  EXPECT_NE(stats.totalFasts.stamp(), written);
  EXPECT_EQ(stats.totalFasts.stamp(), old.totalFasts.stamp());
}

TEST(Observed, aValueOfAnotherRecordStampsLikeAnyWrite) {
  Stats stats = someStats(), other = someStats();
  const Stamp before = stats.totalFasts.stamp();
  stats.totalFasts = other.totalFasts.value();
  EXPECT_NE(stats.totalFasts.stamp(), before);
  EXPECT_NE(stats.totalFasts.stamp(), other.totalFasts.stamp());
}

TEST(Observed, restampReachesEveryFieldOfEveryNestedRecord) {
  Stats stats = someStats();
  const Stats old = stats;
  restamp(stats);
  EXPECT_EQ(stats, old);
  EXPECT_NE(stats.totalFasts.stamp(), old.totalFasts.stamp());
  EXPECT_NE(stats.weights.stamp(), old.weights.stamp());
  EXPECT_NE(stats.chart.maxTime.stamp(), old.chart.maxTime.stamp());
}

TEST(Observed, readsAsItsValue) {
  Stats stats = someStats();
  EXPECT_EQ(stats.totalFasts + 1, 4);
  EXPECT_EQ(stats.totalFasts, 3);
  EXPECT_EQ(stats.trend, std::nullopt);
  stats.trend = -0.5;
  EXPECT_EQ(**stats.trend, -0.5);
  const std::span<const double> weights = stats.weights.value();
  EXPECT_EQ(weights.size(), 2u);
}

}  // namespace
}  // namespace mivo
