// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "drawing/charts/TimeAxis.h"
#include "drawing/text/TextWidth.h"
#include "mivo/charts/Geometry.h"
#include "mivo/model/Date.h"
#include "mivo/model/Record.h"

namespace mivo::drawing {

/// A point of a line: when, and how much.
struct LinePoint {
  Date date;
  double value = 0;
  bool operator==(const LinePoint&) const = default;
};

template <RecordOf<LinePoint> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [date, value] = record;
  visit("date", date);
  visit("value", value);
}

struct LineSeries {
  std::vector<LinePoint> points;  ///< ascending by date; values as they are shown
  double scale = 1;               ///< what the values are divided by on a shared axis
  double leastSpan = 0;           ///< values that lie nearer to each other fill no more of the plot than this does
};

/// One line, or two that share an axis without a unit.
using Lines = std::span<const LineSeries>;

/// The part of a series that a line needs so that it runs through the plot's edges: the points of the span and one
/// beyond on each side. The series ascends by date. O(log n).
std::span<const LinePoint> pointsToDraw(std::span<const LinePoint> series, DateInterval visible);

/// Only the points inside the span, both ends included.
std::span<const LinePoint> pointsInside(std::span<const LinePoint> series, DateInterval visible);

/// The least and the most that something reaches.
struct Extent {
  double low = 0, high = 0;
  bool operator==(const Extent&) const = default;
};

/// What a line reaches within the span: at its points, and where it runs through the span's edges. None where it does
/// not come into the span.
std::optional<Extent> visibleExtent(std::span<const LinePoint> series, DateInterval visible);

/// The vertical axis: values from `low` at the bottom to `high` at the top, and the lines between.
struct ValueAxis {
  double low = 0, high = 1;
  double step = 0;
  std::vector<double> lines = {};
  /// How many digits after the decimal sign the labels need.
  int fractionDigits = 0;
  bool operator==(const ValueAxis&) const = default;
};

/// The axis for weights, in the unit of the screen: the first step of which at most three span them, their range
/// rounded out to it, and half a step of air on each side; no less than `leastSpan` altogether. Without lines for none.
ValueAxis weightAxis(std::optional<Extent> weights, double leastSpan);

/// The axis of what is visible: a weight axis for one line; for two, from the least to the most of their scaled values.
ValueAxis valueAxis(Lines lines, DateInterval visible);

/// Whether any line comes into the span.
bool isAnyVisible(Lines lines, DateInterval visible);

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

/// A line chart in its item: the plot, which scrolls, and beside it, at the trailing side, the gutter with what the
/// lines mean. Everything runs from the leading edge: mirroring is the painter's.
struct LineChartLayout {
  Size size;             ///< of the item
  DateInterval domain;   ///< all that can be scrolled to
  double span = 0;       ///< seconds on screen at once
  bool scrolls = false;  ///< otherwise all of the domain is shown
  bool isPair = false;   ///< two lines, which leave room for what is selected
  double gutter = usualGutter;

  static constexpr double usualGutter = 32;

  double plotWidth() const;
  double contentWidth() const;
  double maxScroll() const { return contentWidth() - plotWidth(); }
  /// y of the line that the time labels stand below.
  double baseline() const;
  /// What a chart is higher than its plot.
  static double plotMargins(bool isPair);
  /// What is on screen. The latest date stands at the trailing edge where everything is scrolled to the end.
  DateInterval visible(double scroll) const;
  /// The plot between two axes: 0 is the one before, 1 the present one.
  LinePlot plot(double scroll, const ValueAxis& before, const ValueAxis& axis, double shift) const;
  /// Where lines and their marks are painted.
  Rectangle area(const LinePlot& plot) const;
  /// y of the lines behind the plot: those of the axis, or even ones for a pair and for an axis without any.
  std::vector<double> gridlines(const LinePlot& plot, const ValueAxis& axis) const;
  /// How far to scroll so that what is on screen ends then; as far as there is something.
  double scrollToEndAt(Date end) const;
  /// How far to scroll so that a date comes into the middle; nothing where it is seen.
  std::optional<double> scrollToSee(const LinePlot& plot, Date date, double scroll) const;

  static constexpr double labelBelow = 8, dotBelow = 30, dotRadius = 2;
};

/// A label under the plot that has room.
struct PlacedLabel {
  std::size_t label = 0;  ///< its place among those given
  double x = 0;           ///< of its middle, or of its leading edge
  bool isCentred = false;
  bool operator==(const PlacedLabel&) const = default;
};

/// The labels that fit beside each other, in their order: one that would touch the one before it, or would be cut at a
/// side of the plot, is left out.
std::vector<PlacedLabel> labelsThatFit(std::span<const TimeAxisLabel> labels, const LinePlot& plot,
                                       const TextWidth& usual, const TextWidth& present);

/// What stands in the gutter beside a line of two: the latest visible value, at its height.
struct GutterValue {
  std::size_t line = 0;
  double value = 0;
  double y = 0;  ///< of the text's middle
  bool operator==(const GutterValue&) const = default;
};

/// At most one a line, moved apart where they would overlap.
std::vector<GutterValue> gutterValues(Lines lines, const LinePlot& plot);

/// The width of a gutter that holds such texts. Beside a pair it keeps them clear of the marks at the plot's edge.
double lineGutterWidth(std::span<const std::string> texts, bool isPair, const TextWidth& width);

/// Whether the points of a line lie far enough apart for marks, which would cover it otherwise.
bool hasMarks(const LinePlot& plot, std::size_t pointCount);

/// The mark of a point: a disc, or for the second line a diamond whose corners reach so far.
constexpr double diamondReach(double radius) { return radius + 1.2; }

inline constexpr double markRadius = 4, pairMarkRadius = 3.8, selectedMarkRadius = 5.5;

}  // namespace mivo::drawing
