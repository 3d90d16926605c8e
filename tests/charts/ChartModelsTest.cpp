// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "mivo/charts/BodyWeightChartHeaderModel.h"
#include "mivo/charts/BodyWeightInnerChartSelectionModel.h"
#include "mivo/charts/ChartHeaderModel.h"
#include "mivo/charts/InnerChartSelectionModel.h"
#include "mivo/charts/WeightFastingChart.h"
#include "mivo/store/Print.h"
#include "tests/support/TestWorld.h"

namespace mivo {
namespace {

constexpr Date start = dateSince1970(1772323200);  // 1 March 2026
constexpr Date hour(double number) { return start + Duration{number * secondsPerHour}; }

/// "1772323200 + 7 days"; nothing before 1970.
struct SpanFormatter : DateIntervalFormatter {
  std::optional<std::string> string(DateInterval interval) const override {
    if (secondsSince1970(interval.start) < 0) return std::nullopt;
    return std::to_string(static_cast<int>(secondsSince1970(interval.start))) + " + " +
           std::to_string(static_cast<int>(interval.duration() / secondsPerDay)) + " days";
  }
};

class ChartModel : public testing::Test {
 protected:
  tests::TestWorld world;
  DependencyScope scope{[this] {
    world.dependencies.dateIntervalFormatter = std::make_shared<SpanFormatter>();
    return std::make_shared<const Dependencies>(world.dependencies);
  }()};
  int announced = 0;
  std::function<void()> count = [this] { ++announced; };
};

WeightAverageEntry weight(double atHour) { return {{1, 0}, hour(atHour), 80}; }
FastingAverageEntry fasting(double atHour) { return {{2, 0}, hour(atHour), 3600, 1}; }
BodyWeightSample sample(double atHour, double weightInKg) { return {{3, 0}, hour(atHour), weightInKg}; }

struct PairRow {
  const char* name;
  std::vector<double> weights, fasts;  // hours
  double touched;
  std::optional<double> weight, fasting;
};
void PrintTo(const PairRow& row, std::ostream* out) { *out << row.name; }

class NearestPair : public testing::TestWithParam<PairRow> {};

TEST_P(NearestPair, holdsWhatIsLessThanADayApart) {
  const PairRow& row = GetParam();
  std::vector<WeightAverageEntry> weights;
  std::vector<FastingAverageEntry> fasts;
  for (const double each : row.weights) weights.push_back(weight(each));
  for (const double each : row.fasts) fasts.push_back(fasting(each));

  std::optional<WeightFastingEntry> expected;
  if (row.weight || row.fasting) expected.emplace();
  if (row.weight) expected->weight = weight(*row.weight);
  if (row.fasting) expected->fasting = fasting(*row.fasting);
  EXPECT_EQ(
      nearestPair(DatedSeries<WeightAverageEntry>{weights}, DatedSeries<FastingAverageEntry>{fasts}, hour(row.touched)),
      expected);
}

constexpr std::nullopt_t none = std::nullopt;
INSTANTIATE_TEST_SUITE_P(Rows, NearestPair,
                         testing::Values(PairRow{"bothEmpty", {}, {}, 0, none, none},
                                         PairRow{"onlyFasting", {}, {10, 50}, 45, none, 50},
                                         PairRow{"onlyWeight", {10, 50}, {}, 45, 50, none},
                                         PairRow{"aSecondShortOfADay", {0}, {24 - 1 / 3600.0}, 100, 0, 24 - 1 / 3600.0},
                                         PairRow{"aDayApartWeightNearer", {0}, {24}, 11, 0, none},
                                         PairRow{"aDayApartFastingNearer", {0}, {24}, 13, none, 24},
                                         PairRow{"aDayApartInTheMiddle", {0}, {24}, 12, none, 24},
                                         PairRow{"weightLaterInTheMiddle", {30}, {0}, 15, none, 0},
                                         PairRow{"theNearestOfEach", {0, 48, 96}, {1, 47, 97}, 50, 48, 47}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST_F(ChartModel, selectsAndClearsAPair) {
  InnerChartSelectionModel model{List{weight(0), weight(48)}, List{fasting(1)}, TimeRange::month};
  EXPECT_EQ(model.timeRange(), TimeRange::month);
  EXPECT_EQ(model.selectedEntry(), std::nullopt);

  model.didUpdateRawSelectedDate(hour(2));
  EXPECT_EQ(model.rawSelectedDate(), hour(2));
  EXPECT_EQ(model.selectedEntry(), (WeightFastingEntry{weight(0), fasting(1)}));

  model.didUpdateRawSelectedDate(std::nullopt);
  EXPECT_EQ(model.rawSelectedDate(), std::nullopt);
  EXPECT_EQ(model.selectedEntry(), std::nullopt);
}

TEST_F(ChartModel, selectsTheWeighingListedFirst) {
  BodyWeightInnerChartSelectionModel model{List{sample(0, 80), sample(10, 81), sample(10, 82)}, TimeRange::week};
  model.didUpdateRawSelectedDate(hour(5));
  EXPECT_EQ(model.selectedEntry(), sample(0, 80));
  model.didUpdateRawSelectedDate(hour(6));
  EXPECT_EQ(model.selectedEntry(), sample(10, 81));
  model.didUpdateRawSelectedDate(std::nullopt);
  EXPECT_EQ(model.selectedEntry(), std::nullopt);

  BodyWeightInnerChartSelectionModel empty{List<BodyWeightSample>{}, TimeRange::week};
  empty.didUpdateRawSelectedDate(hour(5));
  EXPECT_EQ(empty.selectedEntry(), std::nullopt);
}

template <class Model>
std::unique_ptr<Model> someModel();
template <>
std::unique_ptr<InnerChartSelectionModel> someModel() {
  return std::make_unique<InnerChartSelectionModel>(List{weight(0)}, List{fasting(0)}, TimeRange::week);
}
template <>
std::unique_ptr<BodyWeightInnerChartSelectionModel> someModel() {
  return std::make_unique<BodyWeightInnerChartSelectionModel>(List{sample(0, 80)}, TimeRange::week);
}

template <class Model>
class SelectionModel : public ChartModel {};
using SelectionModels = testing::Types<InnerChartSelectionModel, BodyWeightInnerChartSelectionModel>;
TYPED_TEST_SUITE(SelectionModel, SelectionModels);

TYPED_TEST(SelectionModel, announcesABurstOnceItRested) {
  const auto model = someModel<TypeParam>();
  const Subscription subscription = model->observe(this->count);
  for (const double each : {1.0, 2.0, 3.0}) {
    model->didUpdateRawSelectedDate(hour(each));
    this->world.queue->advance(Duration{0.009});
  }
  EXPECT_EQ(this->announced, 0);
  this->world.queue->advance(Duration{0.001});
  EXPECT_EQ(this->announced, 1);

  model->didUpdateRawSelectedDate(std::nullopt);
  this->world.queue->advance(Duration{1});
  EXPECT_EQ(this->announced, 2);
}

TYPED_TEST(SelectionModel, announcesNothingOnceItIsGone) {
  auto model = someModel<TypeParam>();
  const Subscription subscription = model->observe(this->count);
  model->didUpdateRawSelectedDate(hour(1));
  model.reset();
  this->world.queue->advance(Duration{1});
  EXPECT_EQ(this->announced, 0);
}

TYPED_TEST(SelectionModel, mayBeReleasedByItsObserver) {
  auto model = someModel<TypeParam>();
  const Subscription subscription = model->observe([&model] { model.reset(); });
  const Subscription second = model->observe(this->count);
  model->didUpdateRawSelectedDate(hour(1));
  this->world.queue->advance(Duration{1});
  EXPECT_EQ(model, nullptr);
}

TEST_F(ChartModel, headersSayWhatIsVisible) {
  const std::pair<TimeRange, double> spans[]{{TimeRange::week, 7}, {TimeRange::month, 30}, {TimeRange::year, 180}};
  for (const auto& [range, days] : spans) {
    ChartHeaderModel header{range};
    const Date now = world.clock->now();
    EXPECT_EQ(header.visibleDateInterval(), (DateInterval{now, now}));
    EXPECT_EQ(header.formattedDateInterval(), "");

    header.didUpdateScrollPosition(start);
    EXPECT_EQ(header.visibleDateInterval(), (DateInterval{start, start + Duration{days * secondsPerDay}}));
    EXPECT_EQ(header.formattedDateInterval(), "1772323200 + " + std::to_string(static_cast<int>(days)) + " days");

    header.didUpdateScrollPosition(dateSince1970(-1));
    EXPECT_EQ(header.formattedDateInterval(), "") << "the formatter has no text";
  }
}

TEST_F(ChartModel, headerAnnouncesEachUpdateOnceAllIsWritten) {
  BodyWeightChartHeaderModel header{List{sample(0, 80), sample(1, 81)}, TimeRange::week};
  std::vector<std::pair<DateInterval, double>> seen;
  const Subscription subscription =
      header.observe([&] { seen.emplace_back(header.visibleDateInterval(), header.average().kilograms); });
  header.didUpdateScrollPosition(hour(0));
  header.didUpdateScrollPosition(hour(0.5));
  const Duration week{7 * secondsPerDay};
  const std::vector<std::pair<DateInterval, double>> expected{{{hour(0), hour(0) + week}, 80.5},
                                                              {{hour(0.5), hour(0.5) + week}, 81}};
  EXPECT_EQ(seen, expected);
}

TEST_F(ChartModel, headerAveragesWhatIsVisible) {
  BodyWeightChartHeaderModel header{List{sample(0, 80), sample(7 * 24, 81), sample(7 * 24 + 1, 99)}, TimeRange::week};
  EXPECT_EQ(header.average(), Mass{0});
  header.didUpdateScrollPosition(hour(0));
  EXPECT_EQ(header.average(), Mass{80.5}) << "both ends are visible";
  header.didUpdateScrollPosition(hour(1));
  EXPECT_EQ(header.average(), Mass{90});
  header.didUpdateScrollPosition(hour(1000));
  EXPECT_EQ(header.average(), Mass{0});
}

TEST(WeightFastingChart, putsBothLinesOnOneAxis) {
  const WeightFastingChart chart{{}, {}, TimeRange::week, 160, 7200};
  EXPECT_EQ(chart.axisValue(weight(0)), 0.5);
  EXPECT_EQ(chart.axisValue(fasting(0)), 0.5);
}

}  // namespace
}  // namespace mivo
