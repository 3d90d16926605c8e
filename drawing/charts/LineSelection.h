// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "drawing/charts/LineChartLayout.h"

namespace mivo::drawing {

/// The points chosen by a touch, one a line; none where that line has none there.
using SelectedPoints = std::span<const std::optional<LinePoint>>;

/// The date that a key moves the selection to: the next one before or after it that has a point of any line; the latest
/// one where nothing is selected. None at the end, and for a step of 0.
std::optional<Date> steppedDate(Lines lines, SelectedPoints selected, int step);

/// The first or the latest date that has a point; none without points.
std::optional<Date> endDate(Lines lines, bool latest);

/// The date under a finger at an x of the plot, which may have left it.
Date touchedDate(const LinePlot& plot, double x);

/// x of the rule through what is selected; none where nothing is, or where it is scrolled out of sight.
std::optional<double> selectionRule(SelectedPoints selected, const LinePlot& plot);

/// What is said of the selection, in texts ready to draw.
struct Annotation {
  std::string date;
  std::vector<std::string> values;  ///< one a line; empty where that line has no selected point
};

/// The box that holds an annotation, inside the plot.
struct AnnotationBox {
  double x = 0, y = 0, width = 0;
  /// Where a value and the mark before it stand, from the plot's leading edge.
  struct Value {
    std::size_t line = 0;
    double mark = 0;  ///< x of the mark's middle
    double text = 0;  ///< x of the text's leading edge
    bool operator==(const Value&) const = default;
  };
  std::vector<Value> values;

  static constexpr double height = 46, padding = 12, radius = 10;
  static constexpr double captionMiddle = 14, valueMiddle = 32;  ///< from the top of the box
};

/// The box of a pair: over the plot, centred on the rule, in the room that is kept free for it.
AnnotationBox annotationBox(const Annotation& annotation, double ruleX, double plotWidth, double innerWidth,
                            const TextWidth& caption, const TextWidth& value);

/// The box of a single point: beside it, where there is more room; over or under it where neither side has enough.
AnnotationBox annotationBeside(const Annotation& annotation, Point point, const LinePlot& plot,
                               const TextWidth& caption, const TextWidth& value);

}  // namespace mivo::drawing
