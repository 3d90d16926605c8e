// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/app/AppFeature.h"
#include "mivo/model/Record.h"

namespace mivo::host {

/// What the app says over its pages: what failed, until the user has read it; else, for a while, what was done and can
/// be taken back.
struct Message {
  std::string text;    ///< none where there is nothing to say
  std::string button;  ///< "OK", "Undo"; sends `didTapMessage`
  bool isFailure = false;
  double seconds = 0;  ///< after which it goes by itself, by `didDismissMessages`; 0 where it stays
  bool operator==(const Message&) const = default;
};

template <RecordOf<Message> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [text, button, isFailure, seconds] = record;
  visit("text", text);
  visit("button", button);
  visit("isFailure", isFailure);
  visit("seconds", seconds);
}

Message composeMessage(const AppFeature::State& state, const TextLookup& texts, const NumberFormatter& numbers);

/// What is said where no mail program took the user's idea.
std::string noMailProgramText(const TextLookup& texts);

}  // namespace mivo::host
