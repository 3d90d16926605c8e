// SPDX-License-Identifier: MIT
#include "mivo/calculations/UnionOfFasts.h"

#include <algorithm>

namespace mivo {

std::vector<FinishedFastingDataEntry> unionOfFasts(std::span<const FinishedFastingDataEntry> fasts) {
  std::vector<FinishedFastingDataEntry> stretches;
  if (fasts.empty()) return stretches;
  stretches.reserve(fasts.size());
  auto running = fasts.front();
  for (const auto& fast : fasts.subspan(1)) {
    if (running.end < fast.start) {
      stretches.push_back(running);
      running = fast;
    } else {
      running.end = std::max(running.end, fast.end);
    }
  }
  stretches.push_back(running);
  return stretches;
}

bool hasOverlappingFasts(std::span<const FinishedFastingDataEntry> fasts) {
  return std::ranges::adjacent_find(fasts, [](const auto& one, const auto& next) { return next.start < one.end; }) !=
         fasts.end();
}

}  // namespace mivo
