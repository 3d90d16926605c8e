// SPDX-License-Identifier: MIT
#include "mivo/statistics/StatisticsFeature.h"

#include <vector>

#include "mivo/streaks/Streaks.h"

namespace mivo {
namespace {

using Feature = StatisticsFeature;
using State = Feature::State;
using Action = Feature::Action;
using Destination = Feature::Destination;

constexpr int firstVersionWithTips = 17;

void refreshStreaks(State& state, const StreakSettings& settings) {
  std::vector<FinishedFastingDataEntry> finished;
  finished.reserve(state.fasts->size());
  for (const FastingDataEntry& fast : *state.fasts)
    if (fast.finished) finished.push_back(*fast.finished);
  const StreakLengths lengths = streaks(finished, settings);
  state.streakSettings = settings;
  state.stats.currentStreak = lengths.current;
  state.stats.maxStreak = lengths.max;
}

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

constexpr auto askHealthKit = [](const Send<Action>& send, std::stop_token, const Client<HealthKitClient>& health) {
  send(Action::shouldRequestHealthKitAuthorizationResponse{health->shouldRequestAuthorization()});
};

/// A tip that may still be shown stays; otherwise the most important one that may be takes its place.
constexpr auto findTip = [](const Send<Action>& send, std::stop_token, const Client<TipCatalogue>& tips,
                            const std::optional<std::string>& current, int platformVersion) {
  if (platformVersion < firstVersionWithTips) return;
  if (current && tips->tip(*current) && tips->canDisplay(*current)) return;
  if (const auto next = tips->highestPriorityAvailableTip()) send(Action::didReceiveTipID{*next});
};

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

auto StatisticsFeature::onAppear(State& state) const -> Effect<Action> {
  state.dashboardSettings.updateFromDefaults();
  state.showHealthKitCard = state.dashboardSettings.showWeightLogging && state.shouldRequestHealthKitAuthorization;
  refreshStreaks(state, {.countingEntity = appGroupUserDefaults->streakCountingEntity(),
                         .ignoreFastGoal = appGroupUserDefaults->streakIgnoreFastGoal(),
                         .maxBreakHours = appGroupUserDefaults->streakMaxBreakHours()});
  state.refreshCards();
  return Effect<Action>::merge(Effect<Action>::run(askHealthKit, healthKitClient),
                               Effect<Action>::run(findTip, tips, state.currentTipID.value(), platformVersion));
}

auto StatisticsFeature::requestHealthKitAccess(State& state) const -> Effect<Action> {
  state.showHealthKitCard = false;
  return Effect<Action>::run(
      [](const Send<Action>&, std::stop_token, const Client<UserDefaults>& defaults,
         const Client<HealthKitClient>& health) {
        defaults->setHealthKitSync(true);
        health->requestAuthorization();
      },
      userDefaults, healthKitClient);
}

}  // namespace mivo
