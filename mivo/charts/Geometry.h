// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/model/Record.h"

namespace mivo {

// Places and lengths on the screen, in points; y grows downwards.

struct Point {
  double x = 0, y = 0;
  bool operator==(const Point&) const = default;
};

struct Size {
  double width = 0, height = 0;
  bool operator==(const Size&) const = default;
};

template <RecordOf<Size> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [width, height] = record;
  visit("width", width);
  visit("height", height);
}

struct Rectangle {
  Point origin;
  Size size;
  constexpr double midX() const { return origin.x + size.width / 2; }
  constexpr double maxY() const { return origin.y + size.height; }
  bool operator==(const Rectangle&) const = default;
};

struct LineSegment {
  Point from, to;
  bool operator==(const LineSegment&) const = default;
};

}  // namespace mivo
