// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/fasting/HistoryChange.h"
#include "host/history/History.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// How overlapping fasts can be made to stand one after another. Of two that overlap by at least half of the shorter
/// one, one is made: from the earliest start to the latest end, with the larger goal, both notes, and the id of the
/// earlier. Otherwise the later one begins where the earlier ends. Repeated until none overlaps.
///
/// A fast that is still running counts as ending now, and what it becomes is still running. A fast of no length that
/// lies within another, as a start that was stopped at once, goes and leaves it its note. A fast that ends before its
/// start overlaps nothing and stays as it is.
///
/// The result names each fast as it is and as it would be; it is empty where nothing overlaps. O(n log n).
HistoryChange overlapRepair(const std::vector<FastRecord>& fasts, Date now);

}  // namespace mivo::host
