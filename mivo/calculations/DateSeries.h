// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <vector>

#include "mivo/model/Date.h"
#include "mivo/model/SampleResolution.h"
#include "mivo/model/TimeRange.h"

namespace mivo {

/// What a line chart of a range shows at the left: the instant that lies `totalDaysOnXAxis` of 86400 s before `now`.
inline Date cutOff(TimeRange range, Date now) { return now - Duration{totalDaysOnXAxis(range) * secondsPerDay}; }

/// The points that are not earlier than a date, in order; O(n).
template <class Point>
std::vector<Point> since(Date date, std::span<const Point> points) {
  const auto isRecent = [date](const Point& point) { return point.date >= date; };
  const auto first = std::ranges::find_if(points, isRecent);
  std::vector<Point> recent;
  recent.reserve(static_cast<std::size_t>(points.end() - first));
  std::copy_if(first, points.end(), std::back_inserter(recent), isRecent);
  return recent;
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
