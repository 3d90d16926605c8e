// SPDX-License-Identifier: MIT
#include "LineTimeAxis.h"

#include <algorithm>

#include "app/bridge/Text.h"
#include "mivo/charts/VisibleSpan.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
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

DateInterval LineTimeAxis::domain(std::optional<Date> firstPoint) const {
  const Date end = dependency(&Dependencies::calendar)->endOfDay(now).value_or(now);
  const Date latestStart = end - Duration{visibleSpan(range)};
  return {firstPoint ? std::min(*firstPoint, latestStart) : latestStart, end};
}

std::vector<LineChartModel::AxisLabel> LineTimeAxis::labels(DateInterval visible) const {
  const auto& calendar = dependency(&Dependencies::calendar);
  const auto& dates = dependency(&Dependencies::dateFormatter);
  std::vector<LineChartModel::AxisLabel> all;
  auto start = startOfPeriod(*calendar, range, visible.start);
  while (start && *start < visible.end) {
    const auto end = endOfPeriod(*calendar, range, *start);
    if (!end) break;
    const bool isDay = range == TimeRange::week;
    all.push_back({*start, qString(dates->string(*start, xAxixDateFormat(range)).value_or("")),
                   isDay && *start <= now && now < *end, isDay ? *end : *start});
    start = end;
  }
  return all;
}

}  // namespace mivo::app
