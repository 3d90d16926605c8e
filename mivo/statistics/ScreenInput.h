// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "mivo/calculations/StatsContainer.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/platform/TipCatalogue.h"
#include "mivo/statistics/DashboardSettingsFeature.h"
#include "mivo/statistics/StatisticsFeature.h"

namespace mivo {

/// What the statistics screen is made from.
struct ScreenInput {
  const StatsContainer& stats;
  TimeRange timeRange;
  const DashboardSettingsFeature::State& dashboardSettings;
  Date now;  ///< from when the way to the goal weight is counted
  std::optional<Tip> tip = {};
  bool showHealthKitCard = false;
  StreakSettings::CountingEntity countingEntity = StreakSettings::CountingEntity::days;
  /// What the averages of this range were divided by, see mivo/calculations/RangeStarts.h; without it the trends tell
  /// no totals.
  std::optional<double> daysOfThisRange = {};
  std::optional<double> goalWeightInKg = {};
  WeightUnit weightUnit = WeightUnit::kilograms;
  std::string weightProblem = {};  ///< one sentence about the weight that was typed in
  int platformVersion = 17;
};

/// That of a whole screen; it refers to the state. Clock, calendar, tips and platform are those of the current
/// dependencies.
ScreenInput screenInput(const StatisticsFeature::State& state);

/// What puts numbers and sentences into the user's words. All of it is shared and may be used from any thread.
struct ScreenFormatters {
  const TextLookup& texts;
  const DurationFormatter &hourMin, &hour;
  const NumberFormatter& numbers;
  const MassFormatter& masses;
  const DateFormatter& dates;
};

/// Those of the current dependencies, which must outlive it.
ScreenFormatters screenFormatters();

/// The tip to show: the catalogue's for the current identifier, where there is one and the catalogue knows it.
std::optional<Tip> shownTip(const std::optional<std::string>& currentTipID, const TipCatalogue& tips);

}  // namespace mivo
