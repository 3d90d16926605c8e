// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>

#include "mivo/calculations/RangeStarts.h"
#include "mivo/model/Averages.h"
#include "mivo/model/Date.h"
#include "mivo/model/Fasts.h"
#include "mivo/model/LegacyFastingZone.h"
#include "mivo/streaks/TrendsFastingEntry.h"

namespace mivo {

/// What a fast leaves in the two ranges.
struct PiecesOfFast {
  TrendsFastingEntry first;
  std::optional<TrendsFastingEntry> second;
  bool operator==(const PiecesOfFast&) const = default;
};

/// Cuts a fast at the start of the last range and at that of this one. The piece before a cut ends one second short of
/// this range's start; the second is lost, and is meant to be.
PiecesOfFast pieces(const FinishedFastingDataEntry& fast, const RangeStarts& starts);

/// Seconds of a piece during which its fast was between `lowerBound` and `upperBound` seconds old. The deepest zone has
/// no upper bound: give infinity.
double secondsInZone(const TrendsFastingEntry& piece, double lowerBound, double upperBound);

/// Average seconds per calendar day, one pair a zone.
struct ZoneAverages {
  std::array<AverageThisLastTimeRange, allFastingZones.size()> zones;

  AverageThisLastTimeRange& operator[](LegacyFastingZone zone) { return zones[static_cast<std::size_t>(zone)]; }
  const AverageThisLastTimeRange& operator[](LegacyFastingZone zone) const {
    return zones[static_cast<std::size_t>(zone)];
  }
  bool operator==(const ZoneAverages&) const = default;
};

/// Time fasted, eaten and spent in each of the five zones, in this range and in the last one, per day of the range. The
/// five zones of a range add up to its fasting value.
///
/// fasts       in any order. Pieces that end at this range's start or later are this range's, those that start in the
///             last range the last one's; a fast that ends exactly at the start of this range is therefore in both.
/// endOfToday  where this range ends for the average: its days are those begun so far, and what is left of today counts
///             as eating. A range of no length gives infinity or not a number.
/// Cost        O(n): one comparison a fast, some 10 ns for one inside the two ranges. Thread: any.
ZoneAverages zoneAverages(std::span<const FinishedFastingDataEntry> fasts, const RangeStarts& starts, Date endOfToday);

}  // namespace mivo
