// SPDX-License-Identifier: MIT
#include "drawing/charts/DayBarsLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::drawing {
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

TEST(DayBarsLayout, keepsWhatStandsAtTheTrailingEdge) {
  const auto before = DayBarsLayout::make(phone, ChartTimeUnit::day, 20);
  const double twoBarsBack = before.maxScroll() - 2 * before.pitch;
  EXPECT_EQ(before.lastSeen(twoBarsBack), 17u);
  EXPECT_EQ(before.lastSeen(twoBarsBack - 0.4 * before.pitch), 17u) << "more than half of it";
  EXPECT_EQ(before.lastSeen(before.maxScroll()), std::nullopt) << "the latest, whichever that will be";
  EXPECT_EQ(DayBarsLayout{}.lastSeen(0), std::nullopt) << "not laid out yet";
  const auto wide = DayBarsLayout::make({468, 200}, ChartTimeUnit::day, 20);
  EXPECT_DOUBLE_EQ(wide.scrollToEndAt(17), wide.maxScroll() - 2 * wide.pitch);
  EXPECT_DOUBLE_EQ(wide.scrollToEndAt(std::nullopt), wide.maxScroll());
  EXPECT_DOUBLE_EQ(wide.scrollToEndAt(3), 0) << "as far as there are bars";
}

TEST(DayBarsLayout, countsAsManyBarsAsSeenAsThereAreColumns) {
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 30);
  for (const auto& [scroll, first, last] :
       {std::tuple{0.0, 0u, 7u}, {42.0 * 5, 5u, 12u}, {42.0 * 5 + 20, 5u, 12u}, {42.0 * 5 + 22, 6u, 13u}}) {
    EXPECT_EQ(layout.seenBars(scroll).first, first) << scroll;
    EXPECT_EQ(layout.seenBars(scroll).last, last) << scroll;
  }
  EXPECT_EQ(DayBarsLayout::make(phone, ChartTimeUnit::day, 3).seenBars(0).last, 3u);
}

TEST(DayBarsLayout, scrollsOnlyToBarsThatAreNotSeen) {
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 30);
  const double scroll = 42 * 10;
  EXPECT_EQ(layout.scrollToSee(10, scroll), std::nullopt);
  EXPECT_EQ(layout.scrollToSee(16, scroll), std::nullopt);
  EXPECT_EQ(layout.scrollToSee(9, scroll), 42 * 9) << "to the leading edge";
  EXPECT_EQ(layout.scrollToSee(17, scroll), 42 * 11) << "to the trailing edge";
}

TEST(DayBarsLayout, tellsTheStateOfVisibleBarsByTheirStart) {
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 9);
  std::vector<ChartDataEntry> entries;
  for (std::uint64_t bar = 0; bar < 9; ++bar) {
    const Date start{Duration{static_cast<double>(bar) * secondsPerDay}};
    entries.emplace_back(DateInterval{start, start + Duration{secondsPerDay}}, 0.0, "", UUID{0, bar});
  }
  const IdentifiedArray<ChartDataEntry> bars{entries};
  const auto days = layout.visibleDays(bars, 42);
  ASSERT_EQ(days.size(), 7u);
  EXPECT_EQ(days.begin()->first, bars[1].dateInterval.start);
  EXPECT_EQ(days.begin()->second, 21 + 41 - 2) << "from a bar, less two points, before the plot";
  EXPECT_EQ(days.rbegin()->first, bars[7].dateInterval.start);
}

TEST(DayBarsLayout, writesEveryLabelOrEverySecondOfThemFromTheLatest) {
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 8);
  EXPECT_THAT(layout.labelled(42, 38), ElementsAre(1, 2, 3, 4, 5, 6, 7));
  EXPECT_THAT(layout.labelled(42, 39), ElementsAre(1, 3, 5, 7)) << "four points are left between them";
  EXPECT_THAT(layout.labelled(42, 100), ElementsAre(1, 4, 7));
}

TEST(Gutter, isAsWideAsTheWidestLabel) {
  EXPECT_EQ(gutterWidth(20), 32);
  EXPECT_EQ(gutterWidth(28), 32);
  EXPECT_EQ(gutterWidth(30.2), 35);
  EXPECT_EQ(widestHours(ChartTimeUnit::day), 24);
  EXPECT_EQ(widestHours(ChartTimeUnit::month), 500);
}

