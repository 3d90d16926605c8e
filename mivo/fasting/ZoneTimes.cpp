// SPDX-License-Identifier: MIT
#include "mivo/fasting/ZoneTimes.h"

#include <algorithm>
#include <cstddef>

namespace mivo {
namespace {

constexpr auto firstZone = static_cast<std::size_t>(LegacyFastingZone::anabolic);

}  // namespace

LegacyFastingZone zoneAfter(double seconds) {
  const auto begun = std::ranges::count_if(zoneBounds, [seconds](double bound) { return bound <= seconds; });
  return allFastingZones[firstZone + static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, begun - 1))];
}

std::vector<ZoneTime> zoneTimes(double seconds) {
  std::vector<ZoneTime> times;
  const LegacyFastingZone last = zoneAfter(seconds);
  for (std::size_t place = 0; place < zoneBounds.size(); ++place) {
    const LegacyFastingZone zone = allFastingZones[firstZone + place];
    const double end = zone == last ? seconds : zoneBounds[place + 1];
    times.push_back({zone, end - zoneBounds[place], zone == last});
    if (zone == last) break;
  }
  return times;
}

}  // namespace mivo
