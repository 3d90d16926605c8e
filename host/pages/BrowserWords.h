// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "mivo/model/Record.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// What only the app in a browser has to say: where the browser keeps the data, which tab has it, and that a new
/// version is there. They stay the same while it runs, and are there before the history is open.
struct BrowserWords {
  std::string language;                       ///< the tag of the language of all texts: "de"
  bool isRightToLeft = false;                 ///< it is written so
  std::string insecure;                       ///< why a page without HTTPS keeps no data
  std::string cannotKeep;                     ///< that this browser has no place for files
  std::string elsewhere, useHere;             ///< where another tab has the data
  std::string update, restart, closeOthers;   ///< where a new version waits, for other tabs too
  std::string storage, isKept, mayBeDeleted;  ///< "Where your data is", and whether the browser may delete it
  std::string keep, isNotKept;                ///< asks it not to; it does not agree
  std::string install;                        ///< "Install Mivo"
  std::string wholeDatabase, databaseNote;    ///< of an export
  std::string remindersNote, cannotNotify;    ///< when the user is told, and where the browser does not let that be
  bool operator==(const BrowserWords&) const = default;
};

template <RecordOf<BrowserWords> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [language, isRightToLeft, insecure, cannotKeep, elsewhere, useHere, update, restart, closeOthers, storage,
         isKept, mayBeDeleted, keep, isNotKept, install, wholeDatabase, databaseNote, remindersNote, cannotNotify] =
      record;
  visit("language", language);
  visit("isRightToLeft", isRightToLeft);
  visit("insecure", insecure);
  visit("cannotKeep", cannotKeep);
  visit("elsewhere", elsewhere);
  visit("useHere", useHere);
  visit("update", update);
  visit("restart", restart);
  visit("closeOthers", closeOthers);
  visit("storage", storage);
  visit("isKept", isKept);
  visit("mayBeDeleted", mayBeDeleted);
  visit("keep", keep);
  visit("isNotKept", isNotKept);
  visit("install", install);
  visit("wholeDatabase", wholeDatabase);
  visit("databaseNote", databaseNote);
  visit("remindersNote", remindersNote);
  visit("cannotNotify", cannotNotify);
}

/// language  the tag that the texts are in: "ar-EG". What is written from the right is known by its language alone.
BrowserWords browserWords(std::string_view language, const TextLookup& texts);

}  // namespace mivo::host
