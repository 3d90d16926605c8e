// SPDX-License-Identifier: MIT
#include "mivo/statistics/ScreenInput.h"

#include "mivo/calculations/RangeStarts.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/statistics/AddWeightForm.h"

namespace mivo {

ScreenInput screenInput(const StatisticsFeature::State& state) {
  const std::optional<std::string>& tipID = state.currentTipID;
  const Date averagedAt = state.stats.fastingChartState.now;
  return {.stats = state.stats,
          .timeRange = state.timeRange,
          .dashboardSettings = state.dashboardSettings,
          .now = dependency(&Dependencies::date)->now(),
          .tip = tipID ? shownTip(tipID, *dependency(&Dependencies::tips)) : std::nullopt,
          .showHealthKitCard = state.showHealthKitCard,
          .countingEntity = state.streakSettings->countingEntity,
          .daysOfThisRange = daysOfThisRange(state.timeRange, *dependency(&Dependencies::calendar), averagedAt),
          .goalWeightInKg = state.goalWeightCardState.goalInKg,
          .weightUnit = state.goalWeightCardState.weightUnit,
          .weightProblem = problemText(state.addWeightLogState, *dependency(&Dependencies::texts)),
          .platformVersion = currentDependencies().platformVersion};
}

ScreenFormatters screenFormatters() {
  return {.texts = *dependency(&Dependencies::texts),
          .hourMin = *dependency(&Dependencies::hourMinDurationUnitFormatter),
          .hour = *dependency(&Dependencies::hourDurationUnitFormatter),
          .numbers = *dependency(&Dependencies::numberFormatter),
          .masses = *dependency(&Dependencies::massFormatter),
          .dates = *dependency(&Dependencies::dateFormatter)};
}

std::optional<Tip> shownTip(const std::optional<std::string>& currentTipID, const TipCatalogue& tips) {
  return currentTipID ? tips.tip(*currentTipID) : std::nullopt;
}

}  // namespace mivo
