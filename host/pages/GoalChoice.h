// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// A goal as it is being chosen: one of the usual ones, or one that is typed.
struct GoalEntry {
  std::int64_t seconds = 0;  ///< what would be kept: of what was typed, the last that was a goal
  bool isTyped = false;      ///< the field to type in is open
  bool isUnread = false;     ///< what stands in it is no goal, which nobody can save
  std::string typed = {};    ///< what stands in it
  bool operator==(const GoalEntry&) const = default;
};

/// A goal before anything is chosen. The field is open where it is none of the usual ones.
GoalEntry goalEntry(std::int64_t seconds);

/// One of the usual goals, by its place among the offers; `entry` for a place that is none.
GoalEntry withUsualGoal(GoalEntry entry, std::size_t place);

/// The field opens with the goal as it is.
GoalEntry withFieldOpen(GoalEntry entry);

/// Another text in the field.
GoalEntry withTypedGoal(GoalEntry entry, std::string typed);

/// One of the usual goals.
struct GoalOffer {
  double seconds = 0;
  std::string text;  ///< "16h"
  bool isChosen = false;
  bool operator==(const GoalOffer&) const = default;
};

template <RecordOf<GoalOffer> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [seconds, text, isChosen] = record;
  visit("seconds", seconds);
  visit("text", text);
  visit("isChosen", isChosen);
}

/// The usual goals, and which of them one is.
std::vector<GoalOffer> goalOffers(std::int64_t seconds, const PageClients& clients);

/// The usual goals, and a field for another one.
struct GoalChoice {
  std::string title;  ///< "Goal"
  double seconds = 0;
  std::vector<GoalOffer> offers;
  std::string customText;  ///< "Custom"
  bool isTyped = false;    ///< the field is there
  std::string fieldText;   ///< "Goal in hours"
  std::string unit;        ///< "h", behind what is typed
  std::string example;     ///< "13:30", where nothing is typed yet
  std::string hint;        ///< how a goal is typed; none beside a problem, and without the field
  std::string typed;       ///< "16:30"
  std::string problem;     ///< what is wrong with the goal, in a sentence
  bool canSave = false;
  std::string saveLabel;  ///< "Save"
  bool operator==(const GoalChoice&) const = default;
};

template <RecordOf<GoalChoice> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, seconds, offers, customText, isTyped, fieldText, unit, example, hint, typed, problem, canSave,
         saveLabel] = record;
  visit("title", title);
  visit("seconds", seconds);
  visit("offers", offers);
  visit("customText", customText);
  visit("isTyped", isTyped);
  visit("fieldText", fieldText);
  visit("unit", unit);
  visit("example", example);
  visit("hint", hint);
  visit("typed", typed);
  visit("problem", problem);
  visit("canSave", canSave);
  visit("saveLabel", saveLabel);
}

/// `problem` is what else is wrong with the goal; what cannot be read comes first.
GoalChoice composeGoalChoice(const GoalEntry& entry, const std::string& problem, const PageClients& clients);

}  // namespace mivo::host
