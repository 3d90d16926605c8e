// SPDX-License-Identifier: MIT
#include "app/geometry/DayBarsLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::app {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Size phone{326, 200};  // inside a card of a window 390 wide: a plot of 294 and the gutter

struct ColumnsRow {
  const char* name;
  double itemWidth;
  ChartTimeUnit unit;
  double frameWidth;
  int visibleColumns;
  double pitch;
};
void PrintTo(const ColumnsRow& row, std::ostream* out) { *out << row.name; }

class Columns : public testing::TestWithParam<ColumnsRow> {};

TEST_P(Columns, fillThePlotWithWholeBars) {
  const auto& row = GetParam();
  const auto layout = DayBarsLayout::make({row.itemWidth, 200}, row.unit, 100);
  EXPECT_DOUBLE_EQ(layout.frameWidth, row.frameWidth);
  EXPECT_EQ(layout.visibleColumns, row.visibleColumns);
  EXPECT_DOUBLE_EQ(layout.pitch, row.pitch);
  EXPECT_DOUBLE_EQ(layout.pitch * layout.visibleColumns, layout.plotWidth);
}

INSTANTIATE_TEST_SUITE_P(Rows, Columns,
                         testing::Values(ColumnsRow{"phoneDays", 326, ChartTimeUnit::day, 41, 7, 42},
                                         ColumnsRow{"phoneWeeks", 326, ChartTimeUnit::week, 50, 5, 58.8},
                                         ColumnsRow{"phoneMonths", 326, ChartTimeUnit::month, 35.75, 8, 36.75},
                                         ColumnsRow{"narrowDays", 256, ChartTimeUnit::day, 35, 6, 224.0 / 6},
                                         ColumnsRow{"wideDays", 468, ChartTimeUnit::day, 50, 8, 54.5},
                                         ColumnsRow{"hardlyAny", 40, ChartTimeUnit::day, 35, 1, 8}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(DayBarsLayout, scrollsInWholeColumnsFromTheFirstBarToTheLatest) {
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 10);
  EXPECT_DOUBLE_EQ(layout.maxScroll(), 3 * 42);
  EXPECT_DOUBLE_EQ(layout.snapped(50), 42);
  EXPECT_DOUBLE_EQ(layout.snapped(64), 84);
  EXPECT_DOUBLE_EQ(layout.snapped(-20), 0);
  EXPECT_DOUBLE_EQ(layout.snapped(900), layout.maxScroll());
  EXPECT_DOUBLE_EQ(DayBarsLayout::make(phone, ChartTimeUnit::day, 3).maxScroll(), 0);
}

TEST(DayBarsLayout, knowsWhichBarsCanBeSeen) {
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 3650);
  const auto atRest = layout.visibleBars(42 * 100);
  EXPECT_EQ(atRest.first, 100u);
  EXPECT_EQ(atRest.last, 107u);
  const auto between = layout.visibleBars(42 * 100 + 20);
  EXPECT_EQ(between.first, 100u);
  EXPECT_EQ(between.last, 108u);
  EXPECT_EQ(layout.visibleBars(layout.maxScroll()).last, 3650u);
}

TEST(DayBarsLayout, paintsBarsSlimmerThanTheirColumnsAndStubsWhereThereIsNoTime) {
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 7);
  EXPECT_EQ(layout.bar(0, 0.5, 0), (Rectangle{{7.5, 164 - 75}, {27, 75}}));
  EXPECT_EQ(layout.bar(1, 1, 0), (Rectangle{{49.5, 14}, {27, 150}}));
  EXPECT_EQ(layout.bar(2, 0, 0), (Rectangle{{91.5, 161}, {27, 3}}));
  EXPECT_EQ(layout.bar(2, 0.001, 0).size.height, 3);
}

