// SPDX-License-Identifier: MIT
#include "host/app/CurrentTipFacts.h"

#include <algorithm>

namespace mivo::host {

TipFacts currentTipFacts(const AppFeature::State& state, const RoadmapVotes& votes) {
  const auto isFinished = [](const FastRecord& record) { return record.fast.finished.has_value(); };
  return {.finishedFasts = std::ranges::count_if(*state.fasts, isFinished),
          .weights = static_cast<std::int64_t>(state.weights->size()),
          .hasGoalWeight = state.statistics.goalWeightCardState.goalInKg->has_value(),
          .hasVoted = votes.hasVoted()};
}

}  // namespace mivo::host
