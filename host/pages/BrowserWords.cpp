// SPDX-License-Identifier: MIT
#include "host/pages/BrowserWords.h"

#include <algorithm>
#include <array>

namespace mivo::host {
namespace {

bool isWrittenFromTheRight(std::string_view language) {
  constexpr std::array<std::string_view, 10> languages{"ar", "ckb", "dv", "fa", "he", "iw", "ps", "sd", "ur", "yi"};
  return std::ranges::find(languages, language.substr(0, language.find_first_of("-_"))) != languages.end();
}

}  // namespace

BrowserWords browserWords(std::string_view language, const TextLookup& texts) {
  return {
      .language = std::string{language},
      .isRightToLeft = isWrittenFromTheRight(language),
      .insecure = texts.text("This page was not opened through HTTPS, so the browser lets it keep no data. Open it at "
                             "an address that begins with https://."),
      .cannotKeep =
          texts.text("This browser gives pages no place for files of their own, so Mivo cannot keep any data in it."),
      .elsewhere = texts.text("Mivo is open in another tab, which has your data."),
      .useHere = texts.text("Use it here"),
      .update = texts.text("A new version of Mivo is here."),
      .restart = texts.text("Restart"),
      .closeOthers = texts.text("Close the other tabs of Mivo first."),
      .storage = texts.text("Where your data is"),
      .isKept = texts.text("Your fasts and weights are in this browser, on this device. It keeps them until you delete "
                           "them."),
      .mayBeDeleted = texts.text(
          "Your fasts and weights are in this browser, on this device. The browser may delete them when space "
          "runs out, or after a week without a visit. Add Mivo to the home screen, and export a copy now "
          "and then."),
      .keep = texts.text("Ask the browser to keep them"),
      .isNotKept = texts.text("The browser did not agree to keep your data. Add Mivo to the home screen, or export a "
                              "copy now and then."),
      .install = texts.text("Install Mivo"),
      .wholeDatabase = texts.text("Whole database"),
      .databaseNote = texts.text("A SQLite file with all that there is"),
      .remindersNote = texts.text("Mivo tells you once a fast, while it is open in the browser or as an app. Notes and "
                                  "weights are never part of it."),
      .cannotNotify =
          texts.text("The browser does not let Mivo tell you anything. Allow notifications for this page in "
                     "its settings.")};
}

}  // namespace mivo::host
