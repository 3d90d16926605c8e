// SPDX-License-Identifier: MIT
#include "drawing/charts/TimeAxis.h"

#include <algorithm>

#include "mivo/calculations/ChartPeriods.h"
#include "mivo/charts/VisibleSpan.h"

namespace mivo::drawing {

DateInterval timeAxisDomain(TimeRange range, std::optional<Date> firstPoint, Date now, const Calendar& calendar) {
  const Date end = calendar.endOfDay(now).value_or(now);
  const Date latestStart = end - Duration{visibleSpan(range)};
  return {firstPoint ? std::min(*firstPoint, latestStart) : latestStart, end};
}

std::vector<TimeAxisLabel> timeAxisLabels(TimeRange range, DateInterval visible, Date now, const Calendar& calendar,
                                          const DateFormatter& dates) {
  std::vector<TimeAxisLabel> all;
  auto period = chartPeriod(visible.start, range, calendar);
  while (period && period->start < visible.end) {
    const bool isDay = range == TimeRange::week;
    all.push_back({period->start, dates.string(period->start, xAxixDateFormat(range)).value_or(""),
                   isDay && period->start <= now && now < period->end, isDay ? period->end : period->start});
    period = chartPeriod(period->end, range, calendar);
  }
  return all;
}

}  // namespace mivo::drawing
