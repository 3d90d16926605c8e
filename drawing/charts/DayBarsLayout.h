// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "drawing/text/TextWidth.h"
#include "mivo/charts/Geometry.h"
#include "mivo/charts/ScrollChartFeature.h"
#include "mivo/model/ChartTimeUnit.h"

namespace mivo::drawing {

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
  /// The bar at the trailing edge of what is seen; none where that is the latest one, which stays in sight whatever
  /// comes in.
  std::optional<std::size_t> lastSeen(double scroll) const;
  /// How far to scroll so that a bar stands at the trailing edge; the latest one for none.
  double scrollToEndAt(std::optional<std::size_t> bar) const;
  /// How far to scroll to see a bar; nothing where it is seen.
  std::optional<double> scrollToSee(std::size_t bar, double scroll) const;
  /// The nearest position at which whole columns are visible.
  double snapped(double scroll) const;

  /// Horizontal middle of a bar's column, from the plot's leading edge.
  double middle(std::size_t bar, double scroll) const;
  /// Bars of which any part is visible: [first, last).
  struct Range {
    std::size_t first = 0, last = 0;
  };
  Range visibleBars(double scroll) const;
  /// Bars that count as seen, more than half of each: as many as there are columns, between two places too.
  Range seenBars(double scroll) const;
  /// What the chart's state is to know of them.
  ScrollChartFeature::VisibleDays visibleDays(const IdentifiedArray<ChartDataEntry>& bars, double scroll) const;
  /// The painted bar, slimmer than its column; a stub where there is no time.
  Rectangle bar(std::size_t index, double value, double scroll) const;
  /// The bar under a point of the plot.
  std::optional<std::size_t> barAt(double x, double scroll) const;
  /// y of a line that stands for so many hours, where a bar of value 1 has `maxTime` seconds.
  double hourLine(double hours, double maxTime) const;
  /// The bars among those visible whose label is written, where the widest of them is so wide: every one, or every
  /// second or third counted from the latest.
  std::vector<std::size_t> labelled(double scroll, double widestLabel) const;

  static constexpr double labelBelowBaseline = 8, dotBelowBaseline = 30, dotRadius = 2;
};

/// Wide enough for the widest label that charts of a unit have, so that charts beside each other share their columns.
double gutterWidth(double widestHourLabel);
/// The hours of that label.
double widestHours(ChartTimeUnit unit);

/// The bar that a key moves the selection to, so many bars on; the latest one where none is selected, none where there
/// is no bar.
std::optional<std::size_t> steppedBar(std::optional<std::size_t> selected, int bars, std::size_t barCount);

/// The corners of a bar: rounder above, and less round everywhere on a bar that is too short for it.
struct BarCorners {
  double top = 0, bottom = 0;  ///< radii
};
BarCorners barCorners(Size bar);

/// Heights of the lines over the baseline in hours: the multiples of the first step that gives at most 3.6 lines below
/// the maximum. None for no time.
std::vector<double> hourLines(double maxTime);

/// A popup as one shape: its body and the pointer on it.
struct PopupShape {
  Rectangle body;
  double pointerX = 0;     ///< the pointer's tip
  bool pointsDown = true;  ///< false: the pointer stands on the body

  static constexpr double radius = 10, pointerHeight = 6, pointerHalf = 7, lineHeight = 14;
  /// Where the middle of the pointer's foot stands on the body.
  double pointerFoot() const;
  /// y of the middle of a line of its text.
  double lineMiddle(std::size_t line, std::size_t lineCount) const;
};

/// A popup's text, broken to its width.
struct PopupText {
  std::vector<std::string> lines;
  bool isSmall = false;  ///< set in the smaller type
  bool operator==(const PopupText&) const = default;

  static constexpr int smallSize = 11;
};

/// Smaller before it is broken. The widths are those of the usual type and of the smaller one.
PopupText popupText(const std::string& label, double popupWidth, const TextWidth& usual, const TextWidth& small);

/// Places the popup of a bar of that value whose middle is there, as the chart's state says where, with so many lines.
/// Its body keeps clear of the card's sides, which lie `roomAtTheSides` outside the item's edges; the pointer stays at
/// the bar.
PopupShape popupShape(const DayBarsLayout& layout, const ScrollChartFeature::State::PopupViewState& popup,
                      double barMiddle, double barValue, std::size_t lineCount, double roomAtTheSides);

}  // namespace mivo::drawing
