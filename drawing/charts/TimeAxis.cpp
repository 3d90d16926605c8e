// SPDX-License-Identifier: MIT
#include "drawing/charts/TimeAxis.h"

#include <algorithm>

#include "mivo/charts/VisibleSpan.h"

namespace mivo::drawing {
namespace {

std::optional<Date> startOfPeriod(const Calendar& calendar, TimeRange range, Date date) {
  switch (range) {
    case TimeRange::week:
      return calendar.startOfDay(date);
    case TimeRange::month:
      return calendar.startOfWeek(date);
    case TimeRange::year:
      return calendar.startOfMonth(date);
  }
  return std::nullopt;
}

std::optional<Date> endOfPeriod(const Calendar& calendar, TimeRange range, Date date) {
  switch (range) {
    case TimeRange::week:
      return calendar.endOfDay(date);
    case TimeRange::month:
      return calendar.endOfWeek(date);
    case TimeRange::year:
      return calendar.endOfMonth(date);
  }
  return std::nullopt;
}

}  // namespace

DateInterval timeAxisDomain(TimeRange range, std::optional<Date> firstPoint, Date now, const Calendar& calendar) {
  const Date end = calendar.endOfDay(now).value_or(now);
  const Date latestStart = end - Duration{visibleSpan(range)};
  return {firstPoint ? std::min(*firstPoint, latestStart) : latestStart, end};
}

std::vector<TimeAxisLabel> timeAxisLabels(TimeRange range, DateInterval visible, Date now, const Calendar& calendar,
                                          const DateFormatter& dates) {
  std::vector<TimeAxisLabel> all;
  auto start = startOfPeriod(calendar, range, visible.start);
  while (start && *start < visible.end) {
    const auto end = endOfPeriod(calendar, range, *start);
    if (!end) break;
    const bool isDay = range == TimeRange::week;
    all.push_back({*start, dates.string(*start, xAxixDateFormat(range)).value_or(""),
                   isDay && *start <= now && now < *end, isDay ? *end : *start});
    start = end;
  }
  return all;
}

}  // namespace mivo::drawing
