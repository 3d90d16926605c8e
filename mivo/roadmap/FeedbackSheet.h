// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "mivo/model/Record.h"
#include "mivo/platform/TextLookup.h"

namespace mivo {

/// The sheet that takes an idea of the user's in.
struct FeedbackSheet {
  std::string title, ideaLabel, replyLabel, replyPlaceholder, note, button;
  bool operator==(const FeedbackSheet&) const = default;
};

template <RecordOf<FeedbackSheet> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, ideaLabel, replyLabel, replyPlaceholder, note, button] = record;
  visit("title", title);
  visit("ideaLabel", ideaLabel);
  visit("replyLabel", replyLabel);
  visit("replyPlaceholder", replyPlaceholder);
  visit("note", note);
  visit("button", button);
}

/// Every text of the sheet. Pure. Thread: any.
FeedbackSheet composeFeedback(const TextLookup& texts);

/// Whether there is something to send: more than blanks.
bool isIdea(std::string_view text);

/// What is sent: the idea, and below it the address to reply to where there is one.
std::string feedbackMessage(std::string_view idea, std::string_view replyTo);

}  // namespace mivo
