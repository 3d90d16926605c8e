// SPDX-License-Identifier: MIT
#include "mivo/statistics/StatisticsFeature.h"

namespace mivo {
namespace {

using Destination = StatisticsFeature::Destination;

}  // namespace

Destination::State::State(const State&) = default;
Destination::State::State(State&&) noexcept = default;
Destination::State& Destination::State::operator=(const State&) = default;
Destination::State& Destination::State::operator=(State&&) noexcept = default;
Destination::State::~State() = default;

Destination::Action::Action(const Action&) = default;
Destination::Action::Action(Action&&) noexcept = default;
Destination::Action& Destination::Action::operator=(const Action&) = default;
Destination::Action& Destination::Action::operator=(Action&&) noexcept = default;
Destination::Action::~Action() = default;

auto Destination::reduce(State& state, const Action& action) const -> Effect<Action> {
  return combine(whenCase<State::badges, Action::badges>(badgeSummary),
                 whenCase<State::roadmap, Action::roadmap>(RoadmapFeature{}),
                 whenCase<State::donations, Action::donations>(donations))(state, action);
}

}  // namespace mivo
