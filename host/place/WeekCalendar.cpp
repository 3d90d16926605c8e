// SPDX-License-Identifier: MIT
#include "host/place/WeekCalendar.h"

#include <cassert>
#include <utility>

namespace mivo::host {

WeekCalendar::WeekCalendar(const adapters::ZonedCalendar& usualCalendar)
    : usual{usualCalendar.firstWeekday()},
      made{std::make_shared<adapters::ZonedCalendar>(usualCalendar.zone(), usualCalendar.dates(), usual)},
      shown{made.back().get()} {}

void WeekCalendar::choose(std::optional<int> weekday) {
  assert(!weekday || (*weekday >= 1 && *weekday <= 7));
  show(present().zone(), weekday.value_or(usual));
}

void WeekCalendar::moveTo(std::shared_ptr<const adapters::TimeZone> zone) { show(std::move(zone), firstWeekday()); }

void WeekCalendar::show(std::shared_ptr<const adapters::TimeZone> zone, int firstWeekday) {
  if (zone == present().zone() && firstWeekday == present().firstWeekday()) return;
  made.push_back(std::make_shared<adapters::ZonedCalendar>(std::move(zone), present().dates(), firstWeekday));
  shown = made.back().get();
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
