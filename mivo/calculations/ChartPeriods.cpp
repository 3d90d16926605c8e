// SPDX-License-Identifier: MIT
#include "mivo/calculations/ChartPeriods.h"

#include <algorithm>

namespace mivo {
namespace {

std::optional<Date> periodStart(Date date, TimeRange range, const Calendar& calendar) {
  switch (range) {
    case TimeRange::week:
      return calendar.startOfDay(date);
    case TimeRange::month:
      return calendar.startOfWeek(date);
    case TimeRange::year:
      break;
  }
  return calendar.startOfMonth(date);
}

std::optional<Date> periodEnd(Date date, TimeRange range, const Calendar& calendar) {
  switch (range) {
    case TimeRange::week:
      return calendar.endOfDay(date);
    case TimeRange::month:
      return calendar.endOfWeek(date);
    case TimeRange::year:
      break;
  }
  return calendar.endOfMonth(date);
}

}  // namespace

std::optional<DateInterval> chartPeriod(Date date, TimeRange range, const Calendar& calendar) {
  const auto start = periodStart(date, range, calendar);
  const auto end = periodEnd(date, range, calendar);
  if (!start || !end) return std::nullopt;
  return DateInterval{*start, *end};
}

std::vector<DateInterval> chartPeriods(Date first, Date last, TimeRange range, const Calendar& calendar) {
  std::vector<DateInterval> periods;
  const Date latest = std::min(lastDate, last);
  for (Date next = std::max(firstDate, first); next <= latest;) {
    const bool beginsHere = !periods.empty() && periods.back().end == next;  // known without asking
    const auto start = beginsHere ? std::optional{next} : periodStart(next, range, calendar);
    const auto end = periodEnd(next, range, calendar);
    const bool isFormed = start && end && *end > next;
    if (isFormed) periods.push_back({*start, *end});
    next = isFormed ? *end : next + Duration{secondsPerDay};
  }
  return periods;
}

}  // namespace mivo
