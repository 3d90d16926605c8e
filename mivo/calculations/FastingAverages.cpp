// SPDX-License-Identifier: MIT
#include "mivo/calculations/FastingAverages.h"

#include <algorithm>
#include <cstddef>

#include "mivo/calculations/UnionOfFasts.h"

namespace mivo {
namespace {

constexpr Duration window{90 * secondsPerDay};

// The seconds of some stretches before an instant; asked about instants in ascending order.
class SecondsBefore {
 public:
  explicit SecondsBefore(std::span<const FinishedFastingDataEntry> ascending) : stretches{ascending} {}

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

std::vector<Date> sortedEnds(std::span<const FinishedFastingDataEntry> fasts, Date earliest) {
  std::vector<Date> ends;
  for (const auto& fast : fasts)
    if (fast.end >= earliest) ends.push_back(fast.end);
  if (!std::ranges::is_sorted(ends)) std::ranges::sort(ends);
  return ends;
}

}  // namespace

std::vector<FastingAverageEntry> fastingAverageSeries(std::span<const FinishedFastingDataEntry> fasts, Date earliest,
                                                      const UUIDGenerator& ids) {
  const auto ends = sortedEnds(fasts, earliest);
  const auto stretches = unionOfFasts(fasts);
  std::vector<UUID> fresh(ends.size());
  ids.fill(fresh);

  SecondsBefore beforeEnd{stretches}, beforeWindow{stretches};
  std::vector<FastingAverageEntry> entries;
  entries.reserve(ends.size());
  for (std::size_t index = 0; index < ends.size(); ++index) {
    const double seconds = beforeEnd(ends[index]) - beforeWindow(ends[index] - window);
    entries.push_back({fresh[index], ends[index], seconds, seconds / secondsPerHour});
  }
  return entries;
}

}  // namespace mivo
