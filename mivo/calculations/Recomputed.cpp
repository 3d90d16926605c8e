// SPDX-License-Identifier: MIT
#include "mivo/calculations/Recomputed.h"

#include <algorithm>
#include <optional>

namespace mivo {

StatsContainer recomputed(const StatsContainer& stats, std::span<const FastingDataEntry> fasts,
                          const StreakSettings& streakSettings, TimeRange timeRange, Date now) {
  const auto running = std::ranges::find_if(fasts, [](const FastingDataEntry& fast) { return !fast.finished; });
  const bool hasBegun = running != fasts.end() && running->start <= now;
  StatsContainer fresh = stats.copy();
  fresh.update(fasts, hasBegun ? std::optional{*running} : std::nullopt, streakSettings, timeRange);
  return fresh;
}

}  // namespace mivo
