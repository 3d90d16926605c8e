// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

#include "mivo/model/Date.h"
#include "mivo/model/Record.h"

namespace mivo {

/// A piece of a fast, clipped to one range.
struct TrendsFastingEntry {
  Date start, end;
  double offset = 0;  ///< seconds: how far into its fast the piece begins

  /// Seconds from start to end; 0 where it ends before it starts.
  double duration() const { return std::max(0.0, secondsBetween(start, end)); }
  bool operator==(const TrendsFastingEntry&) const = default;
};

template <RecordOf<TrendsFastingEntry> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [start, end, offset] = record;
  visit("start", start);
  visit("end", end);
  visit("offset", offset);
}

}  // namespace mivo
