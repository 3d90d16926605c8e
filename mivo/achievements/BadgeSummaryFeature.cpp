// SPDX-License-Identifier: MIT
#include "mivo/achievements/BadgeSummaryFeature.h"

namespace mivo {
namespace {

Effect<BadgeSummaryFeature::Action> core(BadgeSummaryFeature::State& state, const BadgeSummaryFeature::Action& action) {
  using Action = BadgeSummaryFeature::Action;
  using Destination = BadgeSummaryFeature::Destination;
  if (std::holds_alternative<Action::didTapMilestones>(action)) state.destination = Destination::State::milestones{};
  if (std::holds_alternative<Action::didTapStreaks>(action)) state.destination = Destination::State::streaks{};
  return {};
}

}  // namespace

auto BadgeSummaryFeature::Destination::reduce(State& state, const Action& action) const -> Effect<Action> {
  return combine(whenCase<State::milestones, Action::milestones>(MilestonesFeature{}),
                 whenCase<State::streaks, Action::streaks>(StreaksFeature{}))(state, action);
}

auto BadgeSummaryFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  return combine(core, presenting<Action::destination>(&State::destination, Destination{}))(state, action);
}

}  // namespace mivo
