// SPDX-License-Identifier: MIT
#include "mivo/charts/BarGeometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

struct BarWidthRow {
  const char* name;
  ChartTimeUnit unit;
  double chartWidth, expected;
};
void PrintTo(const BarWidthRow& row, std::ostream* out) { *out << row.name; }

class BarWidth : public testing::TestWithParam<BarWidthRow> {};

TEST_P(BarWidth, staysBetween35And50Points) {
  EXPECT_EQ(barWidth(GetParam().chartWidth, GetParam().unit), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, BarWidth,
                         testing::Values(BarWidthRow{"sevenDaysFit", ChartTimeUnit::day, 280, 39},
                                         BarWidthRow{"fiveWeeksFit", ChartTimeUnit::week, 225, 44},
                                         BarWidthRow{"eightMonthsFit", ChartTimeUnit::month, 328, 40},
                                         BarWidthRow{"wideStopsAt50", ChartTimeUnit::month, 700, 50},
                                         BarWidthRow{"endlessStopsAt50", ChartTimeUnit::day,
                                                     std::numeric_limits<double>::infinity(), 50},
                                         BarWidthRow{"notLaidOutYet", ChartTimeUnit::day, 0, 35},
                                         BarWidthRow{"notANumber", ChartTimeUnit::day, std::nan(""), 35}),
                         [](const auto& row) { return std::string{row.param.name}; });

struct PopupRow {
  const char* name;
  double value, chartHeight, expected;
};
void PrintTo(const PopupRow& row, std::ostream* out) { *out << row.name; }

class PopupYOffset : public testing::TestWithParam<PopupRow> {};

TEST_P(PopupYOffset, staysWithinTheBarArea) {
  EXPECT_DOUBLE_EQ(popupYOffset(GetParam().value, GetParam().chartHeight), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, PopupYOffset,
                         testing::Values(PopupRow{"noTime", 0, 250, -54}, PopupRow{"halfway", 0.5, 250, -154},
                                         PopupRow{"justFits", 0.75, 210, -174},
                                         PopupRow{"justTooHigh", 0.8125, 210, -124},
                                         PopupRow{"tallBarHoldsIt", 0.95, 250, -184},
                                         PopupRow{"notLaidOutYet", 0.5, 0, 31}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(PopupLabel, saysHoursOnlyFromAHundredHoursOn) {
  const tests::EnglishHoursAndMinutes hourMin;
  const tests::EnglishHours hour;
  EXPECT_EQ(popupLabel(36000, hourMin, hour), "10h 0m");
  EXPECT_EQ(popupLabel(359999, hourMin, hour), "99h 59m");
  EXPECT_EQ(popupLabel(360000, hourMin, hour), "100h");
  EXPECT_EQ(popupLabel(std::nan(""), hourMin, hour), "");
}

}  // namespace
}  // namespace mivo
