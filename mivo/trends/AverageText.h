// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "mivo/model/LegacyFastingZone.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/TextLookup.h"

namespace mivo {

/// How this range's average relates to the last one's.
enum class Comparison { less, equal, more };

/// Averages in seconds a day. Equal is what differs by less than half an hour, whatever the zone and the range; what is
/// not a number counts as less.
Comparison comparison(double thisAverage, double lastAverage);

/// What a trend sentence depends on.
struct AverageTextCacheKey {
  LegacyFastingZone zone;
  TimeRange timeRange;
  Comparison comparision;
  bool operator==(const AverageTextCacheKey&) const = default;
};

/// "You're fasting more this week compared to last week.": the sentence above a trend row. Averages in seconds a day.
///
/// A sentence is looked up once a process and kept, so that showing the rows again costs no look-up. A change of
/// language in between keeps the sentences that are there. Thread: any.
const std::string& averageText(TimeRange timeRange, LegacyFastingZone zone, double thisAverage, double lastAverage,
                               const TextLookup& texts);

}  // namespace mivo

template <>
struct std::hash<mivo::AverageTextCacheKey> {
  std::size_t operator()(const mivo::AverageTextCacheKey& key) const noexcept;
};
