// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "mivo/model/Date.h"
#include "mivo/model/Fasts.h"

namespace mivo {

/// The fasts that count: those that have ended, as they come, and the ongoing one as if it ended now. With an ongoing
/// one they are in order of their starts. Cost: a copy of 24 bytes a fast. Thread: any.
std::vector<FinishedFastingDataEntry> completedFasts(std::span<const FastingDataEntry> fasts,
                                                     const std::optional<FastingDataEntry>& ongoingFast, Date now);

}  // namespace mivo
