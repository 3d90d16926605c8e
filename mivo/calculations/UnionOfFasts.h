// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "mivo/model/Fasts.h"

namespace mivo {

/// The stretches of time during which at least one fast ran. Fasts that overlap or touch are one stretch, which keeps
/// the start and the goal of its first fast; no stretch begins where another one ends.
///
///     unionOfFasts({{at(8), at(20)}, {at(20), at(22)}});  // {{at(8), at(22)}}
///
/// fasts  ascending by start (not checked), none ending before it starts. Cost: O(n), one pass. Thread: any.
std::vector<FinishedFastingDataEntry> unionOfFasts(std::span<const FinishedFastingDataEntry> fasts);

/// Whether a fast starts strictly before the one in front of it ends. The same input and cost.
bool hasOverlappingFasts(std::span<const FinishedFastingDataEntry> fasts);

}  // namespace mivo
