// SPDX-License-Identifier: MIT
#include "drawing/charts/LineChartLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mivo::drawing {
namespace {

constexpr std::array<double, 8> weightSteps{0.1, 0.2, 0.5, 1, 2, 5, 10, 20};
constexpr double mostWeightSteps = 3;
constexpr double plotBottom = 32;
constexpr double weightTop = 8, pairTop = 64, pairBottom = 18;
constexpr int evenGridlines = 4;
constexpr double labelDistance = 4, gutterDistance = 14;
constexpr double besideLabels = 4, besideMarks = 8, aboveMarks = 8;

}  // namespace

std::span<const LinePoint> pointsInside(std::span<const LinePoint> series, DateInterval visible) {
  const auto first = std::ranges::lower_bound(series, visible.start, {}, &LinePoint::date);
  const auto last = std::ranges::upper_bound(first, series.end(), visible.end, {}, &LinePoint::date);
  return {first, last};
}

std::span<const LinePoint> pointsToDraw(std::span<const LinePoint> series, DateInterval visible) {
  const auto inside = pointsInside(series, visible);
  const auto first = static_cast<std::size_t>(inside.data() - series.data());
  const std::size_t last = first + inside.size();
  const std::size_t from = first > 0 ? first - 1 : 0;
  return series.subspan(from, std::min(last + 1, series.size()) - from);
}

std::optional<Extent> visibleExtent(std::span<const LinePoint> series, DateInterval visible) {
  const auto drawn = pointsToDraw(series, visible);
  std::optional<Extent> extent;
  const auto reach = [&extent](double value) {
    extent = extent ? Extent{std::min(extent->low, value), std::max(extent->high, value)} : Extent{value, value};
  };
  for (const LinePoint& point : pointsInside(series, visible)) reach(point.value);
  for (std::size_t next = 1; next < drawn.size(); ++next)
    for (const Date edge : {visible.start, visible.end}) {
      const LinePoint &before = drawn[next - 1], &after = drawn[next];
      if (before.date < edge && edge < after.date)
        reach(std::lerp(before.value, after.value,
                        secondsBetween(before.date, edge) / secondsBetween(before.date, after.date)));
    }
  return extent;
}

bool isAnyVisible(Lines lines, DateInterval visible) {
  return std::ranges::any_of(
      lines, [visible](const LineSeries& line) { return visibleExtent(line.points, visible).has_value(); });
}

ValueAxis weightAxis(std::optional<Extent> weights, double leastSpan) {
  if (!weights) return {};
  const auto [low, high] = *weights;
  const auto fits = [&](double step) { return step >= leastSpan / 2 && (high - low) / step <= mostWeightSteps; };
  const auto found = std::ranges::find_if(weightSteps, fits);
  const double step = found == weightSteps.end() ? std::ceil((high - low) / mostWeightSteps / 20) * 20 : *found;
  // Rounded to a thousandth of a step first: 72.3 / 0.1 is a little less than 723.
  double first = std::floor(low / step + 1e-3), last = std::ceil(high / step - 1e-3);
  if (first == last) --first, ++last;
  ValueAxis axis{.low = (first - 0.5) * step, .high = (last + 0.5) * step, .step = step};
  for (double line = first; line <= last; ++line) axis.lines.push_back(line * step);
  axis.fractionDigits = step < 1 ? 1 : 0;
  return axis;
}

ValueAxis valueAxis(Lines lines, DateInterval visible) {
  if (lines.size() == 1) return weightAxis(visibleExtent(lines[0].points, visible), lines[0].leastSpan);
  double low = INFINITY, high = -INFINITY;
  for (const LineSeries& line : lines)
    if (const auto extent = visibleExtent(line.points, visible)) {
      const double missing = std::max(0.0, line.leastSpan - (extent->high - extent->low));
      low = std::min(low, (extent->low - missing / 2) / line.scale);
      high = std::max(high, (extent->high + missing / 2) / line.scale);
    }
  return low <= high ? ValueAxis{.low = low, .high = high} : ValueAxis{};
}

double LinePlot::x(Date date) const { return secondsBetween(visible.start, date) / visible.duration() * width; }

double LinePlot::y(double value) const {
  if (high <= low) return (top + bottom) / 2;
  return bottom - (value - low) / (high - low) * (bottom - top);
}

Date LinePlot::date(double x) const { return visible.start + Duration{x / width * visible.duration()}; }

double LineChartLayout::plotWidth() const { return std::max(0.0, size.width - gutter); }

