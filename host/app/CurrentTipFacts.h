// SPDX-License-Identifier: MIT
#pragma once

#include "host/app/AppFeature.h"
#include "host/tips/TipRules.h"
#include "mivo/roadmap/RoadmapVotes.h"

namespace mivo::host {

/// What the rules of the tips look at, as it is now. O(n).
TipFacts currentTipFacts(const AppFeature::State& state, const RoadmapVotes& votes);

}  // namespace mivo::host
