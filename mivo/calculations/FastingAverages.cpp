// SPDX-License-Identifier: MIT
#include "mivo/calculations/FastingAverages.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <iterator>

namespace mivo {
namespace {

constexpr Duration window{90 * secondsPerDay};

// The seconds of some stretches before an instant, from the stretch on that the earliest one may be in; asked about
// instants in ascending order.
class SecondsBefore {
 public:
  SecondsBefore(std::span<const FinishedFastingDataEntry> ascending, Date earliest)
      : stretches{std::ranges::lower_bound(ascending, earliest, std::less{}, &FinishedFastingDataEntry::end),
                  ascending.end()} {}

  double operator()(Date date) {
    for (; next < stretches.size() && stretches[next].end <= date; ++next) finished += stretches[next].duration();
    const bool isInside = next < stretches.size() && stretches[next].start < date;
    return isInside ? finished + secondsBetween(stretches[next].start, date) : finished;
  }

 private:
  std::span<const FinishedFastingDataEntry> stretches;
  std::size_t next = 0;
  double finished = 0;
};

// The ends of fasts in order of their starts are nearly in order: what is not is put aside, sorted and merged.
std::vector<Date> sortedEnds(std::span<const FinishedFastingDataEntry> fasts, Date earliest) {
  std::vector<Date> ends, stragglers;
  Date latest = earliest;
  for (const auto& fast : fasts) {
    if (fast.end < earliest) continue;
    (fast.end < latest ? stragglers : ends).push_back(fast.end);
    latest = std::max(latest, fast.end);
  }
  if (stragglers.empty()) return ends;
  std::ranges::sort(stragglers);
  const auto inOrder = std::ssize(ends);
  ends.insert(ends.end(), stragglers.begin(), stragglers.end());
  std::ranges::inplace_merge(ends, ends.begin() + inOrder);
  return ends;
}

// Fresh ids, asked for some hundred at a time.
class FreshIDs {
 public:
  explicit FreshIDs(const UUIDGenerator& generator) : ids{generator} {}

  // `left` are still needed, this one included.
  UUID next(std::size_t left) {
    if (used == ready.size()) {
      ids.fill(std::span{ready}.last(std::min(left, ready.size())));
      used = ready.size() - std::min(left, ready.size());
    }
    return ready[used++];
  }

 private:
  const UUIDGenerator& ids;
  std::array<UUID, 256> ready;
  std::size_t used = ready.size();
};

}  // namespace

std::vector<FastingAverageEntry> fastingAverageSeries(std::span<const FinishedFastingDataEntry> fasts,
                                                      std::span<const FinishedFastingDataEntry> stretches,
                                                      Date earliest, const UUIDGenerator& ids) {
  const auto ends = sortedEnds(fasts, earliest);
  FreshIDs fresh{ids};
  SecondsBefore beforeEnd{stretches, earliest - window}, beforeWindow{beforeEnd};
  std::vector<FastingAverageEntry> entries;
  entries.reserve(ends.size());
  for (const Date end : ends) {
    const double seconds = beforeEnd(end) - beforeWindow(end - window);
    entries.push_back({fresh.next(ends.size() - entries.size()), end, seconds, seconds / secondsPerHour});
  }
  return entries;
}

}  // namespace mivo
