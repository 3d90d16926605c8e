// SPDX-License-Identifier: MIT
#include "app/geometry/LineChartLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::app {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

Date day(double days) { return Date{Duration{days * secondsPerDay}}; }

std::vector<LinePoint> daily(std::initializer_list<double> values) {
  std::vector<LinePoint> points;
  for (const double value : values) points.push_back({day(static_cast<double>(points.size())), value});
  return points;
}

TEST(PointsOfALine, areThoseInsideAndOneBeyondOnEachSide) {
  const auto series = daily({1, 2, 3, 4, 5, 6});
  const auto inside = pointsInside(series, {day(2), day(3)});
  EXPECT_EQ(inside.size(), 2u);
  EXPECT_EQ(inside.front().value, 3);
  const auto drawn = pointsToDraw(series, {day(2), day(3)});
  EXPECT_EQ(drawn.size(), 4u);
  EXPECT_EQ(drawn.front().value, 2);
  EXPECT_EQ(pointsToDraw(series, {day(0), day(5)}).size(), 6u);
  EXPECT_EQ(pointsToDraw(series, {day(2.2), day(2.8)}).size(), 2u) << "a line runs through a span without points";
  EXPECT_EQ(pointsToDraw({}, {day(0), day(5)}).size(), 0u);
  EXPECT_EQ(pointsToDraw(series, {day(8), day(9)}).size(), 1u);
}

struct AxisRow {
  const char* name;
  std::vector<double> values;
  double low, high, step;
  std::vector<double> lines;
  int digits;
};
void PrintTo(const AxisRow& row, std::ostream* out) { *out << row.name; }

class WeightAxis : public testing::TestWithParam<AxisRow> {};

TEST_P(WeightAxis, roundsOutToStepsAndLeavesHalfAStepOfAir) {
  const auto& row = GetParam();
  std::vector<LinePoint> points;
  for (const double value : row.values) points.push_back({day(0), value});
  const ValueAxis axis = weightAxis(points);
  EXPECT_NEAR(axis.low, row.low, 1e-9);
  EXPECT_NEAR(axis.high, row.high, 1e-9);
  EXPECT_EQ(axis.step, row.step);
  EXPECT_THAT(axis.lines, Pointwise(DoubleNear(1e-9), row.lines));
  EXPECT_EQ(axis.fractionDigits, row.digits);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WeightAxis,
    testing::Values(AxisRow{"aWeek", {72.1, 72.8, 72.4}, 71.75, 73.25, 0.5, {72, 72.5, 73}, 1},
                    AxisRow{"exactlyOnSteps", {72.3, 72.6}, 72.25, 72.65, 0.1, {72.3, 72.4, 72.5, 72.6}, 1},
                    AxisRow{"oneWeight", {72.4}, 72.35, 72.45, 0.1, {72.4}, 1},
                    AxisRow{"tenKilograms", {70, 80}, 67.5, 82.5, 5, {70, 75, 80}, 0},
                    AxisRow{"aLifetime", {60, 260}, -40, 360, 80, {0, 80, 160, 240, 320}, 0}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(LinePlot, placesDatesAndValuesAndReadsThemBack) {
  const LinePlot plot{.width = 280, .top = 8, .bottom = 144, .visible = {day(10), day(17)}, .low = 70, .high = 74};
  EXPECT_DOUBLE_EQ(plot.x(day(10)), 0);
  EXPECT_DOUBLE_EQ(plot.x(day(13.5)), 140);
  EXPECT_EQ(plot.date(plot.x(day(12))), day(12));
  EXPECT_DOUBLE_EQ(plot.y(70), 144);
  EXPECT_DOUBLE_EQ(plot.y(74), 8);
  EXPECT_DOUBLE_EQ(plot.y(72), 76);
  const LinePlot flat{.width = 280, .top = 8, .bottom = 144, .visible = {day(0), day(7)}, .low = 70, .high = 70};
  EXPECT_DOUBLE_EQ(flat.y(70), 76) << "one value stands in the middle";
}

}  // namespace
}  // namespace mivo::app
