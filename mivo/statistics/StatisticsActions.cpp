// SPDX-License-Identifier: MIT
#include <vector>

#include "mivo/statistics/StatisticsFeature.h"
#include "mivo/streaks/Streaks.h"

namespace mivo {
namespace {

using State = StatisticsFeature::State;
using Action = StatisticsFeature::Action;

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

constexpr auto askHealthKit = [](const Send<Action>& send, StopToken, const Client<HealthKitClient>& health) {
  health->shouldRequestAuthorization(
      [send](bool should) { send(Action::shouldRequestHealthKitAuthorizationResponse{should}); });
};

/// A tip that may still be shown stays; otherwise the most important one that may be takes its place.
constexpr auto findTip = [](const Send<Action>& send, StopToken, const Client<TipCatalogue>& tips,
                            const std::optional<std::string>& current, int platformVersion) {
  if (platformVersion < firstVersionWithTips) return;
  if (current && tips->tip(*current) && tips->canDisplay(*current)) return;
  if (const auto next = tips->highestPriorityAvailableTip()) send(Action::didReceiveTipID{*next});
};

}  // namespace

Action::Action(const Action&) = default;
Action::Action(Action&&) noexcept = default;
Action& Action::operator=(const Action&) = default;
Action& Action::operator=(Action&&) noexcept = default;
Action::~Action() = default;

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
      [](const Send<Action>&, StopToken, const Client<UserDefaults>& defaults, const Client<HealthKitClient>& health) {
        defaults->setHealthKitSync(true);
        health->requestAuthorization([] {});
      },
      userDefaults, healthKitClient);
}

}  // namespace mivo
