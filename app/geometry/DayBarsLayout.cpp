// SPDX-License-Identifier: MIT
#include "app/geometry/DayBarsLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "mivo/charts/BarGeometry.h"

namespace mivo::app {
namespace {

constexpr double aboveBarArea = 14, belowBarArea = 36;
constexpr double barInset = 7, stubHeight = 3;
constexpr double popupLineBelowBaseline = 14, popupPointer = 6, popupUsualBody = 30, roomAtTheSides = 8;
constexpr double mostHourLines = 3.6;
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

double DayBarsLayout::snapped(double scroll) const {
  if (pitch <= 0) return 0;
  return std::clamp(std::round(scroll / pitch) * pitch, 0.0, maxScroll());
}

double DayBarsLayout::middle(std::size_t bar, double scroll) const {
  return (static_cast<double>(bar) + 0.5) * pitch - scroll;
}

DayBarsLayout::Range DayBarsLayout::visibleBars(double scroll) const {
  if (pitch <= 0) return {};
  const auto first = static_cast<std::size_t>(std::max(0.0, std::floor(scroll / pitch)));
  const auto last = static_cast<std::size_t>(std::max(0.0, std::ceil((scroll + plotWidth) / pitch)));
  return {std::min(first, barCount), std::min(last, barCount)};
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

PopupShape popupShape(const DayBarsLayout& layout, const PopupPlace& place, double leadingRoom, double trailingRoom) {
  const double line = layout.baseline() + popupLineBelowBaseline;
  const double growth = place.bodyHeight - popupUsualBody;
  PopupShape shape;
  shape.pointsDown = !place.isInsideBar;
  shape.pointerX = place.barMiddle;
  const double least = roomAtTheSides - leadingRoom;
  const double most = layout.plotWidth + layout.gutter + trailingRoom - roomAtTheSides - place.width;
  const double x = std::clamp(place.xOffset, least, std::max(least, most));
  // The offset is the top edge of the whole shape: of the body, or of the pointer that stands on it.
  const double y = line + place.yOffset + (place.isInsideBar ? popupPointer : -growth);
  shape.body = {{x, y}, {place.width, place.bodyHeight}};
  return shape;
}

}  // namespace mivo::app
