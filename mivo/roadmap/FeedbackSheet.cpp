// SPDX-License-Identifier: MIT
#include "mivo/roadmap/FeedbackSheet.h"

#include <algorithm>

namespace mivo {
namespace {

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

}  // namespace

FeedbackSheet composeFeedback(const TextLookup& texts) {
  return {.title = texts.text("Feedback"),
          .ideaLabel = texts.text("Your idea"),
          .replyLabel = texts.text("Reply to (optional)"),
          .replyPlaceholder = texts.text("E-mail address"),
          .note = texts.text("Only what you write here is sent."),
          .button = texts.text("Send")};
}

bool isIdea(std::string_view text) { return !trimmed(text).empty(); }

std::string feedbackMessage(std::string_view idea, std::string_view replyTo) {
  std::string message{idea};
  if (isIdea(replyTo)) message.append("\n\n").append(trimmed(replyTo));
  return message;
}

}  // namespace mivo
