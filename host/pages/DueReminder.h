// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "host/reminders/Reminder.h"
#include "mivo/model/Date.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// What is to be told next, ready for whoever tells it: in a browser the page itself, as long as it lives.
struct DueReminder {
  std::string id;  ///< of what is told, so that it is told once; none where there is nothing to tell
  Date due;
  std::string title, sentence;
  bool operator==(const DueReminder&) const = default;
};

template <RecordOf<DueReminder> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [id, due, title, sentence] = record;
  visit("id", id);
  visit("due", due);
  visit("title", title);
  visit("sentence", sentence);
}

/// Of what `nextReminder` found. Three texts.
DueReminder composeDueReminder(const std::optional<Reminder>& next, const PageClients& clients);

}  // namespace mivo::host
