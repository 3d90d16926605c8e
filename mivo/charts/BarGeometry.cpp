// SPDX-License-Identifier: MIT
#include "mivo/charts/BarGeometry.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "mivo/model/Date.h"

namespace mivo {
namespace {

constexpr std::array<double, 3> barsPerWidth{7, 5, 8};  // by unit: day, week, month
constexpr double gap = 1, narrowestBar = 35, widestBar = 50;
constexpr double heightBesideBars = 50;
constexpr double labelGap = 14, popupHeight = 40, shiftIntoBar = 60;
constexpr double hoursOnlyFrom = 100 * secondsPerHour;

}  // namespace

double barWidth(double chartWidth, ChartTimeUnit unit) {
  const double share = chartWidth / barsPerWidth[static_cast<std::size_t>(unit)] - gap;
  return std::min(widestBar, std::max(narrowestBar, share));  // in this order, not a number becomes the narrowest
}

double barAreaHeight(double chartHeight) { return chartHeight - heightBesideBars; }

double popupYOffset(double value, double chartHeight) {
  const double area = barAreaHeight(chartHeight);
  const double offset = -labelGap - value * area - popupHeight;
  return offset < -labelGap - area ? offset + shiftIntoBar : offset;
}

std::string popupLabel(double seconds, const DurationFormatter& hourMin, const DurationFormatter& hour) {
  return (seconds >= hoursOnlyFrom ? hour : hourMin).string(seconds).value_or("");
}

}  // namespace mivo