TEST(SteppedBar, startsAtTheLatestAndStopsAtTheEnds) {
  EXPECT_EQ(steppedBar({}, -1, 5), 4u);
  EXPECT_EQ(steppedBar(2u, -1, 5), 1u);
  EXPECT_EQ(steppedBar(0u, -1, 5), 0u);
  EXPECT_EQ(steppedBar(4u, 1, 5), 4u);
  EXPECT_EQ(steppedBar({}, 1, 0), std::nullopt);
}

TEST(BarCorners, areLessRoundOnShortBars) {
  EXPECT_EQ(barCorners({27, 100}).top, 8);
  EXPECT_EQ(barCorners({27, 100}).bottom, 3);
  EXPECT_EQ(barCorners({27, 3}).top, 1.5);
  EXPECT_EQ(barCorners({27, 3}).bottom, 1.5);
  EXPECT_EQ(barCorners({10, 100}).top, 5);
}

struct PopupRow {
  const char* name;
  double xOffset, yOffset, barMiddle, value;
  std::size_t lines;
  double bodyX, bodyY, tipY;
};
void PrintTo(const PopupRow& row, std::ostream* out) { *out << row.name; }

class Popup : public testing::TestWithParam<PopupRow> {};

// The baseline lies at 164, bars are up to 150 high; offsets count from 14 below the baseline.
TEST_P(Popup, standsAtItsBarAndInsideTheCard) {
  const auto& row = GetParam();
  const auto layout = DayBarsLayout::make(phone, ChartTimeUnit::day, 30);
  const ScrollChartFeature::State::PopupViewState popup{row.xOffset, row.yOffset, "16h 42m", 82};
  const PopupShape shape = popupShape(layout, popup, row.barMiddle, row.value, row.lines, 16);
  EXPECT_DOUBLE_EQ(shape.body.origin.x, row.bodyX);
  EXPECT_DOUBLE_EQ(shape.body.origin.y, row.bodyY);
  EXPECT_DOUBLE_EQ(shape.pointerX, row.barMiddle);
  EXPECT_DOUBLE_EQ(shape.pointsDown ? shape.body.maxY() + 6 : shape.body.origin.y - 6, row.tipY);
}

INSTANTIATE_TEST_SUITE_P(Rows, Popup,
                         testing::Values(PopupRow{"tipFourOverTheBar", 64, -129, 105, 0.5, 1, 64, 49, 85},
                                         PopupRow{"tipTwentyBelowTheTopOfATallBar", 64, -144, 105, 1, 1, 64, 40, 34},
                                         PopupRow{"noNearerThanEightToTheLeadingSide", -20, -129, 21, 0.5, 1, -8, 49,
                                                  85},
                                         PopupRow{"norToTheTrailingSide", 300, -129, 290, 0.5, 1, 252, 49, 85},
                                         PopupRow{"aSecondLineGrowsUpwards", 64, -129, 105, 0.5, 2, 64, 35, 85}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(PopupShape, keepsThePointersFootOnItsBody) {
  PopupShape shape{.body = {{10, 20}, {82, 44}}, .pointerX = 12};
  EXPECT_EQ(shape.pointerFoot(), 17);
  shape.pointerX = 50;
  EXPECT_EQ(shape.pointerFoot(), 50);
  shape.pointerX = 95;
  EXPECT_EQ(shape.pointerFoot(), 85);
  EXPECT_EQ(shape.lineMiddle(0, 1), 42);
  EXPECT_EQ(shape.lineMiddle(0, 2), 35);
  EXPECT_EQ(shape.lineMiddle(1, 2), 49);
}

TEST(PopupText, isSetSmallerBeforeItIsBroken) {
  const auto text = [](const std::string& label) {
    const auto width = [](double perByte) {
      return [perByte](std::string_view shown) { return static_cast<double>(shown.size()) * perByte; };
    };
    return popupText(label, 82, width(10), width(7));
  };
  EXPECT_EQ(text("16h 42m"), (PopupText{{"16h 42m"}, false}));
  EXPECT_EQ(text("116h 42m"), (PopupText{{"116h 42m"}, true}));
  EXPECT_EQ(text("16 Std. 42 Min."), (PopupText{{"16 Std. 42", "Min."}, true})) << "at its last blank";
  EXPECT_EQ(text("hundredsOfHours"), (PopupText{{"hundredsOfHours"}, true})) << "without one it stays whole";
}

}  // namespace
}  // namespace mivo::drawing
