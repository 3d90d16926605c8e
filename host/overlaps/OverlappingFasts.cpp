// SPDX-License-Identifier: MIT
#include "host/overlaps/OverlappingFasts.h"

#include <algorithm>
#include <cassert>
#include <cstddef>

namespace mivo::host {

std::vector<std::optional<std::size_t>> overlapPartners(const std::vector<FastRecord>& fasts, Date now) {
  const auto startOf = [](const FastRecord& record) { return record.fast.start; };
  assert(std::ranges::is_sorted(fasts, {}, startOf));
  std::vector<std::optional<std::size_t>> partners(fasts.size());
  std::size_t furthest = fasts.size();  // the one before that ends last
  Date furthestEnd = firstDate;
  for (std::size_t index = 0; index < fasts.size(); ++index) {
    const Date start = startOf(fasts[index]);
    const Date end = fasts[index].fast.finished ? fasts[index].fast.finished->end : now;
    const bool isRunning = !fasts[index].fast.finished;
    if (end < start || (end == start && isRunning)) continue;
    if (furthest < fasts.size() && start < furthestEnd) {
      partners[index] = furthest;
      if (!partners[furthest]) partners[furthest] = index;
    }
    if (end == start || (furthest < fasts.size() && end <= furthestEnd)) continue;
    furthest = index;
    furthestEnd = end;
  }
  return partners;
}

std::vector<bool> overlappingFasts(const std::vector<FastRecord>& fasts, Date now) {
  const auto partners = overlapPartners(fasts, now);
  std::vector<bool> overlapping(fasts.size());
  for (std::size_t index = 0; index < fasts.size(); ++index) overlapping[index] = partners[index].has_value();
  return overlapping;
}

}  // namespace mivo::host
