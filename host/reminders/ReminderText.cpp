// SPDX-License-Identifier: MIT
#include "host/reminders/ReminderText.h"

#include "mivo/fasting/GoalTime.h"
#include "mivo/pages/DateTimeText.h"

namespace mivo::host {
namespace {

std::string title(ReminderKind kind, const TextLookup& texts) {
  return kind == ReminderKind::goal ? texts.text("Goal reached") : texts.text("Eating window");
}

std::string pattern(ReminderKind kind, const TextLookup& texts) {
  return kind == ReminderKind::goal ? texts.text("Your fast reached its goal of {1} at {2}.")
                                    : texts.text("Your eating window reached {1} at {2}.");
}

}  // namespace

ReminderText reminderText(const Reminder& reminder, const PageClients& clients) {
  const std::string length = goalText(reminder.duration, clients.hour, clients.hourMin);
  return {.title = title(reminder.kind, clients.texts),
          .sentence = filledIn(pattern(reminder.kind, clients.texts), {length, clockText(reminder.due, clients)})};
}

}  // namespace mivo::host
