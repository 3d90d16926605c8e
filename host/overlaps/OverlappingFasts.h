// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "host/history/History.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// For each of the fasts the place of one that it shares time with, in the same order; nothing where it shares time
/// with none. Rules as for `overlappingFasts`. O(n).
std::vector<std::optional<std::size_t>> overlapPartners(const std::vector<FastRecord>& fasts, Date now);

/// Which of the fasts share time with another one, in the same order. A fast that is still running counts as ending
/// now; one that ends before its start shares none, and one of no length shares its instant with a fast before it that
/// lasts longer. `fasts` are by start (asserted). O(n).
std::vector<bool> overlappingFasts(const std::vector<FastRecord>& fasts, Date now);

}  // namespace mivo::host
