// SPDX-License-Identifier: MIT
#include "drawing/zones/ZoneStrip.h"

#include <algorithm>

#include "mivo/model/LegacyFastingZone.h"

namespace mivo::drawing {
namespace {

constexpr double betweenZones = 2, leastWidth = 2;

}  // namespace

std::vector<StripPart> zoneStrip(double seconds, double spanSeconds, double width) {
  std::vector<StripPart> parts;
  if (!(spanSeconds > 0)) return parts;
  const double perSecond = width / spanSeconds;
  double from = 0;
  for (std::size_t zone = 0; zone < zoneBounds.size() && from < seconds; ++zone) {
    const double until = std::min(seconds, zone + 1 < zoneBounds.size() ? zoneBounds[zone + 1] : seconds);
    const double x = from * perSecond + (zone > 0 ? betweenZones / 2 : 0);
    const double end = std::min(width, until * perSecond - (until < seconds ? betweenZones / 2 : 0));
    parts.push_back({zone, x, std::max(end - x, leastWidth)});
    from = until;
  }
  const double restX = std::min(seconds, spanSeconds) * perSecond + betweenZones;
  if (restX < width) parts.push_back({std::nullopt, restX, width - restX});
  return parts;
}

}  // namespace mivo::drawing
