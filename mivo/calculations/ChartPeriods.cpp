// SPDX-License-Identifier: MIT
#include "mivo/calculations/ChartPeriods.h"

#include <algorithm>

namespace mivo {
namespace {

std::optional<DateInterval> interval(std::optional<Date> start, std::optional<Date> end) {
  if (!start || !end) return std::nullopt;
  return DateInterval{*start, *end};
}

}  // namespace

std::optional<DateInterval> chartPeriod(Date date, TimeRange range, const Calendar& calendar) {
  switch (range) {
    case TimeRange::week: {
      const auto end = calendar.endOfDay(date);
      return interval(calendar.startOfDay(date), end);
    }
    case TimeRange::month: {
      const auto start = calendar.startOfWeek(date);
      return interval(start, calendar.endOfWeek(date));
    }
    case TimeRange::year:
      break;
  }
  const auto start = calendar.startOfMonth(date);
  return interval(start, calendar.endOfMonth(date));
}

std::vector<DateInterval> chartPeriods(Date first, Date last, TimeRange range, const Calendar& calendar) {
  std::vector<DateInterval> periods;
  const Date latest = std::min(lastDate, last);
  for (Date next = std::max(firstDate, first); next <= latest;) {
    const auto period = chartPeriod(next, range, calendar);
    const bool isFormed = period && period->end > next;
    if (isFormed) periods.push_back(*period);
    next = isFormed ? period->end : next + Duration{secondsPerDay};
  }
  return periods;
}

}  // namespace mivo
