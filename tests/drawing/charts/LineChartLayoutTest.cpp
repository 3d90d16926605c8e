// SPDX-License-Identifier: MIT
#include "drawing/charts/LineChartLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace mivo::drawing {
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

TEST(VisibleExtent, reachesToWhereTheLineRunsThroughTheEdges) {
  const std::vector<LinePoint> series{{day(0), 90}, {day(4), 82}, {day(6), 81}, {day(10), 85}};
  using E = Extent;
  EXPECT_EQ(visibleExtent(series, {day(2), day(7)}), (E{81, 86})) << "comes in from 86";
  EXPECT_EQ(visibleExtent(series, {day(5), day(9)}), (E{81, 84})) << "leaves at 84";
  EXPECT_EQ(visibleExtent(series, {day(7), day(9)}), (E{82, 84})) << "no point inside";
  EXPECT_EQ(visibleExtent(series, {day(4), day(6)}), (E{81, 82}));
  EXPECT_EQ(visibleExtent(series, {day(11), day(12)}), std::nullopt) << "after its end";
  EXPECT_EQ(visibleExtent({}, {day(0), day(1)}), std::nullopt);
}

struct AxisRow {
  const char* name;
  double leastSpan;
  std::vector<double> values;
  double low, high, step;
  std::vector<double> lines;
  int digits;
};
void PrintTo(const AxisRow& row, std::ostream* out) { *out << row.name; }

class WeightAxis : public testing::TestWithParam<AxisRow> {};

