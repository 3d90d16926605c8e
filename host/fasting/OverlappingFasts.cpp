// SPDX-License-Identifier: MIT
#include "host/fasting/OverlappingFasts.h"

#include <algorithm>
#include <cassert>
#include <cstddef>

namespace mivo::host {

Date endOf(const FastRecord& record, Date now) { return record.fast.finished ? record.fast.finished->end : now; }

bool hasNoLength(const FastRecord& record) { return record.fast.finished && endOf(record, {}) == record.fast.start; }

bool shareTime(const FastRecord& one, const FastRecord& other, Date now) {
  const auto isWithin = [now](const FastRecord& instant, const FastRecord& around) {
    const Date date = instant.fast.start;
    return hasNoLength(instant) && around.fast.start <= date && date < endOf(around, now);
  };
  const Date end = std::min(endOf(one, now), endOf(other, now));
  return std::max(one.fast.start, other.fast.start) < end || isWithin(one, other) || isWithin(other, one);
}

std::vector<std::optional<std::size_t>> overlapPartners(std::span<const FastRecord> fasts, Date now) {
  const auto startOf = [](const FastRecord& record) { return record.fast.start; };
  assert(std::ranges::is_sorted(fasts, {}, startOf));
  std::vector<std::optional<std::size_t>> partners(fasts.size());
  std::size_t furthest = fasts.size();  // the one before that ends last
  Date furthestEnd = firstDate;
  for (std::size_t index = 0; index < fasts.size(); ++index) {
    const Date start = startOf(fasts[index]);
    const Date end = endOf(fasts[index], now);
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

std::vector<bool> overlappingFasts(std::span<const FastRecord> fasts, Date now) {
  const auto partners = overlapPartners(fasts, now);
  std::vector<bool> overlapping(fasts.size());
  for (std::size_t index = 0; index < fasts.size(); ++index) overlapping[index] = partners[index].has_value();
  return overlapping;
}

}  // namespace mivo::host
