// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "host/app/AppFeature.h"
#include "host/pages/CardSettingsPage.h"
#include "mivo/roadmap/RoadmapListFeature.h"

namespace mivo::host {

/// What is done with a line chart: it was scrolled so that it begins at a date, or a finger is at one, or left it.
struct LineChartAction {
  struct Cases {
    struct didScroll {
      Date leading;
      bool operator==(const didScroll&) const = default;
    };
    struct didTouch {
      std::optional<Date> date;
      bool operator==(const didTouch&) const = default;
    };
  };
  struct Action : Cases, std::variant<Cases::didScroll, Cases::didTouch> {
    using variant::variant;
  };
};

/// What is done with a goal that is being chosen, see `GoalEntry`.
struct GoalChoiceAction {
  struct Cases {
    /// With a goal as it is, in seconds.
    struct didBegin {
      std::int64_t seconds;
      bool operator==(const didBegin&) const = default;
    };
    struct didPick {
      std::size_t place;
      bool operator==(const didPick&) const = default;
    };
    struct didOpenField {
      bool operator==(const didOpenField&) const = default;
    };
    struct didType {
      std::string text;
      bool operator==(const didType&) const = default;
    };
  };
  struct Action : Cases, std::variant<Cases::didBegin, Cases::didPick, Cases::didOpenField, Cases::didType> {
    using variant::variant;
  };
};

/// What is done with a date that is being chosen, see `DateTimeEntry`.
struct DateChoiceAction {
  struct Cases {
    struct didBegin {
      Date date;
      bool operator==(const didBegin&) const = default;
    };
    struct didTurnDay {
      int place;
      bool operator==(const didTurnDay&) const = default;
    };
    struct didTurnHour {
      int place;
      bool operator==(const didTurnHour&) const = default;
    };
    struct didTurnMinute {
      int place;
      bool operator==(const didTurnMinute&) const = default;
    };
    struct didType {
      std::string text;
      bool operator==(const didType&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::didBegin, Cases::didTurnDay, Cases::didTurnHour, Cases::didTurnMinute, Cases::didType> {
    using variant::variant;
  };
};

/// What a person does on a page that only who composed it understands: a row, the place of a choice, a button that
/// means one thing or another, and what is kept for the page alone.
struct PageAction {
  struct Cases {
    /// Starts a fast, or stops the one that runs.
    struct didTapFastingButton {
      bool operator==(const didTapFastingButton&) const = default;
    };
    struct didTapFast {
      std::size_t row;  ///< of "historyRows"
      bool operator==(const didTapFast&) const = default;
    };
    struct didDeleteFastOfRow {
      std::size_t row;
      bool operator==(const didDeleteFastOfRow&) const = default;
    };
    /// The fast that is edited.
    struct didDeleteEditedFast {
      bool operator==(const didDeleteEditedFast&) const = default;
    };
    struct didTapWeight {
      std::size_t row;  ///< of "weightRows"
      bool operator==(const didTapWeight&) const = default;
    };
    struct didDeleteWeightOfRow {
      std::size_t row;
      bool operator==(const didDeleteWeightOfRow&) const = default;
    };
    struct didDeleteEditedWeight {
      bool operator==(const didDeleteEditedWeight&) const = default;
    };
    struct didChooseTimeRange {
      std::size_t place;
      bool operator==(const didChooseTimeRange&) const = default;
    };
    struct didDismissTip {
      bool operator==(const didDismissTip&) const = default;
    };
    /// Bars that are on screen, by their places: [first, last).
    struct didSeeFastingBars {
      std::size_t first, last;
      bool operator==(const didSeeFastingBars&) const = default;
    };
    struct didSeeEatingBars {
      std::size_t first, last;
      bool operator==(const didSeeEatingBars&) const = default;
    };
    struct weightChart {
      LineChartAction::Action action;
      bool operator==(const weightChart&) const = default;
    };
    struct weightFastingChart {
      LineChartAction::Action action;
      bool operator==(const weightFastingChart&) const = default;
    };
    struct goalChoice {
      GoalChoiceAction::Action action;
      bool operator==(const goalChoice&) const = default;
    };
    struct dateChoice {
      DateChoiceAction::Action action;
      bool operator==(const dateChoice&) const = default;
    };
    /// Nothing unless the roadmap is open.
    struct roadmap {
      RoadmapListFeature::Action action;
      bool operator==(const roadmap&) const = default;
    };
    struct didTypeIdea {
      std::string idea, replyTo;
      bool operator==(const didTypeIdea&) const = default;
    };
    /// The idea is on the clipboard instead.
    struct didFindNoMailProgram {
      bool operator==(const didFindNoMailProgram&) const = default;
    };
    /// What "reminder" says is due was shown by who draws the pages, by its id.
    struct didTellReminder {
      std::string id;
      bool operator==(const didTellReminder&) const = default;
    };
    struct didExportRow {
      std::size_t row;  ///< of the sheet
      std::string path;
      bool operator==(const didExportRow&) const = default;
    };
    struct didChooseWeightUnit {
      std::size_t place;
      bool operator==(const didChooseWeightUnit&) const = default;
    };
    struct didChooseFirstWeekday {
      std::size_t place;
      bool operator==(const didChooseFirstWeekday&) const = default;
    };
    struct didChooseLanguage {
      std::size_t place;
      bool operator==(const didChooseLanguage&) const = default;
    };
    struct didChooseAppearance {
      std::size_t place;
      bool operator==(const didChooseAppearance&) const = default;
    };
    struct didChooseTextSize {
      std::int64_t percent;
      bool operator==(const didChooseTextSize&) const = default;
    };
    struct didToggleCard {
      CardGroup group;
      std::size_t row;
      bool operator==(const didToggleCard&) const = default;
    };
    struct didChooseCounted {
      std::size_t place;
      bool operator==(const didChooseCounted&) const = default;
    };
    struct didChooseLongestBreak {
      std::int64_t hours;
      bool operator==(const didChooseLongestBreak&) const = default;
    };
    struct didChooseEatingWindow {
      std::size_t place;
      bool operator==(const didChooseEatingWindow&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::didTapFastingButton, Cases::didTapFast, Cases::didDeleteFastOfRow,
                     Cases::didDeleteEditedFast, Cases::didTapWeight, Cases::didDeleteWeightOfRow,
                     Cases::didDeleteEditedWeight, Cases::didChooseTimeRange, Cases::didDismissTip,
                     Cases::didSeeFastingBars, Cases::didSeeEatingBars, Cases::weightChart, Cases::weightFastingChart,
                     Cases::goalChoice, Cases::dateChoice, Cases::roadmap, Cases::didTypeIdea,
                     Cases::didFindNoMailProgram, Cases::didTellReminder, Cases::didExportRow,
                     Cases::didChooseWeightUnit, Cases::didChooseFirstWeekday, Cases::didChooseLanguage,
                     Cases::didChooseAppearance, Cases::didChooseTextSize, Cases::didToggleCard,
                     Cases::didChooseCounted, Cases::didChooseLongestBreak, Cases::didChooseEatingWindow> {
    using variant::variant;
  };
};

template <RecordOf<PageAction::Cases::didSeeFastingBars> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [first, last] = record;
  visit("first", first);
  visit("last", last);
}

template <RecordOf<PageAction::Cases::didSeeEatingBars> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [first, last] = record;
  visit("first", first);
  visit("last", last);
}

template <RecordOf<PageAction::Cases::didTypeIdea> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [idea, replyTo] = record;
  visit("idea", idea);
  visit("replyTo", replyTo);
}

template <RecordOf<PageAction::Cases::didExportRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [row, path] = record;
  visit("row", row);
  visit("path", path);
}

template <RecordOf<PageAction::Cases::didToggleCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [group, row] = record;
  visit("group", group);
  visit("row", row);
}

}  // namespace mivo::host
