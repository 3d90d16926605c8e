// SPDX-License-Identifier: MIT
#include "adapters/icu/Calendars.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <vector>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "tests/support/Instants.h"
#include "tests/support/Threads.h"

namespace mivo::adapters {
namespace {

using tests::text;
using tests::utc;
using enum CalendarComponent;

std::shared_ptr<const ZonedCalendar> calendarIn(const char* zone, const char* identifier, int firstWeekday = 1) {
  return makeCalendar(identifier, loadTimeZone(zone).value(), firstWeekday).value();
}

template <class Row>
std::string nameOf(const testing::TestParamInfo<Row>& row) {
  return row.param.name;
}

struct PeriodRow {
  const char *name, *zone, *calendar, *date, *startOfMonth, *endOfMonth, *newYear;
};
void PrintTo(const PeriodRow& row, std::ostream* out) { *out << row.name; }
class Periods : public testing::TestWithParam<PeriodRow> {};

TEST_P(Periods, areTheCalendarsOwnInTheZonesDays) {
  const PeriodRow& row = GetParam();
  const auto calendar = calendarIn(row.zone, row.calendar);
  EXPECT_EQ(text(calendar->startOfMonth(utc(row.date))), row.startOfMonth);
  EXPECT_EQ(text(calendar->endOfMonth(utc(row.date))), row.endOfMonth);
  EXPECT_EQ(text(calendar->lastMatch({.month = 1, .day = 1, .hour = 0, .minute = 0}, utc(row.date))), row.newYear);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Periods,
    testing::Values(PeriodRow{"gregorian", "Europe/Berlin", "gregorian", "2026-07-01 12:00", "2026-06-30 22:00:00",
                              "2026-07-31 22:00:00", "2025-12-31 23:00:00"},
                    PeriodRow{"buddhist", "Asia/Bangkok", "buddhist", "2026-07-01 12:00", "2026-06-30 17:00:00",
                              "2026-07-31 17:00:00", "2025-12-31 17:00:00"},
                    // Tammuz 5786; 1 Tishri was 2025-09-23. Clocks went back and forward in between.
                    PeriodRow{"hebrew", "Asia/Jerusalem", "hebrew", "2026-07-01 12:00", "2026-06-15 21:00:00",
                              "2026-07-14 21:00:00", "2025-09-22 21:00:00"},
                    PeriodRow{"umalqura", "Asia/Riyadh", "islamic-umalqura", "2026-07-01 12:00", "2026-06-15 21:00:00",
                              "2026-07-14 21:00:00", "2026-06-15 21:00:00"},
                    PeriodRow{"persian", "Asia/Tehran", "persian", "2026-07-01 12:00", "2026-06-21 20:30:00",
                              "2026-07-22 20:30:00", "2026-03-20 20:30:00"},
                    // Nowruz 1397, while Iran still moved its clocks, at the midnight between 1 and 2 Farvardin.
                    PeriodRow{"persianClockChange", "Asia/Tehran", "persian", "2018-03-22 12:00", "2018-03-20 20:30:00",
                              "2018-04-20 19:30:00", "2018-03-20 20:30:00"},
                    PeriodRow{"copticLittleMonth", "Africa/Cairo", "coptic", "2026-09-08 12:00", "2026-09-05 21:00:00",
                              "2026-09-10 21:00:00", "2025-09-10 21:00:00"},
                    // The leap sixth month of 2025 follows the sixth.
                    PeriodRow{"chineseLeapMonth", "Asia/Shanghai", "chinese", "2025-08-01 12:00", "2025-07-24 16:00:00",
                              "2025-08-22 16:00:00", "2025-01-28 16:00:00"}),
    nameOf<PeriodRow>);

struct AdditionRow {
  const char *name, *zone, *calendar, *date;
  CalendarComponent component;
  std::int64_t count;
  const char* expected;
};
void PrintTo(const AdditionRow& row, std::ostream* out) { *out << row.name; }
class CalendarAddition : public testing::TestWithParam<AdditionRow> {};

TEST_P(CalendarAddition, keepsTheDayOrTakesTheMonthsLast) {
  const AdditionRow& row = GetParam();
  EXPECT_EQ(text(calendarIn(row.zone, row.calendar)->adding(row.component, row.count, utc(row.date))), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CalendarAddition,
    testing::Values(
        AdditionRow{"buddhistMonthEnd", "Asia/Bangkok", "buddhist", "2026-01-31 05:00", month, 1,
                    "2026-02-28 05:00:00"},
        // 30 Shevat 5784, a leap year, to 30 Adar I; a year on from there to 29 Adar 5785.
        AdditionRow{"hebrewIntoTheLeapMonth", "UTC", "hebrew", "2024-02-09 12:00", month, 1, "2024-03-10 12:00:00"},
        AdditionRow{"hebrewYearFromTheLeapMonth", "UTC", "hebrew", "2024-03-10 12:00", year, 1, "2025-03-29 12:00:00"},
        AdditionRow{"hebrewYearBack", "UTC", "hebrew", "2026-07-01 12:00", year, -1, "2025-07-12 12:00:00"},
        // 30 Esfand 1403, a leap year's last day, to 29 Esfand 1404.
        AdditionRow{"persianLeapDay", "Asia/Tehran", "persian", "2025-03-20 12:00", year, 1, "2026-03-20 12:00:00"},
        AdditionRow{"umalquraMonthBack", "Asia/Riyadh", "islamic-umalqura", "2026-07-15 12:00", month, -1,
                    "2026-06-16 12:00:00"},
        AdditionRow{"wallClockOverTheChange", "Europe/Berlin", "hebrew", "2026-03-10 12:00", month, 1,
                    "2026-04-08 11:00:00"},
        AdditionRow{"daysNeedNoMonths", "Europe/Berlin", "hebrew", "2026-03-28 12:00", day, 1, "2026-03-29 11:00:00"},
        AdditionRow{"tooManyYears", "UTC", "islamic-umalqura", "2026-07-15 12:00", year, 9000, "none"},
        AdditionRow{"endlessMonths", "UTC", "hebrew", "2026-07-15 12:00", month, INT64_MIN, "none"},
        AdditionRow{"beforeTheYear1", "UTC", "persian", "2026-07-15 12:00", year, -2027, "none"}),
    nameOf<AdditionRow>);

TEST(Calendars, searchStrictlyBackInOtherMonths) {
  const auto calendar = calendarIn("Asia/Tehran", "persian", 7);
  EXPECT_EQ(text(calendar->lastMatch({.day = 1, .hour = 0, .minute = 0}, utc("2026-06-21 20:30"))),
            "2026-05-21 20:30:00");
  EXPECT_EQ(text(calendar->lastMatch({.weekday = 7, .hour = 0, .minute = 0}, utc("2026-06-26 20:30"))),
            "2026-06-19 20:30:00");
  EXPECT_EQ(text(calendar->startOfWeek(utc("2026-06-26 20:30"))), "2026-06-26 20:30:00");
}

TEST(Calendars, refuseUnknownIdentifiersAndWeekdays) {
  const auto zone = loadTimeZone("UTC").value();
  EXPECT_THAT(makeCalendar("gregory", zone, 1).error(),
              testing::StartsWith("unknown calendar \"gregory\": expected one of buddhist, chinese, coptic, "));
  EXPECT_THAT(makeCalendar("", zone, 1).error(), testing::StartsWith("unknown calendar \"\": expected one of "));
  EXPECT_EQ(makeCalendar("hebrew", zone, 0).error(), "first weekday 0: expected 1 (Sunday) to 7 (Saturday)");
  EXPECT_EQ(makeCalendar("gregorian", zone, 8).error(), "first weekday 8: expected 1 (Sunday) to 7 (Saturday)");
}

TEST(Calendars, giveAGregorianOneInTheirZone) {
  const auto calendar = calendarIn("Asia/Riyadh", "islamic-umalqura", 7);
  EXPECT_EQ(calendar->identifier(), "islamic-umalqura");
  EXPECT_EQ(calendar->gregorian()->identifier(), "gregorian");
  EXPECT_EQ(calendar->gregorian()->timeZone(), "Asia/Riyadh");
}

TEST(Calendars, answerTheSameFromManyThreads) {
  const auto monthsBack = [](const Calendar& calendar, int begin) {
    std::string all;
    for (Date at = utc("2026-07-01 12:00") - Duration{begin * secondsPerDay}; all.size() < 2000;
         at = *calendar.adding(month, -1, at))
      all += text(calendar.startOfMonth(at));
    return all;
  };
  const auto alone = calendarIn("Asia/Jerusalem", "hebrew"), shared = calendarIn("Asia/Jerusalem", "hebrew");
  std::vector<std::string> expected, found(4);
  for (int i = 0; i < 4; ++i) expected.push_back(monthsBack(*alone, 400 * i));
  {
    tests::Threads threads;
    for (std::size_t i = 0; i < found.size(); ++i)
      threads.start([&, i] { found[i] = monthsBack(*shared, 400 * static_cast<int>(i)); });
  }
  EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace mivo::adapters
