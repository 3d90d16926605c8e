// SPDX-License-Identifier: MIT
#include "mivo/trends/ZoneTrendDisplay.h"

#include "mivo/platform/Dependencies.h"
#include "mivo/trends/AverageText.h"

namespace mivo {
namespace {

constexpr double shortestDrawn = 1;  // seconds

std::string durationText(double seconds, const DurationFormatter& hourMin) {
  return hourMin.string(seconds).value_or("0");
}

double longer(double thisAverage, double lastAverage) { return lastAverage >= thisAverage ? lastAverage : thisAverage; }

double fraction(double average, double longest) { return longest <= shortestDrawn ? 0 : average / longest; }

}  // namespace

ZoneTrendDisplay::ZoneTrendDisplay(TimeRange timeRange, LegacyFastingZone zone, double thisAverage, double lastAverage)
    : ZoneTrendDisplay{timeRange,
                       zone,
                       thisAverage,
                       lastAverage,
                       *dependency(&Dependencies::texts),
                       *dependency(&Dependencies::hourMinDurationUnitFormatter)} {}

ZoneTrendDisplay::ZoneTrendDisplay(TimeRange timeRange, LegacyFastingZone zone, double thisAverage, double lastAverage,
                                   const TextLookup& texts, const DurationFormatter& hourMin)
    : averageFastTimeRangeText{averageText(timeRange, zone, thisAverage, lastAverage, texts)},
      thisTimeRangeAvg{durationText(thisAverage, hourMin)},
      lastTimeRangeAvg{durationText(lastAverage, hourMin)},
      thisTimeRangeFraction{fraction(thisAverage, longer(thisAverage, lastAverage))},
      lastTimeRangeFraction{fraction(lastAverage, longer(thisAverage, lastAverage))},
      thisTimeRangeInsideCapsule{thisTimeRangeFraction > 0.5},
      lastTimeRangeInsideCapsule{lastTimeRangeFraction > 0.5} {}

}  // namespace mivo
