// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "mivo/model/Averages.h"
#include "mivo/model/Date.h"
#include "mivo/model/Fasts.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo {

/// The y scale of a fasting chart without points: 1440 hours.
inline constexpr double emptyFastingChartScale = 5184000;

/// One point a fast that ends at `earliest` or later, dated and ordered by that end: the seconds fasted in the 90 days
/// up to it, overlapping fasts once, and the same in hours.
///
/// fasts      ascending by start, none ending before it starts
/// stretches  their union, see `unionOfFasts`
/// Cost       O(n), O(n log n) where their ends are out of order. Thread: any.
std::vector<FastingAverageEntry> fastingAverageSeries(std::span<const FinishedFastingDataEntry> fasts,
                                                      std::span<const FinishedFastingDataEntry> stretches,
                                                      Date earliest, const UUIDGenerator& ids);

}  // namespace mivo