TEST_P(WeightAxis, roundsOutToStepsAndLeavesHalfAStepOfAir) {
  const auto& row = GetParam();
  const auto [least, most] = std::ranges::minmax(row.values);
  const ValueAxis axis = weightAxis(Extent{least, most}, row.leastSpan);
  EXPECT_GE(axis.high - axis.low, row.leastSpan);
  EXPECT_NEAR(axis.low, row.low, 1e-9);
  EXPECT_NEAR(axis.high, row.high, 1e-9);
  EXPECT_EQ(axis.step, row.step);
  EXPECT_THAT(axis.lines, Pointwise(DoubleNear(1e-9), row.lines));
  EXPECT_EQ(axis.fractionDigits, row.digits);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WeightAxis,
    testing::Values(AxisRow{"aWeek", 1, {72.1, 72.8, 72.4}, 71.75, 73.25, 0.5, {72, 72.5, 73}, 1},
                    AxisRow{"exactlyOnSteps", 0, {72.3, 72.6}, 72.25, 72.65, 0.1, {72.3, 72.4, 72.5, 72.6}, 1},
                    AxisRow{"aFewGrams", 1, {72.1, 72.4}, 71.75, 72.75, 0.5, {72, 72.5}, 1},
                    AxisRow{"oneWeight", 1, {72.4}, 71.75, 72.75, 0.5, {72, 72.5}, 1},
                    AxisRow{"oneOnAStep", 1, {72.5}, 71.75, 73.25, 0.5, {72, 72.5, 73}, 1},
                    AxisRow{"pounds", 2, {159.3, 159.8}, 158.5, 160.5, 1, {159, 160}, 0},
                    AxisRow{"stones", 1.0 / 7, {11.42}, 11.35, 11.55, 0.1, {11.4, 11.5}, 1},
                    AxisRow{"tenKilograms", 1, {70, 80}, 67.5, 82.5, 5, {70, 75, 80}, 0},
                    AxisRow{"aLifetime", 1, {60, 260}, -40, 360, 80, {0, 80, 160, 240, 320}, 0}),
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

TEST(ValueAxis, spansBothLinesByTheirScales) {
  const std::vector<LineSeries> lines{{.points = daily({70, 75, 80}), .scale = 100},
                                      {.points = daily({12, 18, 24}), .scale = 24}};
  EXPECT_EQ(valueAxis(lines, {day(0), day(1)}), (ValueAxis{.low = 0.5, .high = 0.75}));
  EXPECT_EQ(valueAxis(lines, {day(0.5), day(0.75)}), (ValueAxis{.low = 0.625, .high = 0.7375})) << "between points";
  EXPECT_EQ(valueAxis(lines, {day(4), day(5)}), ValueAxis{}) << "nothing is visible";
  EXPECT_TRUE(isAnyVisible(lines, {day(0.5), day(0.75)}));
  EXPECT_FALSE(isAnyVisible(lines, {day(4), day(5)}));
  const std::vector<LineSeries> still{{.points = daily({80, 80}), .scale = 80, .leastSpan = 1}, {}};
  EXPECT_EQ(valueAxis(still, {day(0), day(1)}), (ValueAxis{.low = 79.5 / 80, .high = 80.5 / 80}));
  EXPECT_EQ(valueAxis(std::span{lines}.first(1), {day(0), day(2)}).step, 5) << "a single line has a weight axis";
}

LineChartLayout scrolling(double days) {
  return {.size = {312, 200}, .domain = {day(0), day(days)}, .span = 7 * secondsPerDay, .scrolls = true};
}

TEST(LineChartLayout, scrollsThroughItsDomainWithTheLatestAtTheTrailingEdge) {
  const auto layout = scrolling(14);
  EXPECT_EQ(layout.plotWidth(), 280);
  EXPECT_EQ(layout.contentWidth(), 560);
  EXPECT_EQ(layout.visible(layout.maxScroll()), (DateInterval{day(7), day(14)}));
  EXPECT_EQ(layout.visible(40), (DateInterval{day(1), day(8)}));
  EXPECT_EQ(scrolling(3).maxScroll(), 0);
}

TEST(LineChartLayout, showsAllOfItsDomainWhereItDoesNotScroll) {
  auto layout = scrolling(14);
  layout.scrolls = false;
  EXPECT_EQ(layout.maxScroll(), 0);
  EXPECT_EQ(layout.visible(0), layout.domain);
  layout.domain = {day(5), day(7)};
  EXPECT_EQ(layout.visible(0), (DateInterval{day(0), day(7)})) << "but no less than its span";
}

TEST(LineChartLayout, leavesRoomOverAPairForWhatIsSelected) {
  auto layout = scrolling(14);
  const ValueAxis before{.low = 0, .high = 10}, axis{.low = 10, .high = 20, .step = 5, .lines = {10, 15, 20}};
  const LinePlot weight = layout.plot(0, before, axis, 0.5);
  EXPECT_EQ(weight.top, 8);
  EXPECT_EQ(weight.bottom, 168);
  EXPECT_EQ(weight.low, 5) << "half way between the axes";
  EXPECT_THAT(layout.gridlines(layout.plot(0, before, axis, 1), axis), ElementsAre(168, 88, 8));
  layout.isPair = true;
  const LinePlot pair = layout.plot(0, before, axis, 1);
  EXPECT_EQ(pair.top, 64);
  EXPECT_EQ(pair.bottom, 150);
  EXPECT_THAT(layout.gridlines(pair, axis),
              Pointwise(DoubleNear(1e-9), std::vector<double>{64, 64 + 86.0 / 3, 64 + 172.0 / 3, 150}));
  layout.isPair = false;
  EXPECT_EQ(layout.gridlines(weight, {}).size(), 4U) << "without a weight too";
}

TEST(LineChartLayout, paintsNoLineOverTheLabelsBelow) {
  auto layout = scrolling(14);
  EXPECT_EQ(layout.area(layout.plot(0, {}, {}, 1)), (Rectangle{{0, 0}, {280, 168}}));
  layout.isPair = true;
  EXPECT_EQ(layout.area(layout.plot(0, {}, {}, 1)), (Rectangle{{0, 56}, {280, 112}}));
}

TEST(LineChartLayout, scrollsToADateAtItsTrailingEdge) {
  const auto layout = scrolling(28);
  EXPECT_EQ(layout.scrollToEndAt(day(28)), layout.maxScroll());
  EXPECT_EQ(layout.scrollToEndAt(day(20)), 13 * 40);
  EXPECT_EQ(layout.visible(13 * 40).end, day(20));
  EXPECT_EQ(layout.scrollToEndAt(day(3)), 0) << "as far as there is something";
  EXPECT_EQ(layout.scrollToEndAt(day(40)), layout.maxScroll());
}

TEST(LineChartLayout, scrollsADateThatIsNotSeenIntoTheMiddle) {
  const auto layout = scrolling(28);
  const auto wanted = [&](double date, double scroll) {
    return layout.scrollToSee(layout.plot(scroll, {}, {}, 1), day(date), scroll);
  };
  EXPECT_EQ(wanted(3, 0), std::nullopt);
  EXPECT_EQ(wanted(7, 0), std::nullopt);
  EXPECT_EQ(wanted(10, 0), 10 * 40 - 140);
  EXPECT_EQ(wanted(1, 400), 0) << "as far as there is something";
  EXPECT_EQ(wanted(28, 0), 840);
}

constexpr LinePlot plot{
    .width = 280, .top = 0, .bottom = 100, .visible = {Date{}, Date{Duration{7 * 86400}}}, .low = 0, .high = 100};

TEST(LabelsThatFit, leaveOutWhatWouldTouchTheOneBeforeOrBeCut) {
  const auto usual = [](std::string_view text) { return static_cast<double>(text.size()) * 10; };
  const auto present = [](std::string_view text) { return static_cast<double>(text.size()) * 12; };
  const auto begin = [](double date, const char* text) { return TimeAxisLabel{day(date), text, false, day(date)}; };
  const auto middle = [](double date, const char* text, bool isPresent) {
    return TimeAxisLabel{day(date), text, isPresent, day(date + 1)};
  };
  const std::vector<TimeAxisLabel> weeks{begin(-1, "abc"), begin(0, "abcd"), begin(1, "abc"), begin(2, "abc")};
  EXPECT_THAT(labelsThatFit(weeks, plot, usual, present),
              ElementsAre(PlacedLabel{1, 0, false}, PlacedLabel{3, 80, false}));
  const std::vector<TimeAxisLabel> months{begin(-0.1, "Sep"), begin(2, "Oct"), begin(6, "Nov"), begin(6.5, "Dec")};
  EXPECT_THAT(labelsThatFit(months, plot, usual, present),
              ElementsAre(PlacedLabel{1, 80, false}, PlacedLabel{2, 240, false}))
      << "the months at both ends would be cut";
  const std::vector<TimeAxisLabel> days{middle(0, "Mon", false), middle(1, "Tue", false), middle(2, "Wed", true)};
  EXPECT_THAT(labelsThatFit(days, plot, usual, present),
              ElementsAre(PlacedLabel{0, 20, true}, PlacedLabel{1, 60, true}, PlacedLabel{2, 100, true}));
  const auto wide = [](std::string_view) { return 43.0; };
  EXPECT_THAT(labelsThatFit(days, plot, usual, wide), ElementsAre(PlacedLabel{0, 20, true}, PlacedLabel{1, 60, true}))
      << "the present one is as wide as its own type";
}

TEST(GutterValues, areTheLatestVisibleOnesAndKeepApart) {
  std::vector<LineSeries> lines{{.points = {{day(1), 50}, {day(9), 70}}}, {.points = {{day(2), 80}}, .scale = 2}};
  EXPECT_THAT(gutterValues(lines, plot), ElementsAre(GutterValue{0, 50, 48}, GutterValue{1, 80, 62}))
      << "ten apart would overlap";
  lines[1].points[0].value = 120;
  EXPECT_THAT(gutterValues(lines, plot), ElementsAre(GutterValue{0, 50, 52}, GutterValue{1, 120, 38}));
  lines[1].points[0].value = 40;
  EXPECT_THAT(gutterValues(lines, plot), ElementsAre(GutterValue{0, 50, 50}, GutterValue{1, 40, 80}));
  lines[0].points.clear();
  EXPECT_THAT(gutterValues(lines, plot), ElementsAre(GutterValue{1, 40, 80}));
}

TEST(LineGutter, keepsTextsClearOfThePlotAndWiderOfThePair) {
  const auto width = [](std::string_view text) { return static_cast<double>(text.size()) * 7.0; };
  const std::vector<std::string> texts{"72.4", "17"}, wide{"1,416", "160.9"};
  EXPECT_EQ(lineGutterWidth(texts, false, width), LineChartLayout::usualGutter);
  EXPECT_EQ(lineGutterWidth(texts, true, width), 36);
  EXPECT_EQ(lineGutterWidth(wide, true, width), 43);
  EXPECT_EQ(lineGutterWidth({}, true, width), LineChartLayout::usualGutter);
}

TEST(Marks, areLeftOutWhereTheyWouldCoverTheLine) {
  EXPECT_TRUE(hasMarks(plot, 23));
  EXPECT_FALSE(hasMarks(plot, 24));
  EXPECT_TRUE(hasMarks(plot, 0));
}

}  // namespace
}  // namespace mivo::drawing
