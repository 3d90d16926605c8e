// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/charts/Geometry.h"

namespace mivo {

/// The line that a bar is stroked along: it grows from the bottom of its rectangle, and animating `yValue` animates the
/// bar's height.
struct VLineStroke {
  double yValue = 0;  ///< fraction of the rectangle's height, 0 to 1

  /// From the bottom centre upwards; 1 reaches the top of a rectangle whose origin is at 0. In a rectangle that begins
  /// lower the line still ends at a fraction of the distance from 0, not of the rectangle's own height.
  constexpr LineSegment path(const Rectangle& rectangle) const {
    const double x = rectangle.midX(), bottom = rectangle.maxY();
    return {.from = {x, bottom}, .to = {x, (1 - yValue) * bottom}};
  }

  bool operator==(const VLineStroke&) const = default;
};

}  // namespace mivo
