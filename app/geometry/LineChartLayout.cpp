// SPDX-License-Identifier: MIT
#include "app/geometry/LineChartLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mivo::app {
namespace {

constexpr std::array<double, 8> weightSteps{0.1, 0.2, 0.5, 1, 2, 5, 10, 20};
constexpr double mostWeightSteps = 3;

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

ValueAxis weightAxis(std::span<const LinePoint> visible) {
  double low = 0, high = 0;
  if (!visible.empty()) {
    const auto [least, most] = std::ranges::minmax(visible, {}, &LinePoint::value);
    low = least.value;
    high = most.value;
  }
  const auto fits = [&](double step) { return (high - low) / step <= mostWeightSteps; };
  const auto found = std::ranges::find_if(weightSteps, fits);
  const double step = found == weightSteps.end() ? std::ceil((high - low) / mostWeightSteps / 20) * 20 : *found;
  // Rounded to a thousandth of a step first: 72.3 / 0.1 is a little less than 723.
  const double first = std::floor(low / step + 1e-3), last = std::ceil(high / step - 1e-3);
  ValueAxis axis{.low = (first - 0.5) * step, .high = (last + 0.5) * step, .step = step};
  for (double line = first; line <= last; ++line) axis.lines.push_back(line * step);
  axis.fractionDigits = step < 1 ? 1 : 0;
  return axis;
}

double LinePlot::x(Date date) const { return secondsBetween(visible.start, date) / visible.duration() * width; }

double LinePlot::y(double value) const {
  if (high <= low) return (top + bottom) / 2;
  return bottom - (value - low) / (high - low) * (bottom - top);
}

Date LinePlot::date(double x) const { return visible.start + Duration{x / width * visible.duration()}; }

}  // namespace mivo::app
