// SPDX-License-Identifier: MIT
#include "adapters/time/ZonedCalendar.h"

#include <cassert>
#include <utility>

#include "adapters/time/GregorianDates.h"

namespace mivo::adapters {

using namespace std::chrono;

namespace {

std::optional<Date> ifRepresentable(Date date) {
  if (!isRepresentable(date)) return std::nullopt;
  return date;
}

int weekdayNumber(local_days day) { return static_cast<int>(weekday{day}.c_encoding()) + 1; }

bool isPossible(const MatchingComponents& wanted) {
  const auto within = [](const std::optional<int>& field, int low, int high) {
    return !field || (*field >= low && *field <= high);
  };
  const bool asksForSomething = wanted.month || wanted.day || wanted.weekday || wanted.hour || wanted.minute;
  return asksForSomething && within(wanted.month, 1, 13) && within(wanted.day, 1, 32) && within(wanted.weekday, 1, 7) &&
         within(wanted.hour, 0, 23) && within(wanted.minute, 0, 59);
}

bool isInMonth(const MatchingComponents& wanted, const DateFields& date) {
  return !wanted.month || (date.month == *wanted.month && !date.isLeapMonth);
}

bool matches(const MatchingComponents& wanted, const DateFields& date, local_days day) {
  return isInMonth(wanted, date) && (!wanted.day || date.day == *wanted.day) &&
         (!wanted.weekday || weekdayNumber(day) == *wanted.weekday);
}

// How far back the next day lies that could match.
days stepBack(const MatchingComponents& wanted, const DateFields& date) {
  const days toMonthBefore{date.day};
  if (!isInMonth(wanted, date)) return toMonthBefore;
  if (!wanted.day) return days{1};
  return date.day > *wanted.day ? days{date.day - *wanted.day} : toMonthBefore;
}

// The latest instant of a day before `before` that has the hour and minute asked for.
std::optional<Date> lastTimeOfDay(const MatchingComponents& wanted, const TimeZone& zone, local_days day, Date before) {
  const bool anyHour = !wanted.hour && wanted.minute;
  const int latest = anyHour ? 23 : wanted.hour.value_or(0);
  for (int hour = latest; hour >= (anyHour ? 0 : latest); --hour) {
    const Date found = zone.firstInstant(day + hours{hour} + minutes{wanted.minute.value_or(0)});
    if (found < before) return found;
  }
  return std::nullopt;
}

constexpr local_days firstDay{year{1} / 1 / 1};

}  // namespace

ZonedCalendar::ZonedCalendar(std::shared_ptr<const TimeZone> zone, std::shared_ptr<const DateSystem> dates,
                             int firstWeekday)
    : timeZoneRules{std::move(zone)}, dateSystem{std::move(dates)}, weekBegin{firstWeekday} {
  assert(firstWeekday >= 1 && firstWeekday <= 7);
}

std::shared_ptr<const ZonedCalendar> ZonedCalendar::gregorian(std::shared_ptr<const TimeZone> zone, int firstWeekday) {
  return std::make_shared<const ZonedCalendar>(std::move(zone), std::make_shared<const GregorianDates>(), firstWeekday);
}

std::optional<Date> ZonedCalendar::adding(CalendarComponent component, std::int64_t count, Date date) const {
  if (!isRepresentable(date)) return std::nullopt;
  if (component == CalendarComponent::hour)
    return ifRepresentable(date + Duration{static_cast<double>(count) * secondsPerHour});
  if (count == 0) return date;

  const sys_seconds second = wholeSecond(date);
  const local_seconds wall = timeZoneRules->wallTime(second);
  const local_days day = floor<days>(wall);
  const auto moved = movedDay(component, count, day);
  if (!moved) return std::nullopt;
  return ifRepresentable(timeZoneRules->instants(*moved + (wall - day)).first + (date - second));
}

std::optional<local_days> ZonedCalendar::movedDay(CalendarComponent component, std::int64_t count,
                                                  local_days day) const {
  constexpr std::int64_t daysOfAllYears = 3'660'000;
  if (component == CalendarComponent::month) return dateSystem->addingMonths(day, count);
  if (component == CalendarComponent::year) return dateSystem->addingYears(day, count);
  if (count < -daysOfAllYears || count > daysOfAllYears) return std::nullopt;
  return day + days{count};
}

std::optional<Date> ZonedCalendar::lastMatch(const MatchingComponents& components, Date before) const {
  if (!isRepresentable(before) || !isPossible(components)) return std::nullopt;
  local_days day = timeZoneRules->day(wholeSecond(before));
  while (day >= firstDay) {
    const DateFields date = dateSystem->fields(day);
    if (matches(components, date, day))
      if (const auto found = lastTimeOfDay(components, *timeZoneRules, day, before)) return ifRepresentable(*found);
    day -= stepBack(components, date);
  }
  return std::nullopt;
}

std::optional<Date> ZonedCalendar::startOfDay(Date date) const {
  if (!isRepresentable(date)) return std::nullopt;
  return ifRepresentable(timeZoneRules->startOfDay(wholeSecond(date)));
}

std::optional<Date> ZonedCalendar::endOfDay(Date date) const {
  if (!isRepresentable(date)) return std::nullopt;
  return ifRepresentable(timeZoneRules->endOfDay(wholeSecond(date)));
}

local_days ZonedCalendar::firstOfWeek(local_days day) const {
  return day - days{(weekdayNumber(day) - weekBegin + 7) % 7};
}

std::optional<Date> ZonedCalendar::startOfWeek(Date date) const {
  if (!isRepresentable(date)) return std::nullopt;
  return ifRepresentable(timeZoneRules->startOfDay(firstOfWeek(timeZoneRules->day(wholeSecond(date)))));
}

std::optional<Date> ZonedCalendar::endOfWeek(Date date) const {
  if (!isRepresentable(date)) return std::nullopt;
  return ifRepresentable(timeZoneRules->startOfDay(firstOfWeek(timeZoneRules->day(wholeSecond(date))) + days{7}));
}

local_days ZonedCalendar::firstOfMonth(local_days day) const { return day - days{dateSystem->fields(day).day - 1}; }

std::optional<Date> ZonedCalendar::startOfMonth(Date date) const {
  if (!isRepresentable(date)) return std::nullopt;
  return ifRepresentable(timeZoneRules->startOfDay(firstOfMonth(timeZoneRules->day(wholeSecond(date)))));
}

std::optional<Date> ZonedCalendar::endOfMonth(Date date) const {
  if (!isRepresentable(date)) return std::nullopt;
  const auto next = dateSystem->addingMonths(firstOfMonth(timeZoneRules->day(wholeSecond(date))), 1);
  if (!next) return std::nullopt;
  return ifRepresentable(timeZoneRules->startOfDay(*next));
}

std::optional<std::int64_t> ZonedCalendar::calendarDatesBetween(Date dateOne, Date dateTwo) const {
  if (!isRepresentable(dateOne) || !isRepresentable(dateTwo)) return std::nullopt;
  const days between = timeZoneRules->day(wholeSecond(dateTwo)) - timeZoneRules->day(wholeSecond(dateOne));
  return between.count() + 1;
}

std::shared_ptr<const Calendar> ZonedCalendar::gregorian() const {
  if (identifier() == gregorianIdentifier && weekBegin == 1) return shared_from_this();
  return gregorian(timeZoneRules, 1);
}

}  // namespace mivo::adapters
