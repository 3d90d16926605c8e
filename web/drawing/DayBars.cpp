// SPDX-License-Identifier: MIT
#include <algorithm>

#include "drawing/charts/DayBarsLayout.h"
#include "web/drawing/Exchange.h"

namespace {

using mivo::ChartTimeUnit;
using mivo::web::Answer;
using mivo::web::answer;
using mivo::web::Font;
using mivo::web::widthIn;
using namespace mivo::drawing;

DayBarsLayout layoutOf(double width, double height, std::int32_t unit, std::size_t count, double gutter) {
  return DayBarsLayout::make({width, height}, static_cast<ChartTimeUnit>(unit), count, gutter);
}

}  // namespace

// A layout is asked for by the size of its item, the unit (0 day, 1 week, 2 month), the number of bars and its gutter.
// Bars are placed in the content that scrolls.

extern "C" {

/// Of the plot: width, pitch, how far it scrolls, baseline, bar area, frame of a bar, whole columns; and the gutter
/// that holds the widest text.
[[clang::export_name("dayBars")]] const Answer* mivoDayBars(double width, double height, std::int32_t unit,
                                                            std::size_t count, const char* widest, std::size_t size) {
  const double gutter = gutterWidth(widthIn(Font::axis)({widest, size}));
  const DayBarsLayout layout = layoutOf(width, height, unit, count, gutter);
  return answer({layout.plotWidth, layout.pitch, layout.maxScroll(), layout.baseline(), layout.barArea(),
                 layout.frameWidth, static_cast<double>(layout.visibleColumns), gutter});
}

/// The bars of which any part is visible, and those that count as seen, [first, last) each; and the nearest place at
/// which whole columns are.
[[clang::export_name("dayBarsAt")]] const Answer* mivoDayBarsAt(double width, double height, std::int32_t unit,
                                                                std::size_t count, double gutter, double scroll) {
  const DayBarsLayout layout = layoutOf(width, height, unit, count, gutter);
  const auto visible = layout.visibleBars(scroll), seen = layout.seenBars(scroll);
  const auto place = [](std::size_t bar) { return static_cast<double>(bar); };
  return answer(
      {place(visible.first), place(visible.last), place(seen.first), place(seen.last), layout.snapped(scroll)});
}

/// How far to scroll to see a bar; nothing where it is seen.
[[clang::export_name("scrollToBar")]] const Answer* mivoScrollToBar(double width, double height, std::int32_t unit,
                                                                    std::size_t count, double gutter, std::size_t bar,
                                                                    double scroll) {
  const auto wanted = layoutOf(width, height, unit, count, gutter).scrollToSee(bar, scroll);
  return wanted ? answer({*wanted}) : answer({});
}

/// Left edge, top edge, width and height.
[[clang::export_name("bar")]] const Answer* mivoBar(double width, double height, std::int32_t unit, std::size_t count,
                                                    double gutter, std::size_t bar, double value) {
  const auto [origin, size] = layoutOf(width, height, unit, count, gutter).bar(bar, value, 0);
  return answer({origin.x, origin.y, size.width, size.height});
}

/// The radii of the upper and the lower corners of a bar.
[[clang::export_name("barCorners")]] const Answer* mivoBarCorners(double width, double height) {
  const auto [top, bottom] = barCorners({width, height});
  return answer({top, bottom});
}

[[clang::export_name("hourLine")]] double mivoHourLine(double height, double hours, double maxTime) {
  return layoutOf(0, height, 0, 0, 0).hourLine(hours, maxTime);
}

/// The bars of [first, last) whose label is written, where the widest of them is so wide.
[[clang::export_name("labelledBars")]] const Answer* mivoLabelledBars(double width, double height, std::int32_t unit,
                                                                      std::size_t count, double gutter,
                                                                      std::size_t first, std::size_t last,
                                                                      double widest) {
  const DayBarsLayout layout = layoutOf(width, height, unit, count, gutter);
  const auto columns = static_cast<std::size_t>(layout.visibleColumns);
  std::vector<double> places;
  for (std::size_t screen = first; screen < last; screen += columns)
    for (const std::size_t bar : layout.labelled(static_cast<double>(screen) * layout.pitch, widest))
      if (bar < last && bar < screen + columns) places.push_back(static_cast<double>(bar));
  return answer(std::move(places));
}

/// The body, where the pointer's tip and the middle of its foot stand, whether it points down, whether the type is the
/// smaller one, and the middle of each line; and the lines of the text, broken by '\n'.
[[clang::export_name("popup")]] const Answer* mivoPopup(double width, double height, std::int32_t unit,
                                                        std::size_t count, double gutter, double xOffset,
                                                        double yOffset, double popupWidth, double barMiddle,
                                                        double barValue, double roomAtTheSides, const char* label,
                                                        std::size_t size) {
  const DayBarsLayout layout = layoutOf(width, height, unit, count, gutter);
  const auto text = popupText({label, size}, popupWidth, widthIn(Font::value), widthIn(Font::valueSmall));
  const auto shape = popupShape(layout, {xOffset, yOffset, {label, size}, popupWidth}, barMiddle, barValue,
                                text.lines.size(), roomAtTheSides);
  const auto& [origin, body] = shape.body;
  std::vector<double> places{origin.x,
                             origin.y,
                             body.width,
                             body.height,
                             shape.pointerX,
                             shape.pointerFoot(),
                             shape.pointsDown ? 1.0 : 0.0,
                             text.isSmall ? 1.0 : 0.0};
  std::string lines;
  for (std::size_t line = 0; line < text.lines.size(); ++line) {
    places.push_back(shape.lineMiddle(line, text.lines.size()));
    lines += (line > 0 ? "\n" : "") + text.lines[line];
  }
  return answer(std::move(places), std::move(lines));
}
}
