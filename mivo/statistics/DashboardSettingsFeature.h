// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/model/Record.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// The settings that say which cards the statistics screen shows.
struct DashboardSettingsFeature {
  struct State {
    Observed<bool> showSummary = true;
    Observed<bool> showBadges = true;
    Observed<bool> showDonations = true;
    Observed<bool> showRoadmap = true;
    Observed<bool> showFastingChart = true;
    Observed<bool> showEatingChart = true;
    Observed<bool> showWeightChart = true;
    Observed<bool> showWeightFastingChart = true;
    Observed<bool> showWeightLogging = true;
    Observed<bool> showWeightGoal = true;
    Observed<bool> showTotalFastingHours = true;
    Observed<bool> showTotalEatingHours = true;
    Observed<bool> showAnabolicHours = true;
    Observed<bool> showCatabolicHours = true;
    Observed<bool> showFatBurningHours = true;
    Observed<bool> showKetosisHours = false;  // few fast that long: shown once asked for
    Observed<bool> showDeepKetosisHours = false;

    /// Whether every card is switched off.
    bool isShowingNothing() const;

    /// Reads all flags from the app's own user defaults, where each is kept under its name; one that was never written
    /// is as it is above.
    void updateFromDefaults();

    /// Keeps all flags there; writes those that differ from what is there.
    void writeToDefaults() const;

    bool operator==(const State&) const = default;
  };
};

template <RecordOf<DashboardSettingsFeature::State> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [showSummary, showBadges, showDonations, showRoadmap, showFastingChart, showEatingChart, showWeightChart,
         showWeightFastingChart, showWeightLogging, showWeightGoal, showTotalFastingHours, showTotalEatingHours,
         showAnabolicHours, showCatabolicHours, showFatBurningHours, showKetosisHours, showDeepKetosisHours] = record;
  visit("showSummary", showSummary);
  visit("showBadges", showBadges);
  visit("showDonations", showDonations);
  visit("showRoadmap", showRoadmap);
  visit("showFastingChart", showFastingChart);
  visit("showEatingChart", showEatingChart);
  visit("showWeightChart", showWeightChart);
  visit("showWeightFastingChart", showWeightFastingChart);
  visit("showWeightLogging", showWeightLogging);
  visit("showWeightGoal", showWeightGoal);
  visit("showTotalFastingHours", showTotalFastingHours);
  visit("showTotalEatingHours", showTotalEatingHours);
  visit("showAnabolicHours", showAnabolicHours);
  visit("showCatabolicHours", showCatabolicHours);
  visit("showFatBurningHours", showFatBurningHours);
  visit("showKetosisHours", showKetosisHours);
  visit("showDeepKetosisHours", showDeepKetosisHours);
}

}  // namespace mivo
