// SPDX-License-Identifier: MIT
#include "drawing/charts/DayBarsLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "mivo/charts/BarGeometry.h"

namespace mivo::drawing {
namespace {

constexpr double aboveBarArea = 14, belowBarArea = 36;
constexpr double barInset = 7, stubHeight = 3;
constexpr double topRadius = 8, bottomRadius = 3, betweenLabels = 4;
constexpr double popupLineBelowBaseline = 14, popupUsualBody = 30, popupMargin = 8, popupPadding = 12;
constexpr double mostHourLines = 3.6, hairOfAColumn = 1e-6;
constexpr std::array<double, 12> hourSteps{1, 2, 4, 8, 12, 24, 40, 50, 100, 200, 250, 500};

}  // namespace

DayBarsLayout DayBarsLayout::make(Size size, ChartTimeUnit unit, std::size_t barCount, double gutter) {
  DayBarsLayout layout{
      .plotWidth = std::max(0.0, size.width - gutter), .height = size.height, .barCount = barCount, .gutter = gutter};
  layout.frameWidth = barWidth(layout.plotWidth, unit);
  layout.visibleColumns = std::max(1, static_cast<int>((layout.plotWidth + 1) / (layout.frameWidth + 1)));
  layout.pitch = layout.plotWidth / layout.visibleColumns;
  return layout;
}

double DayBarsLayout::baseline() const { return height - belowBarArea; }

double DayBarsLayout::barArea() const { return height - aboveBarArea - belowBarArea; }

double DayBarsLayout::maxScroll() const { return std::max(0.0, static_cast<double>(barCount) * pitch - plotWidth); }

std::optional<std::size_t> DayBarsLayout::lastSeen(double scroll) const {
  const auto [first, last] = seenBars(scroll);
  return first < last && last < barCount ? std::optional{last - 1} : std::nullopt;
}

double DayBarsLayout::scrollToEndAt(std::optional<std::size_t> bar) const {
  if (!bar) return maxScroll();
  return std::clamp(static_cast<double>(*bar + 1) * pitch - plotWidth, 0.0, maxScroll());
}

std::optional<double> DayBarsLayout::scrollToSee(std::size_t bar, double scroll) const {
  const double at = middle(bar, scroll);
  if (at < 0) return snapped(scroll + at - pitch / 2);
  if (at > plotWidth) return snapped(scroll + at + pitch / 2 - plotWidth);
  return std::nullopt;
}

double DayBarsLayout::snapped(double scroll) const {
  if (pitch <= 0) return 0;
  return std::clamp(std::round(scroll / pitch) * pitch, 0.0, maxScroll());
}

double DayBarsLayout::middle(std::size_t bar, double scroll) const {
  return (static_cast<double>(bar) + 0.5) * pitch - scroll;
}

DayBarsLayout::Range DayBarsLayout::visibleBars(double scroll) const {
  if (pitch <= 0) return {};
  // What begins at the very edge is not seen, however it was rounded.
  const auto first = static_cast<std::size_t>(std::max(0.0, std::floor(scroll / pitch + hairOfAColumn)));
  const auto last = static_cast<std::size_t>(std::max(0.0, std::ceil((scroll + plotWidth) / pitch - hairOfAColumn)));
  return {std::min(first, barCount), std::min(last, barCount)};
}

DayBarsLayout::Range DayBarsLayout::seenBars(double scroll) const {
  if (pitch <= 0) return {};
  const auto first = static_cast<std::size_t>(std::max(0.0, std::round(scroll / pitch)));
  return {std::min(first, barCount), std::min(first + static_cast<std::size_t>(visibleColumns), barCount)};
}

ScrollChartFeature::VisibleDays DayBarsLayout::visibleDays(const IdentifiedArray<ChartDataEntry>& bars,
                                                           double scroll) const {
  ScrollChartFeature::VisibleDays days;
  const double beforeTheEdge = frameWidth - 2;
  const auto [first, last] = visibleBars(scroll);
  for (std::size_t index = first; index < last; ++index)
    days[bars[index].dateInterval.start] = middle(index, scroll) + beforeTheEdge;
  return days;
}

Rectangle DayBarsLayout::bar(std::size_t index, double value, double scroll) const {
  const double width = frameWidth - 2 * barInset;
  const double barHeight = value > 0 ? std::max(stubHeight, value * barArea()) : stubHeight;
  return {{middle(index, scroll) - width / 2, baseline() - barHeight}, {width, barHeight}};
}

std::optional<std::size_t> DayBarsLayout::barAt(double x, double scroll) const {
  if (x < 0 || x >= plotWidth || pitch <= 0) return std::nullopt;
  const auto index = static_cast<std::size_t>((x + scroll) / pitch);
  return index < barCount ? std::optional{index} : std::nullopt;
}

double DayBarsLayout::hourLine(double hours, double maxTime) const {
  return baseline() - hours * secondsPerHour / maxTime * barArea();
}

std::vector<std::size_t> DayBarsLayout::labelled(double scroll, double widestLabel) const {
  const auto stride = static_cast<std::size_t>(std::max(1.0, std::ceil((widestLabel + betweenLabels) / pitch)));
  std::vector<std::size_t> bars;
  const auto [first, last] = visibleBars(scroll);
  for (std::size_t index = first; index < last; ++index)
    if ((barCount - 1 - index) % stride == 0) bars.push_back(index);
  return bars;
}

double gutterWidth(double widestHourLabel) {
  return std::max(DayBarsLayout::usualGutter, std::ceil(widestHourLabel + betweenLabels));
}

double widestHours(ChartTimeUnit unit) {
  switch (unit) {
    case ChartTimeUnit::day:
      return 24;
    case ChartTimeUnit::week:
      return 120;
    case ChartTimeUnit::month:
      return 500;
  }
  return 0;
}

std::optional<std::size_t> steppedBar(std::optional<std::size_t> selected, int bars, std::size_t barCount) {
  if (barCount == 0) return std::nullopt;
  const auto last = static_cast<std::ptrdiff_t>(barCount) - 1;
  const auto next = selected ? static_cast<std::ptrdiff_t>(*selected) + bars : last;
  return static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(next, 0, last));
}

