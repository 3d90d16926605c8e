// SPDX-License-Identifier: MIT
#include "mivo/model/Fasts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>

namespace mivo {

FastingDataEntry finishedFast(UUID id, Date start, Date end, std::int64_t goalSeconds) {
  return {id, start, goalSeconds, FinishedFastingDataEntry{start, end, goalSeconds}};
}

FastingDataEntry ongoingFast(UUID id, Date start, std::int64_t goalSeconds) {
  return {id, start, goalSeconds, std::nullopt};
}

Durations durations(std::span<const FinishedFastingDataEntry> fasts) {
  constexpr std::size_t lanes = 4;  // side by side, so that no addition waits for the one before it
  std::array<double, lanes> sums{}, longest{};
  const auto add = [&](std::size_t lane, double seconds) {
    sums[lane] += seconds;
    longest[lane] = std::max(longest[lane], seconds);
  };
  std::size_t index = 0;
  for (; index + lanes <= fasts.size(); index += lanes)
    for (std::size_t lane = 0; lane < lanes; ++lane) add(lane, fasts[index + lane].duration());
  for (; index < fasts.size(); ++index) add(0, fasts[index].duration());
  return {std::accumulate(sums.begin(), sums.end(), 0.0), std::ranges::max(longest)};
}

double totalDuration(std::span<const FinishedFastingDataEntry> fasts) { return durations(fasts).total; }

double longestFast(std::span<const FinishedFastingDataEntry> fasts) { return durations(fasts).longest; }

}  // namespace mivo
