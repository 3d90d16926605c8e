// SPDX-License-Identifier: MIT
#include "host/pages/DueReminder.h"

#include "host/reminders/ReminderText.h"

namespace mivo::host {

DueReminder composeDueReminder(const std::optional<Reminder>& next, const PageClients& clients) {
  if (!next) return {};
  const auto [title, sentence] = reminderText(*next, clients);
  const std::string_view kind = next->kind == ReminderKind::goal ? "goal-" : "eatingWindow-";
  return {.id = std::string{kind} + text(next->fast), .due = next->due, .title = title, .sentence = sentence};
}

}  // namespace mivo::host
