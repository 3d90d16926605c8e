// SPDX-License-Identifier: MIT
#include "host/place/WeekCalendar.h"

#include <cassert>

namespace mivo::host {

WeekCalendar::WeekCalendar(const adapters::ZonedCalendar& usualCalendar)
    : usual{usualCalendar.firstWeekday()}, chosen{usual} {
  int weekday = 1;
  for (auto& calendar : byFirstWeekday)
    calendar = std::make_shared<adapters::ZonedCalendar>(usualCalendar.zone(), usualCalendar.dates(), weekday++);
}

void WeekCalendar::choose(std::optional<int> weekday) const {
  assert(!weekday || (*weekday >= 1 && *weekday <= static_cast<int>(daysOfWeek)));
  chosen = weekday.value_or(usual);
}

std::optional<Date> WeekCalendar::adding(CalendarComponent component, std::int64_t count, Date date) const {
  return present().adding(component, count, date);
}

std::optional<Date> WeekCalendar::lastMatch(const MatchingComponents& components, Date before) const {
  return present().lastMatch(components, before);
}

std::optional<std::int64_t> WeekCalendar::calendarDatesBetween(Date dateOne, Date dateTwo) const {
  return present().calendarDatesBetween(dateOne, dateTwo);
}

}  // namespace mivo::host