double LineChartLayout::contentWidth() const {
  if (!scrolls) return plotWidth();
  return std::max(plotWidth(), domain.duration() / span * plotWidth());
}

double LineChartLayout::baseline() const { return size.height - plotBottom; }

double LineChartLayout::plotMargins(bool isPair) { return plotBottom + (isPair ? pairTop + pairBottom : weightTop); }

DateInterval LineChartLayout::visible(double scroll) const {
  const double shown = scrolls ? span : std::max(span, domain.duration());
  const Date end = domain.end - Duration{(maxScroll() - scroll) / plotWidth() * shown};
  return {end - Duration{shown}, end};
}

LinePlot LineChartLayout::plot(double scroll, const ValueAxis& before, const ValueAxis& axis, double shift) const {
  return {.width = plotWidth(),
          .top = isPair ? pairTop : weightTop,
          .bottom = isPair ? baseline() - pairBottom : baseline(),
          .visible = visible(scroll),
          .low = std::lerp(before.low, axis.low, shift),
          .high = std::lerp(before.high, axis.high, shift)};
}

std::vector<double> LineChartLayout::gridlines(const LinePlot& plot, const ValueAxis& axis) const {
  std::vector<double> lines;
  if (!isPair && !axis.lines.empty())
    for (const double value : axis.lines) lines.push_back(plot.y(value));
  else
    for (int line = 0; line < evenGridlines; ++line)
      lines.push_back(plot.top + line * (plot.bottom - plot.top) / (evenGridlines - 1));
  return lines;
}

Rectangle LineChartLayout::area(const LinePlot& plot) const {
  const double top = plot.top - aboveMarks;
  return {{0, top}, {plot.width, baseline() - top}};
}

double LineChartLayout::scrollToEndAt(Date end) const {
  const double beyond = secondsBetween(end, domain.end) / span * plotWidth();
  return std::clamp(maxScroll() - beyond, 0.0, std::max(0.0, maxScroll()));
}

std::optional<double> LineChartLayout::scrollToSee(const LinePlot& plot, Date date, double scroll) const {
  const double x = plot.x(date);
  if (x >= 0 && x <= plot.width) return std::nullopt;
  return std::clamp(scroll + x - plot.width / 2, 0.0, maxScroll());
}

std::vector<PlacedLabel> labelsThatFit(std::span<const TimeAxisLabel> labels, const LinePlot& plot,
                                       const TextWidth& usual, const TextWidth& present) {
  std::vector<PlacedLabel> placed;
  constexpr double halfAPoint = 0.5;
  double free = -INFINITY;
  for (std::size_t index = 0; index < labels.size(); ++index) {
    const TimeAxisLabel& label = labels[index];
    const bool isCentred = label.until > label.date;
    const double x = isCentred ? (plot.x(label.date) + plot.x(label.until)) / 2 : plot.x(label.date);
    const double advance = (label.isPresent ? present : usual)(label.text);
    const double begin = isCentred ? x - advance / 2 : x;
    if (begin < std::max(free, -halfAPoint) || begin + advance > plot.width + halfAPoint) continue;
    free = begin + advance + labelDistance;
    placed.push_back({index, x, isCentred});
  }
  return placed;
}

std::vector<GutterValue> gutterValues(Lines lines, const LinePlot& plot) {
  std::vector<GutterValue> values;
  for (std::size_t line = 0; line < lines.size(); ++line) {
    const auto inside = pointsInside(lines[line].points, plot.visible);
    if (inside.empty()) continue;
    const double value = inside.back().value;
    values.push_back({line, value, plot.y(value / lines[line].scale)});
  }
  if (values.size() == 2 && std::abs(values[0].y - values[1].y) < gutterDistance) {
    const double middle = (values[0].y + values[1].y) / 2;
    const bool isFirstAbove = values[0].y <= values[1].y;
    values[0].y = middle + (isFirstAbove ? -gutterDistance : gutterDistance) / 2;
    values[1].y = middle + (isFirstAbove ? gutterDistance : -gutterDistance) / 2;
  }
  return values;
}

double lineGutterWidth(std::span<const std::string> texts, bool isPair, const TextWidth& width) {
  double widest = 0;
  for (const std::string& text : texts) widest = std::max(widest, width(text));
  return std::max(LineChartLayout::usualGutter, std::ceil(widest + (isPair ? besideMarks : besideLabels)));
}

bool hasMarks(const LinePlot& plot, std::size_t pointCount) {
  return plot.width / std::max<double>(1, static_cast<double>(pointCount)) >= 3 * markRadius;
}

}  // namespace mivo::drawing
