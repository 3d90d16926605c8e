// SPDX-License-Identifier: MIT
#include "drawing/charts/DayBarsText.h"

#include <gtest/gtest.h>

#include "tests/support/FixedClients.h"
#include "tests/support/Instants.h"

namespace mivo::drawing {
namespace {

/// "07-01", where an interval begins.
struct PlainIntervals final : DateIntervalFormatter {
  std::optional<std::string> string(DateInterval interval) const override {
    return tests::text(interval.start).substr(5, 5);
  }
};

TEST(DayBarsText, countsFromTheLatestBarAndTellsTheSelectedOne) {
  const PlainIntervals dates;
  const tests::EnglishHoursAndMinutes hourMin;
  const tests::EnglishHours hour;
  const DayBarsClients clients{dates, hourMin, hour};
  const auto bar = [](const char* start, double value, std::uint64_t id) {
    const Date from = tests::utc(start);
    return ChartDataEntry{{from, from + Duration{secondsPerDay}}, value, "Wed", UUID{0, id}};
  };
  ScrollChartFeature::State chart{
      .chartTimeUnit = ChartTimeUnit::day,
      .data = IdentifiedArray{bar("2026-07-01 00:00", 0.25, 1), bar("2026-07-02 00:00", 1, 2)},
      .maxTime = 20 * secondsPerHour,
      .now = tests::utc("2026-07-02 12:00")};
  EXPECT_EQ(barDates(chart, 0, clients), "07-02");
  EXPECT_EQ(barTime(chart, 0, clients), "20h 0m");
  EXPECT_EQ(barDates(chart, 1, clients), "07-01");
  EXPECT_EQ(barTime(chart, 1, clients), "5h 0m");
  EXPECT_EQ(spokenBar(chart, clients), "");
  chart.selectedUUID = UUID{0, 1};
  EXPECT_EQ(spokenBar(chart, clients), "07-01: 5h 0m");
  chart.selectedUUID = UUID{0, 9};
  EXPECT_EQ(spokenBar(chart, clients), "") << "a bar that is gone";
}

}  // namespace
}  // namespace mivo::drawing
