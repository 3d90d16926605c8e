// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/pages/DateTimeChoice.h"
#include "mivo/model/Record.h"

namespace mivo::host {

/// A date that is being chosen.
struct DateChoicePage {
  DateTimeChoice choice;
  bool isRefused = false;    ///< what was typed last is no date of the list
  std::string startProblem;  ///< why the running fast cannot begin then, in a sentence; none where it can
  bool operator==(const DateChoicePage&) const = default;
};

template <RecordOf<DateChoicePage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [choice, isRefused, startProblem] = record;
  visit("choice", choice);
  visit("isRefused", isRefused);
  visit("startProblem", startProblem);
}

/// The idea that was typed, as it is handed to a mail program.
struct MailPage {
  bool canSend = false;
  std::string address;  ///< none where nobody reads any
  std::string subject, body;
  bool operator==(const MailPage&) const = default;
};

template <RecordOf<MailPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [canSend, address, subject, body] = record;
  visit("canSend", canSend);
  visit("address", address);
  visit("subject", subject);
  visit("body", body);
}

}  // namespace mivo::host
