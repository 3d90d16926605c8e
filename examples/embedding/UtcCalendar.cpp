// SPDX-License-Identifier: MIT
#include "UtcCalendar.h"

#include <chrono>

using namespace std::chrono;
using mivo::CalendarComponent;
using mivo::Date;

namespace {

std::optional<Date> checked(Date date) { return mivo::isRepresentable(date) ? std::optional{date} : std::nullopt; }

year_month_day fieldsOf(Date date) { return year_month_day{floor<days>(date)}; }

Date addingMonths(Date date, months count) {
  const year_month_day day = fieldsOf(date) + count;
  const sys_days target = day.ok() ? sys_days{day} : sys_days{day.year() / day.month() / last};
  return target + (date - floor<days>(date));
}

bool matches(sys_days day, const mivo::MatchingComponents& wanted) {
  const year_month_day ymd{day};
  const int weekdayFromSunday = static_cast<int>(weekday{day}.c_encoding()) + 1;
  return wanted.month.value_or(static_cast<int>(unsigned{ymd.month()})) == static_cast<int>(unsigned{ymd.month()}) &&
         wanted.day.value_or(static_cast<int>(unsigned{ymd.day()})) == static_cast<int>(unsigned{ymd.day()}) &&
         wanted.weekday.value_or(weekdayFromSunday) == weekdayFromSunday;
}

}  // namespace

std::optional<Date> UtcCalendar::adding(CalendarComponent component, std::int64_t count, Date date) const {
  switch (component) {
    case CalendarComponent::hour:
      return checked(date + mivo::Duration{static_cast<double>(count) * mivo::secondsPerHour});
    case CalendarComponent::day:
      return checked(date + mivo::Duration{static_cast<double>(count) * mivo::secondsPerDay});
    case CalendarComponent::month:
      return checked(addingMonths(date, months{count}));
    case CalendarComponent::year:
      return checked(addingMonths(date, months{12 * count}));
  }
  return std::nullopt;
}

std::optional<Date> UtcCalendar::lastMatch(const mivo::MatchingComponents& components, Date before) const {
  const mivo::Duration time = hours{components.hour.value_or(0)} + minutes{components.minute.value_or(0)};
  constexpr int daysOfFourYears = 1461;
  for (int back = 0; back <= 2 * daysOfFourYears; ++back) {
    const sys_days day = floor<days>(before) - days{back};
    if (const Date found = day + time; found < before && matches(day, components)) return checked(found);
  }
  return std::nullopt;
}

std::optional<Date> UtcCalendar::startOfDay(Date date) const { return checked(floor<days>(date)); }

std::optional<Date> UtcCalendar::endOfDay(Date date) const { return checked(floor<days>(date) + days{1}); }

std::optional<Date> UtcCalendar::startOfWeek(Date date) const {
  const sys_days day = floor<days>(date);
  return checked(day - (weekday{day} - Monday));
}

std::optional<Date> UtcCalendar::endOfWeek(Date date) const {
  const sys_days day = floor<days>(date);
  return checked(day - (weekday{day} - Monday) + days{7});
}

std::optional<Date> UtcCalendar::startOfMonth(Date date) const {
  const year_month_day day = fieldsOf(date);
  return checked(sys_days{day.year() / day.month() / 1});
}

std::optional<Date> UtcCalendar::endOfMonth(Date date) const {
  const year_month_day day = fieldsOf(date);
  return checked(sys_days{(day.year() / day.month() + months{1}) / 1});
}

std::optional<std::int64_t> UtcCalendar::calendarDatesBetween(Date dateOne, Date dateTwo) const {
  return (floor<days>(dateTwo) - floor<days>(dateOne)).count() + 1;
}

std::shared_ptr<const mivo::Calendar> UtcCalendar::gregorian() const { return std::make_shared<UtcCalendar>(); }
