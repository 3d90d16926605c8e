// SPDX-License-Identifier: MIT
#include "mivo/statistics/StatisticsFeature.h"

namespace mivo {
namespace {

using Feature = StatisticsFeature;
using State = Feature::State;
using Action = Feature::Action;
using Destination = Feature::Destination;

/// Both charts scroll together: a middle that one of them reports is that of both.
void shareMiddle(State& state, const ScrollChartFeature::Action& action) {
  const auto* moved = std::get_if<ScrollChartFeature::Action::didUpdateMidX>(&action);
  if (!moved) return;
  state.stats.fastingChartState.scrollViewMidX = moved->midX;
  state.stats.eatingChartState.scrollViewMidX = moved->midX;
}

BadgeSummaryFeature::State summaryOf(const StatsContainer& stats) {
  return {.totalFasts = stats.totalFasts.value(),
          .maxStreak = stats.maxStreak.value(),
          .allMilestones = badgeThresholdList(),
          .allStreaks = badgeThresholdList()};
}

}  // namespace

auto StatisticsFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  return combine(
      binding(),
      scope<Action::fastingChartAction>([](State& s) -> auto& { return s.stats.fastingChartState; }, scrollChart),
      scope<Action::eatingChartAction>([](State& s) -> auto& { return s.stats.eatingChartState; }, scrollChart),
      scope<Action::addWeightLogAction>(&State::addWeightLogState, addWeightLog),
      scope<Action::goalWeightCardAction>(&State::goalWeightCardState, goalWeightCard),
      [this](State& s, const Action& a) { return core(s, a); },
      presenting<Action::destination>(&State::destination, destinations))(state, action);
}

auto StatisticsFeature::core(State& state, const Action& action) const -> Effect<Action> {
  if (std::holds_alternative<Action::onAppear>(action)) return onAppear(state);
  if (std::holds_alternative<Action::requestHealthKitAccess>(action)) return requestHealthKitAccess(state);
  if (const auto* answer = std::get_if<Action::shouldRequestHealthKitAuthorizationResponse>(&action)) {
    state.shouldRequestHealthKitAuthorization = answer->shouldRequest;
    state.showHealthKitCard = state.dashboardSettings.showWeightLogging && answer->shouldRequest;
  }
  if (const auto* tip = std::get_if<Action::didReceiveTipID>(&action)) state.currentTipID = tip->id;
  if (const auto* chart = std::get_if<Action::fastingChartAction>(&action)) shareMiddle(state, chart->action);
  if (const auto* chart = std::get_if<Action::eatingChartAction>(&action)) shareMiddle(state, chart->action);
  if (std::holds_alternative<Action::didTapOpenBadges>(action))
    state.destination = Destination::State::badges{summaryOf(state.stats)};
  if (std::holds_alternative<Action::didTapOpenRoadmap>(action)) state.destination = Destination::State::roadmap{};
  if (std::holds_alternative<Action::didTapOpenDonations>(action)) state.destination = Destination::State::donations{};
  return {};
}

}  // namespace mivo
