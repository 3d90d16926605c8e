// SPDX-License-Identifier: MIT
#include "mivo/calculations/ChartPeriods.h"

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
  for (Date next = first; next <= last;) {
    const auto period = chartPeriod(next, range, calendar);
    if (period && period->end > next) {
      periods.push_back(*period);
      next = period->end;
    } else if (periods.empty()) {
      next += Duration{secondsPerDay};  // the first days of the year 1 belong to no week or month that can be formed
    } else {
      break;
    }
  }
  return periods;
}

}  // namespace mivo
