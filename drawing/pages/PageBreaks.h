// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace mivo::drawing {

/// From where to where something reaches down a column, in points from its top.
struct Stretch {
  double top, bottom;
  bool operator==(const Stretch&) const = default;
};

/// What of a column `height` high stands on each page of at most `pageHeight`, from the top on: as much as fits without
/// cutting any of `blocks`, which may stand beside each other and come in any order. Between two pages goes the gap
/// between their blocks. One that is higher than a page is cut where the page ends. At least one page; thread: any.
std::vector<Stretch> pageBreaks(std::vector<Stretch> blocks, double height, double pageHeight);

}  // namespace mivo::drawing
