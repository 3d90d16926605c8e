// SPDX-License-Identifier: MIT
#include "mivo/streaks/FastsByStart.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <numeric>

namespace mivo {
namespace {

using Fast = FinishedFastingDataEntry;
using Fasts = std::span<const Fast>;

// Equal parts of the time from the first start to the last.
class Parts {
 public:
  Parts(Fasts fasts, std::size_t count) : lastPart{static_cast<double>(count - 1)} {
    double latest = earliest = secondsSince1970(fasts.front().start);
    for (const Fast& fast : fasts) {  // std::minmax_element guesses at every pair of fasts which of them is earlier
      earliest = std::min(earliest, secondsSince1970(fast.start));
      latest = std::max(latest, secondsSince1970(fast.start));
    }
    partsPerSecond = static_cast<double>(count) / (latest - earliest);
  }

  std::size_t of(const Fast& fast) const {
    const double part = (secondsSince1970(fast.start) - earliest) * partsPerSecond;
    return static_cast<std::size_t>(part < lastPart ? part : lastPart);
  }

 private:
  double lastPart, earliest, partsPerSecond;
};

// Puts fasts in the order of their parts, and those of a part in the order in which they come.
class Distribution {
 public:
  /// Where each part ends.
  std::span<const std::size_t> distribute(std::span<Fast> fasts, std::size_t partCount) {
    copies.assign(fasts.begin(), fasts.end());
    const Parts parts{fasts, partCount};
    ends.assign(partCount + 1, 0);
    for (const Fast& fast : copies) ++ends[parts.of(fast) + 1];
    std::inclusive_scan(ends.begin(), ends.end(), ends.begin());
    for (const Fast& fast : copies) fasts[ends[parts.of(fast)]++] = fast;
    return std::span{ends}.first(partCount);
  }

 private:
  std::vector<Fast> copies;
  std::vector<std::size_t> ends;
};

// For what is nearly in order: nothing has far to go.
void insertionSort(std::span<Fast> fasts) {
  for (std::size_t index = 1; index < fasts.size(); ++index) {
    const Fast fast = fasts[index];
    std::size_t hole = index;
    for (; hole > 0 && fast.start < fasts[hole - 1].start; --hole) fasts[hole] = fasts[hole - 1];
    fasts[hole] = fast;
  }
}

bool isCrowded(std::span<const std::size_t> ends) {
  constexpr std::size_t crowd = 32;
  return std::ranges::adjacent_find(ends, [](auto end, auto next) { return next - end > crowd; }) != ends.end();
}

// Starts are spread over time, so that as many parts as fasts leave each part one or two.
void sortFew(std::span<Fast> fasts, Distribution& distribution) {
  if (isCrowded(distribution.distribute(fasts, fasts.size())))
    std::ranges::stable_sort(fasts, std::less{}, &Fast::start);
  else
    insertionSort(fasts);
}

// First into parts that fit the nearest cache, because a million places are too many to write to at random.
void sortSpreadOut(std::span<Fast> fasts) {
  constexpr std::size_t few = 2048;
  Distribution distribution, distributionOfPart;
  if (fasts.size() <= few) return sortFew(fasts, distribution);
  std::size_t begin = 0;
  for (const std::size_t end : distribution.distribute(fasts, fasts.size() / few)) {
    if (end > begin) sortFew(fasts.subspan(begin, end - begin), distributionOfPart);
    begin = end;
  }
}

bool isByStart(Fasts fasts) { return std::ranges::is_sorted(fasts, std::less{}, &Fast::start); }

// Strictly, because turning the list around would turn fasts of equal start around too.
bool isStrictlyNewestFirst(Fasts fasts) {
  const auto isOutOfOrder = [](const Fast& one, const Fast& next) { return !(next.start < one.start); };
  return std::ranges::adjacent_find(fasts, isOutOfOrder) == fasts.end();
}

}  // namespace

void sortByStart(std::vector<Fast>& fasts) {
  if (isByStart(fasts)) return;
  if (isStrictlyNewestFirst(fasts))
    std::ranges::reverse(fasts);
  else
    sortSpreadOut(fasts);
}

FastsByStart::FastsByStart(Fasts fasts) : ordered{fasts} {
  if (isByStart(fasts)) return;
  copies.assign(fasts.begin(), fasts.end());
  sortByStart(copies);
  ordered = copies;
}

FastsByStart FastsByStart::sorting(std::vector<Fast>& fasts) {
  sortByStart(fasts);
  return FastsByStart{fasts, Sorted{}};
}

}  // namespace mivo
