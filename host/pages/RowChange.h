// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>

namespace mivo::host {

/// Where the rows of two lists differ: rows [first, first + removed) became [first, first + added), the first of them
/// in their places. The other rows show the same records.
struct RowChange {
  std::size_t first = 0, removed = 0, added = 0;
  bool operator==(const RowChange&) const = default;
};

/// Of lists of so many rows; `isSame` compares a row of the one with a row of the other. O(n).
template <class IsSame>
RowChange rowChange(std::size_t old, std::size_t fresh, const IsSame& isSame) {
  const std::size_t shorter = std::min(old, fresh);
  std::size_t top = 0, bottom = 0;
  while (top < shorter && isSame(top, top)) ++top;
  while (bottom < shorter - top && isSame(old - 1 - bottom, fresh - 1 - bottom)) ++bottom;
  return {top, old - top - bottom, fresh - top - bottom};
}

}  // namespace mivo::host
