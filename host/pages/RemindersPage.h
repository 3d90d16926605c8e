// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "host/pages/SettingsPage.h"
#include "host/reminders/ReminderSettings.h"

namespace mivo::host {

/// What the user wants to be told of while they do not look.
struct RemindersPage {
  std::string title;
  std::string goalLabel, eatingWindowLabel;  ///< each switches one on
  bool tellsGoal = false, tellsEatingWindow = false;
  Choice eatingWindow;  ///< how long it is to be
  std::string note;     ///< what will be told, and what never is
  bool operator==(const RemindersPage&) const = default;
};

template <RecordOf<RemindersPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, goalLabel, eatingWindowLabel, tellsGoal, tellsEatingWindow, eatingWindow, note] = record;
  visit("title", title);
  visit("goalLabel", goalLabel);
  visit("eatingWindowLabel", eatingWindowLabel);
  visit("tellsGoal", tellsGoal);
  visit("tellsEatingWindow", tellsEatingWindow);
  visit("eatingWindow", eatingWindow);
  visit("note", note);
}

RemindersPage composeReminders(const ReminderSettings& settings, const PageClients& clients);

/// What a place in `eatingWindow` means; nothing for as long as the one before.
std::optional<std::int64_t> eatingWindowHoursAt(std::int64_t place);

}  // namespace mivo::host
