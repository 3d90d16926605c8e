// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/reminders/Reminder.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// What a notification says. Others may see it on a locked screen, so it holds neither notes nor weights.
struct ReminderText {
  std::string title;     ///< "Goal reached"
  std::string sentence;  ///< "Your fast reached its goal of 16h at 12:30."; right whenever it is read on that day
  bool operator==(const ReminderText&) const = default;
};

ReminderText reminderText(const Reminder& reminder, const PageClients& clients);

}  // namespace mivo::host
