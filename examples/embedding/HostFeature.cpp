// SPDX-License-Identifier: MIT
#include "HostFeature.h"

#include <algorithm>

#include "mivo/calculations/Recomputed.h"

using namespace mivo;
using State = HostFeature::State;
using Action = HostFeature::Action;
using Screen = StatisticsFeature::Action;

namespace {

/// Computes a container away from the screen and folds the fasting half back in.
void recomputeFasts(StatisticsFeature::State& screen) {
  screen.updateFastingChart(recomputed(screen.stats, *screen.fasts, screen.streakSettings, screen.timeRange,
                                       dependency(&Dependencies::date)->now()));
}

/// Ends every fast where the next one begins.
void separateFasts(StatisticsFeature::State& screen) {
  auto fasts = screen.fasts->elements();
  std::ranges::stable_sort(fasts, {}, &FastingDataEntry::start);
  for (std::size_t index = 0; index + 1 < fasts.size(); ++index)
    if (auto& finished = fasts[index].finished) finished->end = std::min(finished->end, fasts[index + 1].start);
  screen.fasts = std::move(fasts);
}

/// Keeps the weight that the add-weight card hands over, and tells it so.
Effect<Action> saveWeight(State& state, const BodyWeightSample& sample) {
  auto weights = state.weights->elements();
  weights.insert(std::ranges::upper_bound(weights, sample.date, {}, &BodyWeightSample::date), sample);
  state.statistics.updateWeightChart(StatsContainer::update(weights));
  state.weights = std::move(weights);
  return Effect<Action>::run([](const Send<Action>& send, StopToken) {
    send(Action::statistics{Screen::addWeightLogAction{AddWeightLogFeature::Action::didSave{}}});
  });
}

Effect<Action> afterScreen(State& state, const Screen& action) {
  if (std::holds_alternative<Screen::binding>(action)) recomputeFasts(state.statistics);
  if (std::holds_alternative<Screen::didTapFixOverlappingFasts>(action)) {
    separateFasts(state.statistics);
    recomputeFasts(state.statistics);
  }
  const auto* weight = std::get_if<Screen::addWeightLogAction>(&action);
  if (!weight) return {};
  const auto* accepted = std::get_if<AddWeightLogFeature::Action::didAcceptSample>(&weight->action);
  return accepted ? saveWeight(state, accepted->sample) : Effect<Action>::none();
}

Effect<Action> core(State& state, const Action& action) {
  if (const auto* screen = std::get_if<Action::statistics>(&action)) return afterScreen(state, screen->action);
  auto fasts = state.statistics.fasts->elements();
  fasts.push_back(std::get<Action::didRecordFast>(action).fast);
  state.statistics.fasts = std::move(fasts);
  recomputeFasts(state.statistics);
  return {};
}

}  // namespace

auto HostFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  return combine(scope<Action::statistics>(&State::statistics, statistics), core)(state, action);
}
