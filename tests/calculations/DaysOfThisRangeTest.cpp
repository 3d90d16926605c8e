// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "adapters/time/TimeZone.h"
#include "adapters/time/ZonedCalendar.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "mivo/calculations/RangeStarts.h"

namespace mivo {
namespace {

struct DaysRow {
  const char* name;
  TimeRange range;
  double now;  // Unix seconds
  double days;
};
void PrintTo(const DaysRow& row, std::ostream* out) { *out << row.name; }

class DaysOfThisRange : public testing::TestWithParam<DaysRow> {};

TEST_P(DaysOfThisRange, countsTodayWhole) {
  const auto calendar = adapters::ZonedCalendar::gregorian(adapters::loadTimeZone("Europe/Berlin").value(), 2);
  EXPECT_EQ(daysOfThisRange(GetParam().range, *calendar, dateSince1970(GetParam().now)), GetParam().days);
}

INSTANTIATE_TEST_SUITE_P(Rows, DaysOfThisRange,
                         testing::Values(DaysRow{"mondayMorning", TimeRange::week, 1782720000, 1},   // 29 June 2026
                                         DaysRow{"wednesdayNoon", TimeRange::week, 1782907200, 3},   // 1 July
                                         DaysRow{"mondayMidnight", TimeRange::week, 1782684000, 8},  // 29 June
                                         DaysRow{"clockChange", TimeRange::week, 1774785600, 7 - 1 / 24.0},  // 29 March
                                         DaysRow{"firstOfMonth", TimeRange::month, 1782907200, 1},
                                         DaysRow{"middleOfYear", TimeRange::year, 1782907200, 182 - 1 / 24.0}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(DaysOfThisRange, areNotKnownWhereTheCalendarEnds) {
  const auto calendar = adapters::ZonedCalendar::gregorian(adapters::loadTimeZone("UTC").value(), 2);
  EXPECT_EQ(daysOfThisRange(TimeRange::year, *calendar, firstDate), std::nullopt);
}

}  // namespace
}  // namespace mivo
