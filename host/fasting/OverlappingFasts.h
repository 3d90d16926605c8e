// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "host/history/History.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// When a fast ended; `now` for one that is still running.
Date endOf(const FastRecord& record, Date now);

/// Whether a fast ended at the instant that it started, as one that was stopped at once.
bool hasNoLength(const FastRecord& record);

/// Whether two fasts share time. One that is still running counts as ending now; one of no length shares its instant
/// with a longer one that it lies within; one that ends before its start shares none.
bool shareTime(const FastRecord& one, const FastRecord& other, Date now);

/// For each of the fasts the place of one that it shares time with, in the same order; nothing where it shares time
/// with none. O(n), by the rule of `shareTime`; of equal starts one of no length counts where it comes later. `fasts`
/// are by start (asserted).
std::vector<std::optional<std::size_t>> overlapPartners(std::span<const FastRecord> fasts, Date now);

/// Which of the fasts share time with another one, in the same order.
std::vector<bool> overlappingFasts(std::span<const FastRecord> fasts, Date now);

}  // namespace mivo::host
