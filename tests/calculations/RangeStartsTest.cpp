// SPDX-License-Identifier: MIT
#include "mivo/calculations/RangeStarts.h"

#include <gtest/gtest.h>

#include <string>

#include "adapters/icu/Calendars.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "mivo/calculations/ChartPeriods.h"
#include "mivo/store/Print.h"
#include "tests/histories/ZoneRows.h"

namespace mivo {

void PrintTo(const RangeStarts& starts, std::ostream* out) {
  *out << printed(starts.thisStart) << " after " << printed(starts.lastStart);
}

void PrintTo(const DateInterval& interval, std::ostream* out) {
  *out << printed(interval.start) << " to " << printed(interval.end);
}

namespace {

std::shared_ptr<const Calendar> calendar(const char* identifier, const char* zone, int firstWeekday) {
  return adapters::makeCalendar(identifier, adapters::loadTimeZone(zone).value(), firstWeekday).value();
}

constexpr Date utc(int year, unsigned month, unsigned day, double hours = 0) {
  const std::chrono::sys_days midnight{std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day)};
  return Date{midnight} + Duration{hours * secondsPerHour};
}

struct StartsRow {
  const char* name;
  TimeRange range;
  const char* identifier;
  const char* zone;
  int firstWeekday;
  Date now;
  RangeStarts expected;
};
void PrintTo(const StartsRow& row, std::ostream* out) { *out << row.name; }
class RangeStartsOf : public testing::TestWithParam<StartsRow> {};

TEST_P(RangeStartsOf, areTheFirstInstantsBeforeNow) {
  const auto& row = GetParam();
  const auto starts = rangeStarts(row.range, *calendar(row.identifier, row.zone, row.firstWeekday), row.now);
  EXPECT_EQ(starts, row.expected);
}

using enum TimeRange;
INSTANTIATE_TEST_SUITE_P(
    Rows, RangeStartsOf,
    testing::Values(
        StartsRow{"onTheFirstWeekday",
                  week,
                  "gregorian",
                  "UTC",
                  2,
                  utc(2026, 6, 29, 10),
                  {utc(2026, 6, 29), utc(2026, 6, 22)}},
        StartsRow{"atItsMidnightItIsTheWeekBefore",
                  week,
                  "gregorian",
                  "UTC",
                  2,
                  utc(2026, 6, 29),
                  {utc(2026, 6, 22), utc(2026, 6, 15)}},
        StartsRow{
            "weekFromSunday", week, "gregorian", "UTC", 1, utc(2026, 6, 29, 10), {utc(2026, 6, 28), utc(2026, 6, 21)}},
        StartsRow{"month", month, "gregorian", "UTC", 2, utc(2026, 3, 31, 10), {utc(2026, 3, 1), utc(2026, 2, 1)}},
        StartsRow{"year", year, "gregorian", "UTC", 2, utc(2026, 3, 1), {utc(2026, 1, 1), utc(2025, 1, 1)}},
        StartsRow{"clocksChangeInBetween",
                  week,
                  "gregorian",
                  "America/New_York",
                  1,
                  utc(2026, 3, 9, 16),
                  {utc(2026, 3, 8, 5), utc(2026, 3, 1, 5)}},
        StartsRow{"midnightSkipped",
                  week,
                  "gregorian",
                  "America/Sao_Paulo",
                  1,
                  utc(2018, 11, 6, 12),
                  {utc(2018, 11, 4, 3), utc(2018, 10, 28, 3)}},
        StartsRow{"buddhistYearBeginsInJanuary",
                  year,
                  "buddhist",
                  "UTC",
                  2,
                  utc(2026, 7, 1),
                  {utc(2026, 1, 1), utc(2025, 1, 1)}},
        StartsRow{"persianYear", year, "persian", "UTC", 2, utc(2026, 7, 1), {utc(2026, 3, 21), utc(2025, 3, 21)}},
        StartsRow{"hebrewMonth", month, "hebrew", "UTC", 1, utc(2026, 9, 20), {utc(2026, 9, 12), utc(2026, 8, 14)}},
        StartsRow{
            "islamicYear", year, "islamic-umalqura", "UTC", 1, utc(2026, 7, 1), {utc(2026, 6, 16), utc(2025, 6, 26)}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(RangeStarts, areMissingWhereTheCalendarEnds) {
  const auto gregorian = tests::gregorianCalendar("UTC");
  for (const TimeRange range : allTimeRanges)
    EXPECT_EQ(rangeStarts(range, *gregorian, utc(1, 1, 5)), std::nullopt) << rawValue(range);
}

struct PeriodRow {
  const char* name;
  TimeRange range;
  const char* zone;
  Date date;
  DateInterval expected;
};
void PrintTo(const PeriodRow& row, std::ostream* out) { *out << row.name; }
class ChartPeriods : public testing::TestWithParam<PeriodRow> {};

TEST(ChartPeriod, isMissingWhereTheCalendarHasNoEndOfIt) {
  const auto gregorian = tests::gregorianCalendar("UTC");
  for (const TimeRange range : allTimeRanges) EXPECT_EQ(chartPeriod(lastDate, range, *gregorian), std::nullopt);
}

TEST_P(ChartPeriods, isTheCalendarsOwn) {
  EXPECT_EQ(chartPeriod(GetParam().date, GetParam().range, *tests::gregorianCalendar(GetParam().zone)),
            GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(
    Rows, ChartPeriods,
    testing::Values(
        PeriodRow{"day", week, "UTC", utc(2026, 2, 15, 9), {utc(2026, 2, 15), utc(2026, 2, 16)}},
        PeriodRow{"week", month, "UTC", utc(2026, 2, 15, 9), {utc(2026, 2, 9), utc(2026, 2, 16)}},
        PeriodRow{"month", year, "UTC", utc(2026, 2, 15, 9), {utc(2026, 2, 1), utc(2026, 3, 1)}},
        PeriodRow{
            "dayOf23Hours", week, "America/New_York", utc(2026, 3, 8, 12), {utc(2026, 3, 8, 5), utc(2026, 3, 9, 4)}},
        PeriodRow{"dayBeforeTheMissingOne",
                  week,
                  "Pacific/Apia",
                  utc(2011, 12, 30, 9),
                  {utc(2011, 12, 29, 10), utc(2011, 12, 30, 10)}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(ChartPeriods, followEachOtherWithoutGaps) {
  const auto apia = tests::gregorianCalendar("Pacific/Apia");
  const auto days = chartPeriods(utc(2011, 12, 29, 12), utc(2012, 1, 1, 12), week, *apia);
  ASSERT_EQ(days.size(), 4u);  // the 29th, the 31st, 1 and 2 January: there was no 30th
  for (std::size_t day = 1; day < days.size(); ++day) EXPECT_EQ(days[day].start, days[day - 1].end);
  EXPECT_TRUE(chartPeriods(utc(2026, 1, 2), utc(2026, 1, 1), week, *apia).empty());
}

TEST(ChartPeriods, leaveOutWhatTheCalendarCannotForm) {
  const auto gregorian = tests::gregorianCalendar("UTC");
  const auto weeks = chartPeriods(utc(1, 1, 1, 1), utc(1, 1, 20), month, *tests::gregorianCalendar("UTC", 7));
  ASSERT_FALSE(weeks.empty());
  EXPECT_EQ(weeks.front().start, utc(1, 1, 6)) << "the week of 30 December of the year before year 1 has no start";
  const auto months = chartPeriods(utc(9999, 11, 5), utc(9999, 12, 20), year, *gregorian);
  EXPECT_EQ(months, (std::vector<DateInterval>{{utc(9999, 11, 1), utc(9999, 12, 1)}})) << "December has no end";
}

/// A calendar of a host, which knows the days of UTC but for one, and nothing else.
struct CalendarOfAHost : Calendar {
  std::string_view identifier() const override { return gregorianIdentifier; }
  std::string_view timeZone() const override { return "UTC"; }
  int firstWeekday() const override { return 2; }
  std::optional<Date> adding(CalendarComponent, std::int64_t, Date) const override { return std::nullopt; }
  std::optional<Date> lastMatch(const MatchingComponents&, Date) const override { return std::nullopt; }
  std::optional<Date> startOfDay(Date date) const override {
    ++asked;
    if (!isRepresentable(date) || isMissing(date)) return std::nullopt;
    return std::chrono::floor<std::chrono::days>(date);
  }
  std::optional<Date> endOfDay(Date date) const override {
    if (isMissing(date)) return std::nullopt;
    return std::chrono::floor<std::chrono::days>(date) + day;
  }
  std::optional<Date> startOfWeek(Date) const override { return std::nullopt; }
  std::optional<Date> endOfWeek(Date) const override { return std::nullopt; }
  std::optional<Date> startOfMonth(Date) const override { return std::nullopt; }
  std::optional<Date> endOfMonth(Date) const override { return std::nullopt; }
  std::optional<std::int64_t> calendarDatesBetween(Date, Date) const override { return std::nullopt; }
  std::shared_ptr<const Calendar> gregorian() const override { return nullptr; }

  bool isMissing(Date date) const { return date >= missing && date < missing + day; }

  static constexpr Duration day{secondsPerDay};
  Date missing = utc(2026, 2, 2);
  mutable int asked = 0;
};

TEST(ChartPeriods, skipADayThatTheCalendarCannotForm) {
  const CalendarOfAHost calendar;
  EXPECT_EQ(chartPeriods(utc(2026, 2, 1, 9), utc(2026, 2, 3, 9), week, calendar),
            (std::vector<DateInterval>{{utc(2026, 2, 1), utc(2026, 2, 2)}, {utc(2026, 2, 3), utc(2026, 2, 4)}}));
}

TEST(ChartPeriods, areNotLookedForDayByDayFromTheFarPastOn) {
  const CalendarOfAHost calendar;
  const auto periods = chartPeriods(dateSince1970(-1e18), utc(1, 1, 1, 9), week, calendar);
  EXPECT_EQ(periods, (std::vector<DateInterval>{{utc(1, 1, 1), utc(1, 1, 2)}}));
  EXPECT_EQ(calendar.asked, 1);
}

}  // namespace
}  // namespace mivo
