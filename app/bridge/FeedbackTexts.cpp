// SPDX-License-Identifier: MIT
#include "FeedbackTexts.h"

#include "app/bridge/Text.h"

namespace mivo::app {

FeedbackTexts feedbackTextsOf(const FeedbackSheet& sheet) {
  return {qString(sheet.title), qString(sheet.ideaLabel), qString(sheet.replyLabel), qString(sheet.replyPlaceholder),
          qString(sheet.note),  qString(sheet.button)};
}

}  // namespace mivo::app
