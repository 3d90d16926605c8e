// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "mivo/charts/ChartDataEntry.h"
#include "mivo/charts/Geometry.h"
#include "mivo/model/ChartTimeUnit.h"

namespace mivo::app {

/// Where everything of a day-bar chart stands, in points. The plot is what scrolls; the gutter with the hour labels
/// stands beside it at the trailing side. Everything here runs from the leading edge: mirroring is the painter's.
struct DayBarsLayout {
  double plotWidth = 0, height = 0;
  double frameWidth = 0;   ///< a bar's column, touch target and popup measure
  int visibleColumns = 0;  ///< whole columns that fill the plot
  double pitch = 0;        ///< from one column to the next
  std::size_t barCount = 0;

  double gutter = usualGutter;

  static constexpr double usualGutter = 32;

  /// A layout for an item of that size, gutter included.
  static DayBarsLayout make(Size size, ChartTimeUnit unit, std::size_t barCount, double gutter = usualGutter);

  double baseline() const;
  double barArea() const;
  /// How far the content can scroll; 0 where every bar is visible.
  double maxScroll() const;
  /// The nearest position at which whole columns are visible.
  double snapped(double scroll) const;

  /// Horizontal middle of a bar's column, from the plot's leading edge.
  double middle(std::size_t bar, double scroll) const;
  /// Bars of which any part is visible: [first, last).
  struct Range {
    std::size_t first = 0, last = 0;
  };
  Range visibleBars(double scroll) const;
  /// The painted bar, slimmer than its column; a stub where there is no time.
  Rectangle bar(std::size_t index, double value, double scroll) const;
  /// The bar under a point of the plot.
  std::optional<std::size_t> barAt(double x, double scroll) const;
};

/// Heights of the lines over the baseline in hours: the multiples of the first step that gives at most 3.6 lines below
/// the maximum. None for no time.
std::vector<double> hourLines(double maxTime);

/// A popup as one shape: its body and the pointer on it.
struct PopupShape {
  Rectangle body;
  double pointerX = 0;     ///< the pointer's middle
  bool pointsDown = true;  ///< false: the pointer stands on the body
};

/// What the chart's state says of a popup, and the height that its text needs.
struct PopupPlace {
  double xOffset, yOffset, width;
  double barMiddle;
  bool isInsideBar;
  double bodyHeight;
};

/// Places a popup. Its body keeps clear of the card's sides, which lie so many points outside the item's edges; the
/// pointer stays at the bar.
PopupShape popupShape(const DayBarsLayout& layout, const PopupPlace& place, double leadingRoom, double trailingRoom);

}  // namespace mivo::app
