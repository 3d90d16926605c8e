// SPDX-License-Identifier: MIT
#include "mivo/calculations/UnionOfFasts.h"

#include <algorithm>

namespace mivo {

std::vector<FinishedFastingDataEntry> unionOfFasts(std::span<const FinishedFastingDataEntry> fasts) {
  std::vector<FinishedFastingDataEntry> stretches;
  if (fasts.empty()) return stretches;
  stretches.reserve(fasts.size());
  stretches.push_back(fasts.front());
  Date end = fasts.front().end;
  for (const auto& fast : fasts.subspan(1)) {
    if (end < fast.start) {
      stretches.push_back(fast);
      end = fast.end;
    } else {
      stretches.back().end = end = std::max(end, fast.end);
    }
  }
  return stretches;
}

bool hasOverlappingFasts(std::span<const FinishedFastingDataEntry> fasts) {
  return std::ranges::adjacent_find(fasts, [](const auto& one, const auto& next) { return next.start < one.end; }) !=
         fasts.end();
}

}  // namespace mivo
