// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "mivo/model/LegacyFastingZone.h"
#include "mivo/model/Record.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"

namespace mivo {

/// One trend row, ready to draw: a sentence, and a bar with its text for this range and for the last.
struct ZoneTrendDisplay {
  std::string averageFastTimeRangeText;
  std::string thisTimeRangeAvg, lastTimeRangeAvg;  ///< "12h 30m"; "0" where there is no text for it
  /// Bar lengths: the longer one is 1, both are 0 where neither average exceeds a second. Those of a negative or
  /// non-finite average come as the division gives them; drawing holds them within 0 and 1.
  double thisTimeRangeFraction = 0, lastTimeRangeFraction = 0;
  bool thisTimeRangeInsideCapsule = false, lastTimeRangeInsideCapsule = false;  ///< whether the text fits into the bar

  ZoneTrendDisplay() = default;
  /// Averages in seconds a day. Texts and formatter are those of the current dependencies.
  ZoneTrendDisplay(TimeRange timeRange, LegacyFastingZone zone, double thisAverage, double lastAverage);
  ZoneTrendDisplay(TimeRange timeRange, LegacyFastingZone zone, double thisAverage, double lastAverage,
                   const TextLookup& texts, const DurationFormatter& hourMin);

  bool operator==(const ZoneTrendDisplay&) const = default;
};

template <RecordOf<ZoneTrendDisplay> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [averageFastTimeRangeText, thisTimeRangeAvg, lastTimeRangeAvg, thisTimeRangeFraction, lastTimeRangeFraction,
         thisTimeRangeInsideCapsule, lastTimeRangeInsideCapsule] = record;
  visit("averageFastTimeRangeText", averageFastTimeRangeText);
  visit("thisTimeRangeAvg", thisTimeRangeAvg);
  visit("lastTimeRangeAvg", lastTimeRangeAvg);
  visit("thisTimeRangeFraction", thisTimeRangeFraction);
  visit("lastTimeRangeFraction", lastTimeRangeFraction);
  visit("thisTimeRangeInsideCapsule", thisTimeRangeInsideCapsule);
  visit("lastTimeRangeInsideCapsule", lastTimeRangeInsideCapsule);
}

}  // namespace mivo
