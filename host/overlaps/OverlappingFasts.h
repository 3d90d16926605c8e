// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/history/History.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// Which of the fasts share time with another one, in the same order. A fast that is still running counts as ending
/// now; one that ends at or before its start shares none. `fasts` are by start (asserted). O(n).
std::vector<bool> overlappingFasts(const std::vector<FastRecord>& fasts, Date now);

}  // namespace mivo::host
