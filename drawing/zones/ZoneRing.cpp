// SPDX-License-Identifier: MIT
#include "drawing/zones/ZoneRing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "mivo/model/LegacyFastingZone.h"

namespace mivo::drawing {
namespace {

constexpr double gap = 2.2, labelRadius = 140, usualLabel = 20, turn = 360;

struct Segment {
  std::optional<std::size_t> zone;
  double from, to;  // seconds
};

std::vector<Segment> segments(const ZoneRing& ring) {
  if (ring.isEating) return {{std::nullopt, 0, ring.spanSeconds}};
  std::vector<Segment> all;
  for (std::size_t zone = 0; zone < zoneBounds.size(); ++zone) {
    const double from = zoneBounds[zone];
    const double to =
        zone + 1 < zoneBounds.size() ? std::min(zoneBounds[zone + 1], ring.spanSeconds) : ring.spanSeconds;
    if (from < to) all.push_back({zone, from, to});
  }
  return all;
}

}  // namespace

std::vector<ZoneRing::Arc> ZoneRing::arcs() const {
  std::vector<Arc> all;
  const auto zones = segments(*this);
  const double gapSeconds = zones.size() > 1 ? gap / (2 * std::numbers::pi * radius) * spanSeconds : 0;
  const double present = std::clamp(seconds, 0.0, spanSeconds);
  const double degrees = turn / spanSeconds;
  const auto add = [&](std::optional<std::size_t> zone, bool isReached, double from, double to) {
    if (from < to) all.push_back({zone, isReached, from * degrees, (to - from) * degrees});
  };
  for (const Segment& segment : zones) {
    const double first = segment.from + gapSeconds, last = segment.to - gapSeconds;
    add(segment.zone, false, std::max(first, present), last);
    add(segment.zone, true, first, std::min(last, present));
  }
  return all;
}

Point ZoneRing::onRing(double at, double distance) const {
  const double angle = at / spanSeconds * 2 * std::numbers::pi;
  return {box / 2 + distance * std::sin(angle), box / 2 - distance * std::cos(angle)};
}

Point ZoneRing::head() const { return onRing(std::clamp(seconds, 0.0, spanSeconds), radius); }

Point ZoneRing::markPlace(double at, double textWidth, Size item) const {
  const Point place = onRing(at, labelRadius);
  const double aside = (place.x - box / 2) / labelRadius * std::max(0.0, textWidth - usualLabel) / 2;
  const double room = (item.width * box / item.height - box) / 2;
  return {std::clamp(place.x + aside - textWidth / 2, -room, std::max(-room, box + room - textWidth)), place.y};
}

}  // namespace mivo::drawing
