// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "mivo/calculations/StatsContainer.h"

namespace mivo {

/// A copy of `stats` in which everything about fasts is worked out anew; its owner merges it with `updateFastingChart`.
///
/// fasts  in any order; the one without `finished` is the one that runs. Where that begins after `now`, because the
///        clock was set back, it has not begun yet and does not count.
/// now    the present by the current dependencies, on whose calendar everything else is counted
StatsContainer recomputed(const StatsContainer& stats, std::span<const FastingDataEntry> fasts,
                          const StreakSettings& streakSettings, TimeRange timeRange, Date now);

}  // namespace mivo
