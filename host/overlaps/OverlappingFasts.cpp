// SPDX-License-Identifier: MIT
#include "host/overlaps/OverlappingFasts.h"

#include <algorithm>
#include <cassert>
#include <cstddef>

namespace mivo::host {

std::vector<bool> overlappingFasts(const std::vector<FastRecord>& fasts, Date now) {
  const auto startOf = [](const FastRecord& record) { return record.fast.start; };
  assert(std::ranges::is_sorted(fasts, {}, startOf));
  std::vector<bool> overlapping(fasts.size());
  std::size_t furthest = fasts.size();  // the one before that ends last
  Date furthestEnd = firstDate;
  for (std::size_t index = 0; index < fasts.size(); ++index) {
    const Date start = startOf(fasts[index]);
    const Date end = fasts[index].fast.finished ? fasts[index].fast.finished->end : now;
    if (end <= start) continue;
    if (furthest < fasts.size() && start < furthestEnd) overlapping[furthest] = overlapping[index] = true;
    if (furthest < fasts.size() && end <= furthestEnd) continue;
    furthest = index;
    furthestEnd = end;
  }
  return overlapping;
}

}  // namespace mivo::host
