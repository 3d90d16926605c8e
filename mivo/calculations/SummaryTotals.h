// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

#include "mivo/model/Fasts.h"

namespace mivo {

/// What all fasts of a history add up to.
struct SummaryTotals {
  std::int64_t totalFasts = 0;
  std::int64_t totalHours = 0;  ///< truncated
  double averageFast = 0;       ///< seconds; 0 without fasts
  double longestFast = 0;       ///< seconds; 0 without fasts
  bool operator==(const SummaryTotals&) const = default;
};

/// In any order; O(n), one pass. Ends the program with a sentence where the hours are more than 64 bits can count.
SummaryTotals summaryTotals(std::span<const FinishedFastingDataEntry> fasts);

}  // namespace mivo
