// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "app/bridge/LineChartModel.h"
#include "mivo/model/TimeRange.h"

namespace mivo::app {

/// What both line charts say of time: where their axis begins and ends, and the labels below it.
struct LineTimeAxis {
  TimeRange range = TimeRange::week;
  Date now;

  /// From the day of the first point to the end of today, but at least as much as is on screen at once.
  DateInterval domain(std::optional<Date> firstPoint) const;
  /// Days in a week, the first days of weeks in a month, of months in a year.
  std::vector<LineChartModel::AxisLabel> labels(DateInterval visible) const;
};

}  // namespace mivo::app
