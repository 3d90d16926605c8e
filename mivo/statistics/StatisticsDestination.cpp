// SPDX-License-Identifier: MIT
#include "mivo/statistics/StatisticsFeature.h"

namespace mivo {

auto StatisticsFeature::Destination::reduce(State& state, const Action& action) const -> Effect<Action> {
  return combine(whenCase<State::badges, Action::badges>(badgeSummary),
                 whenCase<State::roadmap, Action::roadmap>(RoadmapFeature{}),
                 whenCase<State::donations, Action::donations>(donations))(state, action);
}

}  // namespace mivo
