// SPDX-License-Identifier: MIT
#include "mivo/pages/DateTimeText.h"

#include <gtest/gtest.h>

#include "tests/pages/Pages.h"

namespace mivo {
namespace {

using tests::utc;

struct DateRow {
  const char* name;
  const char* date;
  std::string text;
};
void PrintTo(const DateRow& row, std::ostream* out) { *out << row.name; }

class DateTimes : public testing::TestWithParam<DateRow> {};

TEST_P(DateTimes, nameTheDayAsPeopleDo) {
  const tests::Pages pages;
  EXPECT_EQ(dateTimeText(utc(GetParam().date), pages.at(utc("2026-01-01 00:30"))), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, DateTimes,
                         testing::Values(DateRow{"today", "2026-01-01 00:05", "Today, 00:05"},
                                         DateRow{"laterToday", "2026-01-01 23:59", "Today, 23:59"},
                                         DateRow{"yesterdayOfAnotherYear", "2025-12-31 23:55", "Yesterday, 23:55"},
                                         DateRow{"tomorrow", "2026-01-02 00:00", "01-02 00:00"},
                                         DateRow{"thisYear", "2026-06-09 20:02", "06-09 20:02"},
                                         DateRow{"anotherYear", "2025-12-30 20:00", "2025-12-30 20:00"}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(DayText, namesTheYearOnlyWhereItIsAnother) {
  const tests::Pages pages;
  const auto clients = pages.at(utc("2026-01-01 00:30"));
  EXPECT_EQ(dayText(utc("2026-06-09 18:02"), clients), "06-09");
  EXPECT_EQ(dayText(utc("2025-12-31 22:55"), clients), "2025-12-31");
  EXPECT_EQ(fixedDateTimeText(utc("2026-01-01 00:00"), clients), "01-01 00:00") << "even where it is today";
}

}  // namespace
}  // namespace mivo
