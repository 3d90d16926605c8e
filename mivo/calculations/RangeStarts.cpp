// SPDX-License-Identifier: MIT
#include "mivo/calculations/RangeStarts.h"

#include <cstdint>

namespace mivo {
namespace {

struct Rule {
  MatchingComponents begin;  // what the first instant of a range looks like
  CalendarComponent unit;    // how far back the range before lies
  std::int64_t units;
};

Rule rule(TimeRange range, const Calendar& calendar) {
  switch (range) {
    case TimeRange::week:
      return {{.weekday = calendar.firstWeekday(), .hour = 0, .minute = 0}, CalendarComponent::day, 7};
    case TimeRange::month:
      return {{.day = 1, .hour = 0, .minute = 0}, CalendarComponent::month, 1};
    case TimeRange::year:
      break;
  }
  return {{.month = 1, .day = 1, .hour = 0, .minute = 0}, CalendarComponent::year, 1};
}

}  // namespace

std::optional<RangeStarts> rangeStarts(TimeRange range, const Calendar& calendar, Date now) {
  const Rule rule = mivo::rule(range, calendar);
  const auto earlier = calendar.adding(rule.unit, -rule.units, now);
  if (!earlier) return std::nullopt;
  const auto thisStart = calendar.lastMatch(rule.begin, now);
  const auto lastStart = calendar.lastMatch(rule.begin, *earlier);
  if (!thisStart || !lastStart) return std::nullopt;
  return RangeStarts{*thisStart, *lastStart};
}

Date endOfToday(const Calendar& calendar, Date now) { return calendar.endOfDay(now).value_or(now); }

std::optional<double> daysOfThisRange(TimeRange range, const Calendar& calendar, Date now) {
  const auto starts = rangeStarts(range, calendar, now);
  if (!starts) return std::nullopt;
  return secondsBetween(starts->thisStart, endOfToday(calendar, now)) / secondsPerDay;
}

}  // namespace mivo
