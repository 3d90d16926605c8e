// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "mivo/charts/Geometry.h"

namespace mivo::drawing {

/// The ring of a running fast, in points on a square of 300: one segment a zone, filled as far as the fast has come.
/// Without a fast, one ring of the eating window. It runs from the top clockwise, in every layout.
struct ZoneRing {
  double seconds = 0;          ///< how far the fast, or the eating, has come; clamped to the span
  double spanSeconds = 57600;  ///< what a whole turn means; above 0
  bool isEating = false;

  static constexpr double box = 300, radius = 118, stroke = 20;
  static constexpr double handleRadius = 9, haloRadius = 14;

  struct Arc {
    std::optional<std::size_t> zone;  ///< its place in `zoneBounds`; none for eating
    bool isReached = false;
    double from = 0, turn = 0;  ///< degrees: clockwise from the top, and how far
    bool operator==(const Arc&) const = default;
  };
  /// What is to be painted, in this order.
  std::vector<Arc> arcs() const;

  /// Where the handle stands.
  Point head() const;

  /// The left edge and the middle of a mark's text so wide, that names `at` seconds. Wide ones move outwards where they
  /// stand beside the ring, as far as there is room in an item of that width and height.
  Point markPlace(double at, double textWidth, Size item) const;

 private:
  Point onRing(double at, double distance) const;
};

}  // namespace mivo::drawing
