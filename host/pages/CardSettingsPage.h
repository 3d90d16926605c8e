// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/pages/SettingsPage.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/statistics/DashboardSettingsFeature.h"

namespace mivo::host {

/// Says whether a card is shown.
struct CardSwitch {
  std::string title;
  std::string hours;    ///< "4–16h": when a fast is in the zone; else none
  std::string meaning;  ///< whose colour it has: the case name of a zone, or "weight"; none without one
  bool isShown = false;
  bool operator==(const CardSwitch&) const = default;
};

template <RecordOf<CardSwitch> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, hours, meaning, isShown] = record;
  visit("title", title);
  visit("hours", hours);
  visit("meaning", meaning);
  visit("isShown", isShown);
}

/// The switches stand in three groups.
enum class CardGroup { cards, charts, trends };

/// Which cards the statistics show, and what counts as a streak.
struct CardSettingsPage {
  std::string title;
  std::string cardsTitle, chartsTitle, trendsTitle;
  std::vector<CardSwitch> cards, charts, trends;
  std::string streaksTitle, streaksNote;
  Choice counted;  ///< days or fasts
  std::string countsBelowGoalLabel;
  bool countsBelowGoal = false;
  Steps longestBreak;  ///< in hours
  bool operator==(const CardSettingsPage&) const = default;
};

template <RecordOf<CardSettingsPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, cardsTitle, chartsTitle, trendsTitle, cards, charts, trends, streaksTitle, streaksNote, counted,
         countsBelowGoalLabel, countsBelowGoal, longestBreak] = record;
  visit("title", title);
  visit("cardsTitle", cardsTitle);
  visit("chartsTitle", chartsTitle);
  visit("trendsTitle", trendsTitle);
  visit("cards", cards);
  visit("charts", charts);
  visit("trends", trends);
  visit("streaksTitle", streaksTitle);
  visit("streaksNote", streaksNote);
  visit("counted", counted);
  visit("countsBelowGoalLabel", countsBelowGoalLabel);
  visit("countsBelowGoal", countsBelowGoal);
  visit("longestBreak", longestBreak);
}

CardSettingsPage composeCardSettings(const DashboardSettingsFeature::State& cards, const StreakSettings& streaks,
                                     const PageClients& clients);

/// The settings with the switch at a place of a group turned over.
DashboardSettingsFeature::State toggled(DashboardSettingsFeature::State cards, CardGroup group, std::int64_t place);

/// What a place in `counted` means.
StreakSettings::CountingEntity countingEntityAt(std::int64_t place);

}  // namespace mivo::host