TEST(DayBarsLayout, findsTheBarUnderAPointOfThePlotOnly) {
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 9);
  EXPECT_EQ(layout.barAt(0, 0), 0u);
  EXPECT_EQ(layout.barAt(43, 0), 1u);
  EXPECT_EQ(layout.barAt(43, 84), 3u);
  EXPECT_EQ(layout.barAt(295, 0), std::nullopt) << "the gutter";
  EXPECT_EQ(layout.barAt(-1, 0), std::nullopt);
  EXPECT_EQ(DayBarsLayout::make(phone, ChartTimeUnit::day, 2).barAt(100, 0), std::nullopt) << "beyond the last bar";
}

TEST(HourLines, areTheFirstStepWithAtMostThreeAndAHalfLines) {
  const auto hours = [](double maximum) { return hourLines(maximum * secondsPerHour); };
  EXPECT_THAT(hours(24), ElementsAre(8, 16, 24));
  EXPECT_THAT(hours(17), ElementsAre(8, 16));
  EXPECT_THAT(hours(3.6), ElementsAre(1, 2, 3));
  EXPECT_THAT(hours(124), ElementsAre(40, 80, 120));
  EXPECT_THAT(hours(744), ElementsAre(250, 500));
  EXPECT_THAT(hours(2000), ElementsAre(1000, 2000)) << "beyond the steps, in round hundreds";
  EXPECT_THAT(hours(0.5), IsEmpty());
  EXPECT_THAT(hours(0), IsEmpty());
  EXPECT_THAT(hours(std::nan("")), IsEmpty());
}

struct PopupRow {
  const char* name;
  PopupPlace place;
  double bodyX, bodyY, tipY;
};
void PrintTo(const PopupRow& row, std::ostream* out) { *out << row.name; }

class Popup : public testing::TestWithParam<PopupRow> {};

// The baseline lies at 164; offsets count from 14 below it.
TEST_P(Popup, standsAtItsBarAndInsideTheCard) {
  const auto& row = GetParam();
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 30);
  const PopupShape shape = popupShape(layout, row.place, 16, 16);
  EXPECT_DOUBLE_EQ(shape.body.origin.x, row.bodyX);
  EXPECT_DOUBLE_EQ(shape.body.origin.y, row.bodyY);
  EXPECT_DOUBLE_EQ(shape.pointerX, row.place.barMiddle);
  EXPECT_EQ(shape.pointsDown, !row.place.isInsideBar);
  EXPECT_DOUBLE_EQ(shape.pointsDown ? shape.body.maxY() + 6 : shape.body.origin.y - 6, row.tipY);
}

constexpr PopupPlace halfHigh{
    .xOffset = 64, .yOffset = -129, .width = 82, .barMiddle = 105, .isInsideBar = false, .bodyHeight = 30};
constexpr PopupPlace full{
    .xOffset = 64, .yOffset = -144, .width = 82, .barMiddle = 105, .isInsideBar = true, .bodyHeight = 30};
constexpr PopupPlace first{
    .xOffset = -20, .yOffset = -129, .width = 82, .barMiddle = 21, .isInsideBar = false, .bodyHeight = 30};
constexpr PopupPlace latest{
    .xOffset = 300, .yOffset = -129, .width = 82, .barMiddle = 290, .isInsideBar = false, .bodyHeight = 30};
constexpr PopupPlace twoLines{
    .xOffset = 64, .yOffset = -129, .width = 82, .barMiddle = 105, .isInsideBar = false, .bodyHeight = 44};

INSTANTIATE_TEST_SUITE_P(Rows, Popup,
                         testing::Values(PopupRow{"tipFourOverTheBar", halfHigh, 64, 49, 85},
                                         PopupRow{"tipTwentyBelowTheTopOfATallBar", full, 64, 40, 34},
                                         PopupRow{"noNearerThanEightToTheLeadingSide", first, -8, 49, 85},
                                         PopupRow{"norToTheTrailingSide", latest, 252, 49, 85},
                                         PopupRow{"aSecondLineGrowsUpwards", twoLines, 64, 35, 85}),
                         [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::app
