// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "mivo/model/Fasts.h"

namespace mivo {

/// Puts fasts in the order of their starts; those of equal start keep their order.
///
/// Cost: O(n) where they are in order, where they are exactly newest first, and where they are mixed but spread over
/// time (0.5, 2 and 5 to 18 ns a fast); O(n log n) where their starts pile up in few places. Thread: any.
void sortByStart(std::vector<FinishedFastingDataEntry>& fasts);

/// Fasts in that order: in place where they are in order already, and then they must outlive this; copied where not.
class FastsByStart {
 public:
  explicit FastsByStart(std::span<const FinishedFastingDataEntry> fasts);
  /// Sorts the list itself, which must outlive this and stay as it is.
  static FastsByStart sorting(std::vector<FinishedFastingDataEntry>& fasts);
  FastsByStart(const FastsByStart&) = delete;
  FastsByStart& operator=(const FastsByStart&) = delete;

  std::span<const FinishedFastingDataEntry> list() const { return ordered; }

 private:
  struct Sorted {};
  FastsByStart(std::span<const FinishedFastingDataEntry> fasts, Sorted) : ordered{fasts} {}

  std::vector<FinishedFastingDataEntry> copies;  // empty where the fasts were in order
  std::span<const FinishedFastingDataEntry> ordered;
};

}  // namespace mivo
