// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <functional>
#include <span>
#include <vector>

#include "mivo/model/Date.h"
#include "mivo/model/SampleResolution.h"
#include "mivo/model/TimeRange.h"

namespace mivo {

/// What a line chart of a range shows at the left: the instant that lies `totalDaysOnXAxis` of 86400 s before `now`.
inline Date cutOff(TimeRange range, Date now) { return now - Duration{totalDaysOnXAxis(range) * secondsPerDay}; }

/// The points that are not earlier than a date, of points in ascending order.
template <class Point>
std::span<const Point> since(Date date, std::span<const Point> points) {
  return {std::ranges::lower_bound(points, date, std::less{}, &Point::date), points.end()};
}

/// The points of one range's chart: cut off and thinned.
template <class Point>
std::vector<Point> seriesOf(TimeRange range, std::span<const Point> points, Date now) {
  return reducedSampleResolution(since(cutOff(range, now), points), range);
}

/// The largest value of a series, `ofNone` where it is empty.
template <class Series>
double chartScale(const Series& series, double ofNone) {
  if (series.empty()) return ofNone;
  return std::ranges::max_element(series, {}, [](const auto& point) { return point.value; })->value;
}

}  // namespace mivo
