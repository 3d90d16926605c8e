// SPDX-License-Identifier: MIT
#include <optional>

#include "drawing/zones/ZoneRing.h"
#include "drawing/zones/ZoneStrip.h"
#include "web/drawing/Exchange.h"

namespace {

using mivo::web::Answer;
using mivo::web::answer;
using namespace mivo::drawing;

double placeOf(std::optional<std::size_t> zone) { return zone ? static_cast<double>(*zone) : -1; }

}  // namespace

// A zone is its place among the five, -1 is none.

extern "C" {

/// x and y of the head, and for each arc its zone, whether it is reached, where it begins and how far it turns.
[[clang::export_name("ring")]] const Answer* mivoRing(double seconds, double span, bool isEating) {
  const ZoneRing ring{.seconds = seconds, .spanSeconds = span, .isEating = isEating};
  const auto [x, y] = ring.head();
  std::vector<double> places{x, y};
  for (const auto& [zone, isReached, from, turn] : ring.arcs())
    places.insert(places.end(), {placeOf(zone), isReached ? 1.0 : 0.0, from, turn});
  return answer(std::move(places));
}

[[clang::export_name("ringMark")]] const Answer* mivoRingMark(double at, double span, double textWidth, double width,
                                                              double height) {
  const auto [x, y] = ZoneRing{.spanSeconds = span}.markPlace(at, textWidth, {width, height});
  return answer({x, y});
}

/// Of each part its zone, its leading edge and its width.
[[clang::export_name("strip")]] const Answer* mivoStrip(double seconds, double span, double width) {
  std::vector<double> parts;
  for (const auto& [zone, x, partWidth] : zoneStrip(seconds, span, width))
    parts.insert(parts.end(), {placeOf(zone), x, partWidth});
  return answer(std::move(parts));
}
}
