// SPDX-License-Identifier: MIT
#include "mivo/calculations/CompletedFasts.h"

#include <algorithm>
#include <functional>

#include "mivo/streaks/FastsByStart.h"

namespace mivo {

std::vector<FinishedFastingDataEntry> completedFasts(std::span<const FastingDataEntry> fasts,
                                                     const std::optional<FastingDataEntry>& ongoingFast, Date now) {
  std::vector<FinishedFastingDataEntry> completed;
  completed.reserve(fasts.size() + 1);
  for (const auto& fast : fasts)
    if (fast.finished) completed.push_back(*fast.finished);
  if (!ongoingFast) return completed;

  // Sorted before it goes in, so that a history that is exactly newest first is still recognised as one.
  sortByStart(completed);
  const auto place =
      std::ranges::upper_bound(completed, ongoingFast->start, std::less{}, &FinishedFastingDataEntry::start);
  completed.insert(place, {ongoingFast->start, now, ongoingFast->goalSeconds});
  return completed;
}

}  // namespace mivo
