// SPDX-License-Identifier: MIT
#include "adapters/time/ZonedCalendar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <string>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "tests/support/Instants.h"

namespace mivo::adapters {
namespace {

using tests::text;
using tests::utc;
using enum CalendarComponent;

std::shared_ptr<const ZonedCalendar> calendarIn(const char* zone, int firstWeekday = 2) {
  return ZonedCalendar::gregorian(loadTimeZone(zone).value(), firstWeekday);
}

template <class Row>
std::string nameOf(const testing::TestParamInfo<Row>& row) {
  return row.param.name;
}

struct DayRow {
  const char *name, *zone, *within, *start;
  double hours;
};
void PrintTo(const DayRow& row, std::ostream* out) { *out << row.name; }
class OddDay : public testing::TestWithParam<DayRow> {};

TEST_P(OddDay, hasItsLength) {
  const auto calendar = calendarIn(GetParam().zone);
  const Date within = utc(GetParam().within);
  EXPECT_EQ(text(calendar->startOfDay(within)), GetParam().start);
  EXPECT_EQ(secondsBetween(*calendar->startOfDay(within), *calendar->endOfDay(within)) / 3600, GetParam().hours);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OddDay,
    testing::Values(
        DayRow{"kolkata", "Asia/Kolkata", "2026-07-01 12:00", "2026-06-30 18:30:00", 24},
        DayRow{"newYorkSpring", "America/New_York", "2026-03-08 20:00", "2026-03-08 05:00:00", 23},
        DayRow{"newYorkAutumn", "America/New_York", "2026-11-01 20:00", "2026-11-01 04:00:00", 25},
        DayRow{"londonSpring", "Europe/London", "2026-03-29 12:00", "2026-03-29 00:00:00", 23},
        DayRow{"londonAutumn", "Europe/London", "2026-10-25 12:00", "2026-10-24 23:00:00", 25},
        DayRow{"lordHoweSpring", "Australia/Lord_Howe", "2026-10-04 00:00", "2026-10-03 13:30:00", 23.5},
        DayRow{"lordHoweAutumn", "Australia/Lord_Howe", "2026-04-05 00:00", "2026-04-04 13:00:00", 24.5},
        DayRow{"casablancaRamadanBegins", "Africa/Casablanca", "2026-02-15 12:00", "2026-02-14 23:00:00", 25},
        DayRow{"casablancaRamadanEnds", "Africa/Casablanca", "2026-03-22 12:00", "2026-03-22 00:00:00", 23},
        DayRow{"saoPauloSkipsMidnight", "America/Sao_Paulo", "2018-11-04 12:00", "2018-11-04 03:00:00", 23},
        DayRow{"saoPauloRepeatsTheHourBefore", "America/Sao_Paulo", "2018-02-18 02:30", "2018-02-17 02:00:00", 25},
        DayRow{"cairoSkipsMidnight", "Africa/Cairo", "2026-04-24 12:00", "2026-04-23 22:00:00", 23},
        DayRow{"troll", "Antarctica/Troll", "2026-03-29 12:00", "2026-03-29 00:00:00", 22},
        DayRow{"apiaBeforeItsMissingDate", "Pacific/Apia", "2011-12-30 09:59:59", "2011-12-29 10:00:00", 24},
        DayRow{"apiaAfterIt", "Pacific/Apia", "2011-12-30 10:00", "2011-12-30 10:00:00", 24},
        // Back from 00:01 to 23:01: midnight comes twice, and the hour between belongs to the new day.
        DayRow{"stJohnsTwoMidnights", "America/St_Johns", "2006-10-29 03:00", "2006-10-29 02:30:00", 25}),
    nameOf<DayRow>);

struct AdditionRow {
  const char *name, *zone, *date;
  CalendarComponent component;
  std::int64_t count;
  const char* expected;
};
void PrintTo(const AdditionRow& row, std::ostream* out) { *out << row.name; }
class Addition : public testing::TestWithParam<AdditionRow> {};

TEST_P(Addition, keepsTheWallClock) {
  const AdditionRow& row = GetParam();
  EXPECT_EQ(text(calendarIn(row.zone)->adding(row.component, row.count, utc(row.date))), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Addition,
    testing::Values(
        AdditionRow{"hoursAreElapsedTime", "Europe/Berlin", "2026-03-28 23:00", hour, 24, "2026-03-29 23:00:00"},
        AdditionRow{"daysAreNot", "Europe/Berlin", "2026-03-28 12:00", day, 1, "2026-03-29 11:00:00"},
        AdditionRow{"backAWeekOverTheChange", "Europe/Berlin", "2026-04-01 10:00", day, -7, "2026-03-25 11:00:00"},
        AdditionRow{"intoTheGap", "Europe/Berlin", "2026-03-28 01:30", day, 1, "2026-03-29 01:30:00"},
        AdditionRow{"intoTheDoubleHour", "Europe/Berlin", "2026-10-24 00:30", day, 1, "2026-10-25 00:30:00"},
        AdditionRow{"nothingToTheSecondOfTwo", "Europe/Berlin", "2026-10-25 01:30", day, 0, "2026-10-25 01:30:00"},
        AdditionRow{"fractionsStay", "Europe/Berlin", "2026-07-01 12:00:00.25", day, 40, "2026-08-10 12:00:00.250000"},
        AdditionRow{"monthEnd", "Europe/Berlin", "2026-01-31 12:00", month, 1, "2026-02-28 12:00:00"},
        AdditionRow{"monthEndInALeapYear", "Europe/Berlin", "2024-01-31 12:00", month, 1, "2024-02-29 12:00:00"},
        AdditionRow{"monthEndBack", "Europe/Berlin", "2026-03-31 12:00", month, -1, "2026-02-28 13:00:00"},
        AdditionRow{"monthsOverNewYear", "Asia/Kolkata", "2026-01-15 12:00", month, -14, "2024-11-15 12:00:00"},
        AdditionRow{"leapDay", "Asia/Kolkata", "2024-02-29 12:00", year, 1, "2025-02-28 12:00:00"},
        AdditionRow{"leapDayBack", "Asia/Kolkata", "2024-02-29 12:00", year, -4, "2020-02-29 12:00:00"},
        AdditionRow{"ontoApiasMissingDate", "Pacific/Apia", "2011-12-29 18:00", day, 1, "2011-12-30 18:00:00"},
        AdditionRow{"overApiasMissingDate", "Pacific/Apia", "2011-12-29 18:00", day, 2, "2011-12-30 18:00:00"},
        AdditionRow{"ontoASkippedMidnight", "America/Sao_Paulo", "2018-11-03 03:30", day, 1, "2018-11-04 03:30:00"},
        AdditionRow{"yearTooLate", "Asia/Kolkata", "2026-01-15 12:00", year, 8000, "none"},
        AdditionRow{"yearTooEarly", "Asia/Kolkata", "2026-01-15 12:00", year, -2026, "none"},
        AdditionRow{"endlessDays", "Asia/Kolkata", "2026-01-15 12:00", day, std::numeric_limits<std::int64_t>::max(),
                    "none"},
        AdditionRow{"endlessMonths", "Asia/Kolkata", "2026-01-15 12:00", month,
                    std::numeric_limits<std::int64_t>::min(), "none"},
        AdditionRow{"endlessHours", "Asia/Kolkata", "2026-01-15 12:00", hour, std::numeric_limits<std::int64_t>::max(),
                    "none"}),
    nameOf<AdditionRow>);

constexpr MatchingComponents monday{.weekday = 2, .hour = 0, .minute = 0};
constexpr MatchingComponents firstOfMonth{.day = 1, .hour = 0, .minute = 0};
constexpr MatchingComponents newYear{.month = 1, .day = 1, .hour = 0, .minute = 0};

struct MatchRow {
  const char *name, *zone, *before;
  MatchingComponents wanted;
  const char* expected;
};
void PrintTo(const MatchRow& row, std::ostream* out) { *out << row.name; }
class BackwardSearch : public testing::TestWithParam<MatchRow> {};

TEST_P(BackwardSearch, findsTheLatestStrictlyEarlier) {
  EXPECT_EQ(text(calendarIn(GetParam().zone)->lastMatch(GetParam().wanted, utc(GetParam().before))),
            GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BackwardSearch,
    testing::Values(
        MatchRow{"sameDay", "Europe/Berlin", "2026-06-29 08:00", monday, "2026-06-28 22:00:00"},
        MatchRow{"weekBefore", "Europe/Berlin", "2026-06-28 21:00", monday, "2026-06-21 22:00:00"},
        MatchRow{"atItsVeryStart", "Europe/Berlin", "2026-06-28 22:00", monday, "2026-06-21 22:00:00"},
        MatchRow{"justAfterItsStart", "Europe/Berlin", "2026-06-28 22:00:00.001", monday, "2026-06-28 22:00:00"},
        MatchRow{"month", "Europe/Berlin", "2026-07-31 12:00", firstOfMonth, "2026-06-30 22:00:00"},
        MatchRow{"atTheMonthsVeryStart", "Europe/Berlin", "2026-06-30 22:00", firstOfMonth, "2026-05-31 22:00:00"},
        MatchRow{"year", "Europe/Berlin", "2026-07-31 12:00", newYear, "2025-12-31 23:00:00"},
        MatchRow{"atTheYearsVeryStart", "Europe/Berlin", "2025-12-31 23:00", newYear, "2024-12-31 23:00:00"},
        MatchRow{"secondOfTwoMidnightsIsNone",
                 "America/St_Johns",
                 "2006-10-29 04:00",
                 {.day = 29, .hour = 0},
                 "2006-10-29 02:30:00"},
        MatchRow{
            "skippedMidnight", "America/Sao_Paulo", "2018-11-05 12:00", {.day = 4, .hour = 0}, "2018-11-04 03:00:00"},
        MatchRow{"missingDate", "Pacific/Apia", "2012-01-05 12:00", {.day = 30, .hour = 0}, "2011-12-30 10:00:00"},
        MatchRow{"missingDateIsNotBeforeItself",
                 "Pacific/Apia",
                 "2011-12-30 10:00",
                 {.day = 30, .hour = 0},
                 "2011-11-30 10:00:00"},
        MatchRow{"leapDay", "Europe/London", "2026-07-31 12:00", {.month = 2, .day = 29}, "2024-02-29 00:00:00"},
        MatchRow{
            "dayAndWeekday", "Europe/London", "2026-07-31 12:00", {.day = 13, .weekday = 6}, "2026-03-13 00:00:00"},
        MatchRow{"monthAlone", "Europe/London", "2026-07-31 12:00", {.month = 2}, "2026-02-28 00:00:00"},
        MatchRow{"hourOfTheDayBefore", "Asia/Kolkata", "2026-07-01 02:00", {.hour = 8}, "2026-06-30 02:30:00"},
        MatchRow{"minuteOfAnyHour", "Asia/Kolkata", "2026-07-01 02:05", {.minute = 15}, "2026-07-01 01:45:00"},
        MatchRow{"noSuchDay", "Europe/London", "0003-07-31 12:00", {.month = 2, .day = 30}, "none"},
        MatchRow{"noSuchMonth", "Europe/London", "2026-07-31 12:00", {.month = 14}, "none"},
        MatchRow{"nothingAskedFor", "Europe/London", "2026-07-31 12:00", {}, "none"},
        MatchRow{"beforeTheFirstYear", "UTC", "0001-01-01 00:00", newYear, "none"}),
    nameOf<MatchRow>);

TEST(ZonedCalendar, weeksBeginWithTheirFirstWeekday) {
  const Date wednesday = utc("2026-07-01 12:00");
  EXPECT_EQ(text(calendarIn("UTC", 1)->startOfWeek(wednesday)), "2026-06-28 00:00:00");
  EXPECT_EQ(text(calendarIn("UTC", 2)->startOfWeek(wednesday)), "2026-06-29 00:00:00");
  EXPECT_EQ(text(calendarIn("UTC", 4)->startOfWeek(wednesday)), "2026-07-01 00:00:00");
  EXPECT_EQ(text(calendarIn("UTC", 5)->startOfWeek(wednesday)), "2026-06-25 00:00:00");
  EXPECT_EQ(text(calendarIn("UTC", 5)->endOfWeek(wednesday)), "2026-07-02 00:00:00");
}

TEST(ZonedCalendar, periodsThatBeginOnASkippedDateBeginAfterIt) {
  const auto apia = calendarIn("Pacific/Apia", 6);  // 2011-12-30 was to be a Friday
  EXPECT_EQ(text(apia->startOfWeek(utc("2012-01-01 12:00"))), "2011-12-30 10:00:00");
  EXPECT_EQ(text(apia->endOfWeek(utc("2011-12-29 12:00"))), "2011-12-30 10:00:00");
}

TEST(ZonedCalendar, monthsEndWhereTheNextBegins) {
  const auto calendar = calendarIn("Europe/London");
  EXPECT_EQ(text(calendar->startOfMonth(utc("2026-03-31 23:30"))), "2026-03-31 23:00:00");
  EXPECT_EQ(text(calendar->endOfMonth(utc("2026-03-31 22:30"))), "2026-03-31 23:00:00");
  EXPECT_EQ(text(calendar->endOfMonth(utc("2025-12-31 12:00"))), "2026-01-01 00:00:00");
}

TEST(ZonedCalendar, countsBothDatesAndThoseThatWereSkipped) {
  const auto berlin = calendarIn("Europe/Berlin"), apia = calendarIn("Pacific/Apia");
  EXPECT_EQ(berlin->calendarDatesBetween(utc("2026-06-30 22:00"), utc("2026-07-01 21:59")), 1);
  EXPECT_EQ(berlin->calendarDatesBetween(utc("2026-06-30 21:59"), utc("2026-06-30 22:00")), 2);
  EXPECT_EQ(berlin->calendarDatesBetween(utc("2026-07-03 12:00"), utc("2026-07-01 12:00")), -1);
  EXPECT_EQ(apia->calendarDatesBetween(utc("2011-12-30 09:00"), utc("2011-12-30 10:00")), 3);
}

TEST(ZonedCalendar, hasNoAnswersOutsideTheYears1To9999) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const auto calendar = calendarIn("Asia/Tokyo");
  for (const double seconds :
       {std::nan(""), infinity, -infinity, 1e300, secondsSince1970(firstDate) - 1, secondsSince1970(lastDate) + 1}) {
    const Date date = dateSince1970(seconds);
    for (const auto component : {hour, day, month, year}) EXPECT_EQ(calendar->adding(component, 0, date), std::nullopt);
    for (const auto bound : {&Calendar::startOfDay, &Calendar::endOfDay, &Calendar::startOfWeek, &Calendar::endOfWeek,
                             &Calendar::startOfMonth, &Calendar::endOfMonth})
      EXPECT_EQ(((*calendar).*bound)(date), std::nullopt) << seconds;
    EXPECT_EQ(calendar->lastMatch(monday, date), std::nullopt);
    EXPECT_EQ(calendar->calendarDatesBetween(date, lastDate), std::nullopt);
    EXPECT_EQ(calendar->calendarDatesBetween(firstDate, date), std::nullopt);
  }
  EXPECT_EQ(text(calendar->startOfDay(firstDate)), "none") << "began in the year 0";
  EXPECT_EQ(text(calendar->endOfDay(lastDate)), "none");
  EXPECT_EQ(text(calendar->startOfDay(lastDate)), "9999-12-31 15:00:00");
  EXPECT_EQ(calendar->calendarDatesBetween(firstDate, lastDate), 3652060);
}

TEST(ZonedCalendar, givesAGregorianCalendarWithWeeksFromSunday) {
  const auto calendar = calendarIn("Asia/Tokyo", 2)->gregorian();
  EXPECT_EQ(calendar->identifier(), gregorianIdentifier);
  EXPECT_EQ(calendar->timeZone(), "Asia/Tokyo");
  EXPECT_EQ(calendar->firstWeekday(), 1);
}

}  // namespace
}  // namespace mivo::adapters
