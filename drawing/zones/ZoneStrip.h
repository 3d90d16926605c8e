// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "mivo/charts/Geometry.h"

namespace mivo::drawing {

/// A part of a strip, in points from its leading edge.
struct StripPart {
  std::optional<std::size_t> zone;  ///< its place in `zoneBounds`; none for what is not reached
  double x = 0, width = 0;
  bool operator==(const StripPart&) const = default;
};

/// A fast of so many seconds as a strip of the zones that it went through, and behind them what is not reached of a
/// scale of `spanSeconds`. A zone is never narrower than 2 points. None for a span that is not above 0.
std::vector<StripPart> zoneStrip(double seconds, double spanSeconds, double width);

/// How round the corners of a strip so high are.
constexpr double stripRadius(double height) { return height / 2 / 1.5; }

}  // namespace mivo::drawing