BarCorners barCorners(Size bar) {
  const double bottom = std::min(bottomRadius, bar.height / 2);
  return {.top = std::min({topRadius, bar.width / 2, bar.height - bottom}), .bottom = bottom};
}

std::vector<double> hourLines(double maxTime) {
  const double hours = maxTime / secondsPerHour;
  if (!(hours > 0)) return {};
  const auto fits = [&](double step) { return hours / step <= mostHourLines; };
  const auto found = std::ranges::find_if(hourSteps, fits);
  const double step = found == hourSteps.end() ? std::ceil(hours / mostHourLines / 500) * 500 : *found;
  std::vector<double> lines;
  for (double line = step; line <= hours; line += step) lines.push_back(line);
  return lines;
}

double PopupShape::pointerFoot() const {
  return std::clamp(pointerX, body.origin.x + pointerHalf, body.origin.x + body.size.width - pointerHalf);
}

double PopupShape::lineMiddle(std::size_t line, std::size_t lineCount) const {
  const double first = body.origin.y + body.size.height / 2 - static_cast<double>(lineCount - 1) * lineHeight / 2;
  return first + static_cast<double>(line) * lineHeight;
}

PopupText popupText(const std::string& label, double popupWidth, const TextWidth& usual, const TextWidth& small) {
  const double room = popupWidth - popupPadding;
  if (usual(label) <= room) return {{label}, false};
  const auto blank = label.rfind(' ');
  if (small(label) <= room || blank == std::string::npos || blank == 0) return {{label}, true};
  return {{label.substr(0, blank), label.substr(blank + 1)}, true};
}

PopupShape popupShape(const DayBarsLayout& layout, const ScrollChartFeature::State::PopupViewState& popup,
                      double barMiddle, double barValue, std::size_t lineCount, double roomAtTheSides) {
  const double line = layout.baseline() + popupLineBelowBaseline;
  const double growth = static_cast<double>(lineCount - 1) * PopupShape::lineHeight;
  const bool isInsideBar = popup.popupYOffset + popupLineBelowBaseline > -barValue * layout.barArea();
  PopupShape shape;
  shape.pointsDown = !isInsideBar;
  shape.pointerX = barMiddle;
  const double least = popupMargin - roomAtTheSides;
  const double most = layout.plotWidth + layout.gutter + roomAtTheSides - popupMargin - popup.popupWidth;
  const double x = std::clamp(popup.popupXOffset, least, std::max(least, most));
  // The offset is the top edge of the whole shape: of the body, or of the pointer that stands on it.
  const double y = line + popup.popupYOffset + (isInsideBar ? PopupShape::pointerHeight : -growth);
  shape.body = {{x, y}, {popup.popupWidth, popupUsualBody + growth}};
  return shape;
}

}  // namespace mivo::drawing
