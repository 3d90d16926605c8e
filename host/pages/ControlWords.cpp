// SPDX-License-Identifier: MIT
#include "host/pages/ControlWords.h"

namespace mivo::host {

ControlWords controlWords(const TextLookup& texts) {
  return {.fasting = texts.text("Fasting"),
          .statistics = texts.text("Statistics"),
          .settings = texts.text("Settings"),
          .close = texts.text("Close"),
          .back = texts.text("Back"),
          .less = texts.text("Less"),
          .more = texts.text("More"),
          .chart = texts.text("Chart"),
          .copyValue = texts.text("Copy value"),
          .showAsTable = texts.text("Show as table"),
          .cannotOpen = texts.text("Your history cannot be opened"),
          .tryAgain = texts.text("Try again"),
          .restoreNewest = texts.text("Restore the newest backup"),
          .beginAnew = texts.text("Begin a new history"),
          .damagedIsKept = texts.text("The damaged file is kept, whatever you choose.")};
}

}  // namespace mivo::host
