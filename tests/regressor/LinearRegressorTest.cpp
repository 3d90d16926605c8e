// SPDX-License-Identifier: MIT
#include "mivo/regressor/LinearRegressor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace mivo {
namespace {

using Line = LinearRegressor<double>;
using Points = std::vector<Line::Point>;

TEST(LinearRegressor, fitsPointsOfALineExactly) {
  auto line = Line::make({{0, 0}, {1, 2}, {2, 4}}).value();
  EXPECT_EQ(line.slope(), 2);
  EXPECT_EQ(line.intercept(), 0);
  EXPECT_EQ(line.rSquared(), 1);
  EXPECT_EQ(line.xEstimate(3), 1.5);
  EXPECT_EQ(line.xEstimates(3), std::vector{1.5});
  EXPECT_EQ(line.count(), 3);
  EXPECT_EQ(line.summed(), (Line::Point{3, 6}));
  EXPECT_EQ(line.mean(), (Line::Point{1, 2}));
  EXPECT_EQ(line.summedSquareError(), (Line::Point{2, 8}));
  EXPECT_EQ(line.sampleStandardDeviation(), (Line::Point{1, 2}));
  EXPECT_EQ(line.pearsonsCorrelation(), 1);
  EXPECT_EQ(line.resultValuesY(), (std::vector<double>{0, 2, 4}));
  EXPECT_EQ(line.resultPoints(), (Points{{0, 0}, {1, 2}, {2, 4}}));
}

TEST(LinearRegressor, findsTheXOfAValueOnALineThatMissesTheOrigin) {
  auto line = Line::make({{0, 1}, {1, 3}, {2, 5}}).value();
  EXPECT_EQ(line.xEstimates(7), std::vector{3.0});
  EXPECT_EQ(line.xEstimate(-1), -1);
}

TEST(LinearRegressor, ssRegressionIsTheSumOfResiduals) {
  auto line = Line::make({{0, 0}, {1, 3}, {2, 0}}).value();
  EXPECT_EQ(line.slope(), 0);
  EXPECT_EQ(line.ssTotal(), 6);
  EXPECT_EQ(line.ssRegression(), 6);
  EXPECT_EQ(line.rSquared(), 0);
}

TEST(LinearRegressor, thereIsNoneWithoutPoints) {
  EXPECT_FALSE(Line::make({}).has_value());
  EXPECT_FALSE(BaseRegressor<double>::make({}).has_value());
}

struct DegenerateRow {
  const char* name;
  Points points;
};
void PrintTo(const DegenerateRow& row, std::ostream* out) { *out << row.name; }
class Degenerate : public testing::TestWithParam<DegenerateRow> {};

TEST_P(Degenerate, isNotANumber) {
  auto line = Line::make(GetParam().points).value();
  EXPECT_TRUE(std::isnan(line.pearsonsCorrelation()));
  EXPECT_TRUE(std::isnan(line.slope()));
  EXPECT_TRUE(std::isnan(line.intercept()));
  EXPECT_TRUE(std::isnan(line.rSquared()));
  EXPECT_TRUE(std::isnan(line.xEstimate(1)));
}
INSTANTIATE_TEST_SUITE_P(Rows, Degenerate,
                         testing::Values(DegenerateRow{"onePoint", {{5, 80}}},
                                         DegenerateRow{"allYEqual", {{0, 1}, {1, 1}}},
                                         DegenerateRow{"allXEqual", {{3, 1}, {3, 2}}}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(LinearRegressor, keepsWhatItHasReadAndTakesWhatIsInjected) {
  auto line = Line::make({{0, 0}, {1, 2}, {2, 4}}).value();
  line.setSlope(5);
  EXPECT_EQ(line.intercept(), -3) << "computed with the injected slope";
  line.setSlope(7);
  EXPECT_EQ(line.intercept(), -3) << "kept from the first read";
  EXPECT_EQ(line.yRegression(1), 4);

  auto shifted = Line::make({{0, 0}, {1, 2}, {2, 4}}).value();
  shifted.setCount(6);
  EXPECT_EQ(shifted.mean(), (Line::Point{0.5, 1}));
}

TEST(BaseRegressorDeathTest, stopsWhereNothingIsOverridden) {
  auto base = BaseRegressor<double>::make({{1, 1}}).value();
  EXPECT_DEATH(base.yRegression(1), "^Override yRegression\\(\\) in your subclass\n$");
  EXPECT_DEATH(base.xEstimates(1), "^Override xEstimates\\(\\) in your subclass\n$");
  EXPECT_DEATH(base.resultPoints(), "^Override yRegression\\(\\) in your subclass\n$");
}

struct Parabola : Line {
  explicit Parabola(Points points) : Line{std::move(points)} {}
  double yRegression(double x) override { return x * x; }
  std::vector<double> xEstimates(double) override { return {}; }
};

TEST(BaseRegressor, resultsCallTheOverride) {
  Parabola parabola{{{1, 0}, {3, 0}}};
  EXPECT_EQ(parabola.resultValuesY(), (std::vector<double>{1, 9}));
  EXPECT_EQ(parabola.ssRegression(), 82);
  EXPECT_DEATH(parabola.xEstimate(1), "needs at least one estimate");
}

struct Fit {
  long double slope = 0, intercept = 0, rSquared = 0;
};

// The textbook sums about the mean, in 64 bits of mantissa.
Fit longDoubleFit(const Points& points) {
  const auto n = static_cast<long double>(points.size());
  long double meanX = 0, meanY = 0, xx = 0, xy = 0, yy = 0, residuals = 0;
  for (const auto& point : points) meanX += point.x / n, meanY += point.y / n;
  for (const auto& point : points) {
    const long double dx = point.x - meanX, dy = point.y - meanY;
    xx += dx * dx, xy += dx * dy, yy += dy * dy;
  }
  const Fit fit{xy / xx, meanY - xy / xx * meanX};
  for (const auto& point : points) {
    const long double residual = point.y - (fit.slope * point.x + fit.intercept);
    residuals += residual * residual;
  }
  return {fit.slope, fit.intercept, 1 - residuals / yy};
}

struct ConditionRow {
  const char* name;
  int count;
  double secondsApart, kilogramsLost;
};
void PrintTo(const ConditionRow& row, std::ostream* out) { *out << row.name; }
class BadlyConditioned : public testing::TestWithParam<ConditionRow> {};

TEST_P(BadlyConditioned, agreesWithLongDoubleSums) {
  const auto& row = GetParam();
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::mt19937_64 random{seed};
    std::uniform_real_distribution<double> jitter{0, 0.5}, scatter{-0.004, 0.004};
    Points points;
    for (int i = 0; i < row.count; ++i)
      points.push_back({1.7e9 + (i + jitter(random)) * row.secondsApart,
                        80.01 - row.kilogramsLost * i / row.count + scatter(random)});
    auto line = Line::make(points).value();
    const Fit expected = longDoubleFit(points);
    EXPECT_LE(std::abs(static_cast<double>(line.slope() / expected.slope - 1)), 1e-9) << "seed " << seed;
    EXPECT_LE(std::abs(static_cast<double>(line.intercept() / expected.intercept - 1)), 1e-9) << "seed " << seed;
    EXPECT_LE(std::abs(static_cast<double>(line.rSquared() - expected.rSquared)), 1e-9) << "seed " << seed;
  }
}
INSTANTIATE_TEST_SUITE_P(Rows, BadlyConditioned,
                         testing::Values(ConditionRow{"ninetyDays", 90, 86400, 0.05},
                                         ConditionRow{"threeSamples", 3, 86400, 0.05},
                                         ConditionRow{"oneMinute", 60, 1, 0.05},
                                         ConditionRow{"hardlyAnyTrend", 90, 86400, 0.0001},
                                         ConditionRow{"tenThousand", 10'000, 3600, 0.05}),
                         [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo
