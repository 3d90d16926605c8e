// SPDX-License-Identifier: MIT
#include "mivo/model/Fasts.h"

#include <algorithm>

namespace mivo {

FastingDataEntry finishedFast(UUID id, Date start, Date end, std::int64_t goalSeconds) {
  return {id, start, goalSeconds, FinishedFastingDataEntry{start, end, goalSeconds}};
}

FastingDataEntry ongoingFast(UUID id, Date start, std::int64_t goalSeconds) {
  return {id, start, goalSeconds, std::nullopt};
}

double totalDuration(std::span<const FinishedFastingDataEntry> fasts) {
  double seconds = 0;
  for (const auto& fast : fasts) seconds += fast.duration();
  return seconds;
}

double longestFast(std::span<const FinishedFastingDataEntry> fasts) {
  double seconds = 0;
  for (const auto& fast : fasts) seconds = std::max(seconds, fast.duration());
  return seconds;
}

}  // namespace mivo
