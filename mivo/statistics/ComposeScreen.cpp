// SPDX-License-Identifier: MIT
#include "mivo/statistics/ComposeScreen.h"

#include <algorithm>
#include <array>

#include "mivo/statistics/CardTexts.h"

namespace mivo {
namespace {

using Input = ScreenInput;
using Flags = DashboardSettingsFeature::State;

struct CardRow {
  CardKind kind;
  bool (*isShown)(const Input&);
  CardContent (*texts)(const Input&, const ScreenFormatters&);
};

struct TrendRow {
  LegacyFastingZone zone;
  Observed<bool> Flags::* isShown;
  Observed<AverageThisLastTimeRange> StatsContainer::* averages;
};

template <Observed<bool> Flags::* flag>
bool isOn(const Input& input) {
  return input.dashboardSettings.*flag;
}

bool hasNoFasts(const Input& input) { return input.stats.totalFasts == 0; }
bool showsNothing(const Input& input) { return !hasNoFasts(input) && input.dashboardSettings.isShowingNothing(); }
bool showsSummary(const Input& input) { return !hasNoFasts(input) && input.dashboardSettings.showSummary; }
bool showsAnyRanged(const Input& input);

constexpr std::array lifetimeRows{
    CardRow{CardKind::tip, [](const Input& input) { return input.tip.has_value(); }, tipTexts},
    CardRow{CardKind::start, hasNoFasts, startTexts},
    CardRow{CardKind::configure, showsNothing, configureTexts},
    CardRow{CardKind::summary, showsSummary, summaryTexts},
    CardRow{CardKind::overlappingFasts, [](const Input& input) { return input.stats.hasOverlappingFasts.value(); },
            overlappingFastsTexts},
    CardRow{CardKind::donation, isOn<&Flags::showDonations>, donationTexts},
    CardRow{CardKind::roadmap, isOn<&Flags::showRoadmap>, roadmapTexts},
    CardRow{CardKind::healthData, [](const Input& input) { return input.showHealthKitCard; }, healthDataTexts},
    CardRow{CardKind::addWeight, isOn<&Flags::showWeightLogging>, addWeightTexts},
    CardRow{CardKind::goalWeight, isOn<&Flags::showWeightGoal>, goalWeightTexts},
    CardRow{CardKind::badges, isOn<&Flags::showBadges>, badgesTexts},
    CardRow{CardKind::timeRange, showsAnyRanged, timeRangeTexts},
};

// What the time range rules.
constexpr std::array chartRows{
    CardRow{CardKind::fastingChart, isOn<&Flags::showFastingChart>, fastingChartTexts},
    CardRow{CardKind::eatingChart, isOn<&Flags::showEatingChart>, eatingChartTexts},
    CardRow{CardKind::weightChart, isOn<&Flags::showWeightChart>, weightChartTexts},
    CardRow{CardKind::weightFastingChart, isOn<&Flags::showWeightFastingChart>, weightFastingChartTexts},
};
constexpr std::array trendRows{
    TrendRow{LegacyFastingZone::fasting, &Flags::showTotalFastingHours, &StatsContainer::fastingAverages},
    TrendRow{LegacyFastingZone::eating, &Flags::showTotalEatingHours, &StatsContainer::eatingAverages},
    TrendRow{LegacyFastingZone::anabolic, &Flags::showAnabolicHours, &StatsContainer::anabolicAverages},
    TrendRow{LegacyFastingZone::catabolic, &Flags::showCatabolicHours, &StatsContainer::catabolicAverages},
    TrendRow{LegacyFastingZone::fatBurning, &Flags::showFatBurningHours, &StatsContainer::fatBurningAverages},
    TrendRow{LegacyFastingZone::ketosis, &Flags::showKetosisHours, &StatsContainer::ketosisAverages},
    TrendRow{LegacyFastingZone::deepKetosis, &Flags::showDeepKetosisHours, &StatsContainer::deepKetosisAverages},
};

bool showsAnyRanged(const Input& input) {
  return std::ranges::any_of(chartRows, [&](const CardRow& row) { return row.isShown(input); }) ||
         std::ranges::any_of(trendRows,
                             [&](const TrendRow& row) { return (input.dashboardSettings.*row.isShown).value(); });
}

}  // namespace

std::vector<Card> composeScreen(const ScreenInput& input, const ScreenFormatters& formatters) {
  std::vector<Card> cards;
  cards.reserve(lifetimeRows.size() + chartRows.size() + trendRows.size());
  const auto add = [&](const CardRow& row) {
    if (row.isShown(input)) cards.push_back({row.kind, row.texts(input, formatters)});
  };
  std::ranges::for_each(lifetimeRows, add);
  std::ranges::for_each(chartRows, add);
  for (const TrendRow& row : trendRows)
    if (input.dashboardSettings.*row.isShown)
      cards.push_back({CardKind::trend, trendTexts(row.zone, input.stats.*row.averages, input, formatters)});
  return cards;
}

}  // namespace mivo
