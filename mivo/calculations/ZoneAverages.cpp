// SPDX-License-Identifier: MIT
#include "mivo/calculations/ZoneAverages.h"

#include <algorithm>
#include <limits>

namespace mivo {
namespace {

constexpr Duration lostAtTheBorder{1};

constexpr std::size_t zoneCount = zoneBounds.size();

constexpr double upperBound(std::size_t zone) {
  return zone + 1 < zoneCount ? zoneBounds[zone + 1] : std::numeric_limits<double>::infinity();
}

// What the pieces of one range add up to, in seconds.
struct RangeSums {
  double fasting = 0;
  std::array<double, zoneCount> zones{};

  void add(const TrendsFastingEntry& piece) {
    fasting += piece.duration();
    for (std::size_t zone = 0; zone < zoneCount; ++zone)
      zones[zone] += secondsInZone(piece, zoneBounds[zone], upperBound(zone));
  }
};

// In the order of LegacyFastingZone.
std::array<double, allFastingZones.size()> perDay(const RangeSums& sums, double rangeSeconds) {
  const double days = rangeSeconds / secondsPerDay;
  std::array<double, allFastingZones.size()> averages{sums.fasting / days, (rangeSeconds - sums.fasting) / days};
  std::ranges::transform(sums.zones, averages.begin() + 2, [days](double seconds) { return seconds / days; });
  return averages;
}

}  // namespace

PiecesOfFast pieces(const FinishedFastingDataEntry& fast, const RangeStarts& starts) {
  const auto [thisStart, lastStart] = starts;
  if (fast.start >= thisStart) return {{fast.start, fast.end, 0}, std::nullopt};
  const Date start = std::max(fast.start, lastStart);
  const double offset = secondsBetween(fast.start, start);
  if (fast.end <= thisStart) return {{start, fast.end, offset}, std::nullopt};
  return {{start, thisStart - lostAtTheBorder, offset},
          TrendsFastingEntry{thisStart, fast.end, secondsBetween(fast.start, thisStart)}};
}

double secondsInZone(const TrendsFastingEntry& piece, double lowerBound, double upperBound) {
  const double from = piece.offset, to = piece.offset + piece.duration();
  if (from >= upperBound || to < lowerBound) return 0;
  return std::max(0.0, std::min(to - lowerBound, upperBound - lowerBound)) - std::max(0.0, from - lowerBound);
}

ZoneAverages zoneAverages(std::span<const FinishedFastingDataEntry> fasts, const RangeStarts& starts, Date endOfToday) {
  RangeSums thisRange, lastRange;
  const auto assign = [&](const TrendsFastingEntry& piece) {
    if (piece.end >= starts.thisStart) thisRange.add(piece);
    if (piece.start >= starts.lastStart && piece.start < starts.thisStart) lastRange.add(piece);
  };
  for (const auto& fast : fasts) {
    if (fast.end < starts.lastStart) continue;
    const auto [first, second] = pieces(fast, starts);
    assign(first);
    if (second) assign(*second);
  }
  const auto thisAverages = perDay(thisRange, secondsBetween(starts.thisStart, endOfToday));
  const auto lastAverages = perDay(lastRange, secondsBetween(starts.lastStart, starts.thisStart));
  ZoneAverages averages;
  for (std::size_t zone = 0; zone < averages.zones.size(); ++zone)
    averages.zones[zone] = {thisAverages[zone], lastAverages[zone]};
  return averages;
}

}  // namespace mivo
