// SPDX-License-Identifier: MIT
#include "host/reminders/ReminderSettings.h"

#include <string_view>

namespace mivo::host {
namespace {

constexpr std::string_view tellsGoalKey = "tellsGoal", tellsEatingWindowKey = "tellsEatingWindow",
                           eatingWindowHoursKey = "eatingWindowHours";

std::string_view toldKey(ReminderKind kind) {
  return kind == ReminderKind::goal ? "toldGoalOfFast" : "toldEatingWindowAfterFast";
}

}  // namespace

ReminderSettings reminderSettings(const UserDefaults& defaults) {
  const std::int64_t hours = defaults.integer(eatingWindowHoursKey, 0);
  const bool isChosen = hours >= leastEatingWindowHours && hours <= mostEatingWindowHours;
  return {.tellsGoal = defaults.boolean(tellsGoalKey, false),
          .tellsEatingWindow = defaults.boolean(tellsEatingWindowKey, false),
          .eatingWindowHours = isChosen ? std::optional{hours} : std::nullopt};
}

void setTellsGoal(const UserDefaults& defaults, bool isOn) { defaults.setValue(tellsGoalKey, isOn); }

void setTellsEatingWindow(const UserDefaults& defaults, bool isOn) { defaults.setValue(tellsEatingWindowKey, isOn); }

void setEatingWindowHours(const UserDefaults& defaults, std::optional<std::int64_t> hours) {
  defaults.setValue(eatingWindowHoursKey, hours);
}

std::optional<UUID> toldFast(const UserDefaults& defaults, ReminderKind kind) {
  return parseUUID(defaults.text(toldKey(kind), ""));
}

void setToldFast(const UserDefaults& defaults, ReminderKind kind, UUID fast) {
  defaults.setValue(toldKey(kind), text(fast));
}

}  // namespace mivo::host
