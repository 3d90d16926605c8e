// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "mivo/charts/Geometry.h"
#include "mivo/model/Date.h"

namespace mivo::app {

/// A point of a line: when, and how much.
struct LinePoint {
  Date date;
  double value = 0;
};

/// The part of a series that a line needs so that it runs through the plot's edges: the points of the span and one
/// beyond on each side. The series ascends by date. O(log n).
std::span<const LinePoint> pointsToDraw(std::span<const LinePoint> series, DateInterval visible);

/// Only the points inside the span, both ends included.
std::span<const LinePoint> pointsInside(std::span<const LinePoint> series, DateInterval visible);

/// The vertical axis: values from `low` at the bottom to `high` at the top, and the lines between.
struct ValueAxis {
  double low = 0, high = 1;
  double step = 0;
  std::vector<double> lines = {};
  /// How many digits after the decimal sign the labels need.
  int fractionDigits = 0;
  bool operator==(const ValueAxis&) const = default;
};

/// The axis for the visible weights, in the unit of the screen: the first step of which at most three span them, their
/// range rounded out to it, and half a step of air on each side. Around 0 for none.
ValueAxis weightAxis(std::span<const LinePoint> visible);

/// Where a plot puts dates and values, in points from its leading and top edge.
struct LinePlot {
  double width = 0;
  double top = 0, bottom = 0;  ///< y of `axis.high` and of `axis.low`
  DateInterval visible;
  double low = 0, high = 1;

  double x(Date date) const;
  double y(double value) const;
  Date date(double x) const;
};

}  // namespace mivo::app
