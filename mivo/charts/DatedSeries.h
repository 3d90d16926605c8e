// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "mivo/model/Date.h"
#include "mivo/store/List.h"

namespace mivo {

/// The points of a line chart, and which of them a touch means. Points have a `date`.
///
/// Whether the dates ascend is found out once, when it is made, in O(n); where they do, every question after that costs
/// O(log n) and is answered as if each point had been looked at. Copying is O(1). Thread: any.
template <class Entry>
class DatedSeries {
 public:
  DatedSeries() = default;
  explicit DatedSeries(List<Entry> entries) : all{std::move(entries)}, ascending{ascends(all)} {}

  const List<Entry>& entries() const { return all; }

  /// The entry nearest in time; of several equally near the one that comes first in the list; null where there is none.
  const Entry* nearest(Date date) const {
    if (all.empty()) return nullptr;
    return ascending ? nearestByBisection(date) : nearestByScan(date);
  }

  /// The entries from `interval.start` to `interval.end`, both included, where the dates ascend.
  std::span<const Entry> within(DateInterval interval) const {
    const Entry* first = std::ranges::lower_bound(all, interval.start, {}, &Entry::date);
    const Entry* last = std::ranges::upper_bound(first, all.end(), interval.end, {}, &Entry::date);
    return {first, last};
  }

  bool isAscending() const { return ascending; }

 private:
  static bool ascends(const List<Entry>& entries) {
    const auto isOutOfOrder = [](const Entry& one, const Entry& next) { return !(one.date <= next.date); };
    return std::ranges::adjacent_find(entries, isOutOfOrder) == entries.end();
  }

  static double distance(const Entry& entry, Date date) { return std::abs(secondsBetween(entry.date, date)); }

  const Entry* nearestByScan(Date date) const {
    return std::ranges::min_element(all, {}, [date](const Entry& entry) { return distance(entry, date); });
  }

  const Entry* nearestByBisection(Date date) const {
    const Entry* after = std::ranges::lower_bound(all, date, {}, &Entry::date);
    if (after == all.begin()) return after;
    if (after != all.end() && distance(*after, date) < distance(after[-1], date)) return after;
    // Distances shrink towards `after`, and several points may be equally near: those of one date, and those so far off
    // that a double cannot tell them apart.
    const double nearest = distance(after[-1], date);
    return std::partition_point(all.begin(), after,
                                [=](const Entry& entry) { return distance(entry, date) > nearest; });
  }

  List<Entry> all;
  bool ascending = true;
};

}  // namespace mivo
