// SPDX-License-Identifier: MIT
#include "mivo/streaks/FastsByStart.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <numeric>
#include <utility>

namespace mivo {
namespace {

using Fast = FinishedFastingDataEntry;
using Fasts = std::span<const Fast>;

// The places of a history between its first and its last start, one a fast: starts are spread over time, so most places
// hold few fasts.
class Places {
 public:
  explicit Places(Fasts fasts) : lastPlace{static_cast<double>(fasts.size() - 1)} {
    const auto [first, last] = std::ranges::minmax_element(fasts, std::less{}, &Fast::start);
    earliest = first->start;
    placesPerSecond = lastPlace / secondsBetween(earliest, last->start);
  }

  std::size_t of(const Fast& fast) const {
    const double place = secondsBetween(earliest, fast.start) * placesPerSecond;
    return static_cast<std::size_t>(place < lastPlace ? place : lastPlace);
  }

 private:
  double lastPlace, placesPerSecond;
  Date earliest;
};

// Where the fasts of each place begin in the ordered list.
std::vector<std::uint32_t> beginnings(Fasts fasts, const Places& places) {
  std::vector<std::uint32_t> begin(fasts.size() + 1, 0);
  for (const Fast& fast : fasts) ++begin[places.of(fast) + 1];
  std::inclusive_scan(begin.begin(), begin.end(), begin.begin());
  return begin;
}

bool isCrowded(const std::vector<std::uint32_t>& begin) {
  constexpr std::uint32_t crowd = 32;
  return std::ranges::adjacent_find(begin, [](auto one, auto next) { return next - one > crowd; }) != begin.end();
}

// For what is nearly in order: nothing has far to go.
void insertionSort(std::span<Fast> fasts) {
  for (std::size_t index = 1; index < fasts.size(); ++index) {
    const Fast fast = fasts[index];
    std::size_t hole = index;
    for (; hole > 0 && fast.start < fasts[hole - 1].start; --hole) fasts[hole] = fasts[hole - 1];
    fasts[hole] = fast;
  }
}

// False, with nothing changed, where the fasts are not spread over time.
bool sortSpreadOut(std::span<Fast> fasts) {
  const bool isCountable = fasts.size() < std::numeric_limits<std::uint32_t>::max();
  if (!isCountable || !std::ranges::all_of(fasts, isRepresentable, &Fast::start)) return false;
  const Places places{fasts};
  std::vector<std::uint32_t> next = beginnings(fasts, places);
  if (isCrowded(next)) return false;
  std::vector<Fast> placed(fasts.size());
  for (const Fast& fast : fasts) placed[next[places.of(fast)]++] = fast;
  insertionSort(placed);
  std::ranges::copy(placed, fasts.begin());
  return true;
}

// Half by half, because fresh memory for a second list of a million fasts costs more than the sort. False where not all
// of them are in order yet.
bool sortHalves(std::span<Fast> fasts) {
  const auto middle = fasts.size() / 2;
  if (!sortSpreadOut(fasts.first(middle)) || !sortSpreadOut(fasts.subspan(middle))) return false;
  std::ranges::inplace_merge(fasts, fasts.begin() + static_cast<std::ptrdiff_t>(middle), std::less{}, &Fast::start);
  return true;
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
  else if (!sortHalves(fasts))
    std::ranges::stable_sort(fasts, std::less{}, &Fast::start);
}

FastsByStart::FastsByStart(Fasts fasts) : ordered{fasts} {
  if (isByStart(fasts)) return;
  copies.assign(fasts.begin(), fasts.end());
  sortByStart(copies);
  ordered = copies;
}

}  // namespace mivo
