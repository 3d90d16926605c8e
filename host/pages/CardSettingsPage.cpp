// SPDX-License-Identifier: MIT
#include "host/pages/CardSettingsPage.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "mivo/model/LegacyFastingZone.h"
#include "mivo/statistics/CardTexts.h"

namespace mivo::host {
namespace {

using Flags = DashboardSettingsFeature::State;
using Zone = LegacyFastingZone;

constexpr std::int64_t leastBreakHours = 1, mostBreakHours = 8760;

struct Row {
  Observed<bool> Flags::* flag;
  std::string_view title, meaning = {};
};
constexpr std::array cardRows{Row{&Flags::showSummary, translatable("Summary")},
                              Row{&Flags::showDonations, translatable("Donations")},
                              Row{&Flags::showRoadmap, translatable("Roadmap")},
                              Row{&Flags::showWeightLogging, translatable("Add weight")},
                              Row{&Flags::showWeightGoal, translatable("Goal weight")},
                              Row{&Flags::showBadges, translatable("Badges")}};
constexpr std::array chartRows{Row{&Flags::showFastingChart, translatable("Fasting"), "fasting"},
                               Row{&Flags::showEatingChart, translatable("Eating"), "eating"},
                               Row{&Flags::showWeightChart, translatable("Weight"), "weight"},
                               Row{&Flags::showWeightFastingChart, translatable("Weight & fasting hours")}};
constexpr std::array trendFlags{&Flags::showTotalFastingHours, &Flags::showTotalEatingHours, &Flags::showAnabolicHours,
                                &Flags::showCatabolicHours,    &Flags::showFatBurningHours,  &Flags::showKetosisHours,
                                &Flags::showDeepKetosisHours};
static_assert(trendFlags.size() == allFastingZones.size());

std::vector<CardSwitch> switches(std::span<const Row> rows, const Flags& flags, const TextLookup& texts) {
  std::vector<CardSwitch> all;
  for (const auto& [flag, title, meaning] : rows)
    all.push_back({texts.text(title), {}, std::string{meaning}, (flags.*flag).value()});
  return all;
}

std::vector<CardSwitch> trendSwitches(const Flags& flags, const PageClients& clients) {
  std::vector<CardSwitch> all;
  for (std::size_t place = 0; place < trendFlags.size(); ++place) {
    const Zone zone = allFastingZones[place];
    all.push_back({clients.texts.text(displayString(zone)), zoneHours(zone, clients.hour, clients.numbers),
                   std::string{caseName(zone)}, (flags.*trendFlags[place]).value()});
  }
  return all;
}

Observed<bool> Flags::* flagOf(CardGroup group, std::int64_t place) {
  const auto row = static_cast<std::size_t>(place);
  if (group == CardGroup::cards) return cardRows.at(row).flag;
  return group == CardGroup::charts ? chartRows.at(row).flag : trendFlags.at(row);
}

}  // namespace

CardSettingsPage composeCardSettings(const Flags& cards, const StreakSettings& streaks, const PageClients& clients) {
  const auto& texts = clients.texts;
  return {.title = texts.text("Statistics and Fasting Zones"),
          .cardsTitle = texts.text("Cards"),
          .chartsTitle = texts.text("Charts"),
          .trendsTitle = texts.text("Trends"),
          .cards = switches(cardRows, cards, texts),
          .charts = switches(chartRows, cards, texts),
          .trends = trendSwitches(cards, clients),
          .streaksTitle = texts.text("Streaks"),
          .streaksNote = texts.text("A streak goes on while the next fast starts within this time."),
          .counted = {.title = texts.text("Count"),
                      .options = {texts.text("Days"), texts.text("Fasts")},
                      .chosen = static_cast<std::int64_t>(streaks.countingEntity),
                      .value = {}},
          .countsBelowGoalLabel = texts.text("Count fasts below their goal"),
          .countsBelowGoal = streaks.ignoreFastGoal,
          .longestBreak = {.title = texts.text("Longest break"),
                           .value = std::clamp(streaks.maxBreakHours, leastBreakHours, mostBreakHours),
                           .least = leastBreakHours,
                           .most = mostBreakHours}};
}

Flags toggled(Flags cards, CardGroup group, std::int64_t place) {
  auto& flag = cards.*flagOf(group, place);
  flag = !flag.value();
  return cards;
}

StreakSettings::CountingEntity countingEntityAt(std::int64_t place) {
  return static_cast<StreakSettings::CountingEntity>(place);
}

}  // namespace mivo::host
