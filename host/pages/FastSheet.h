// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

#include "host/fasting/FastDraft.h"
#include "host/pages/FastingPage.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// The sheet that edits a fast of the history, or adds one.
struct FastSheet {
  std::string title;  ///< "Edit fast", "Add fast"
  bool isNew = false;
  Date start, end;
  std::string startLabel, startText, startSpoken;  ///< "Start", "Tue 9 Jun, 20:02", "Start, Tue 9 Jun, 20:02"
  std::string startProblem;                        ///< what is wrong with it, in a sentence; empty where nothing is
  std::string endLabel, endText, endSpoken, endProblem;
  std::string lengthLabel, length, lengthSpoken;  ///< "Length", "16h 31m"
  double seconds = 0;                             ///< how long it is
  std::string overlap;                            ///< "Overlaps the fast of Sat 6 Jun"
  double goalSeconds = 0;
  std::string goalProblem;
  std::string noteLabel, note, noteProblem;  ///< "Note", "slept well"
  std::string zonesLabel;                    ///< "Zones"
  std::vector<ZoneTimeText> zones;
  std::string failure;  ///< why it could not be written
  std::string saveLabel, removeLabel;
  std::string severalLabel;  ///< "Several at once"; empty where a fast is edited
  bool operator==(const FastSheet&) const = default;
};

template <RecordOf<FastSheet> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, isNew, start, end, startLabel, startText, startSpoken, startProblem, endLabel, endText, endSpoken,
         endProblem, lengthLabel, length, lengthSpoken, seconds, overlap, goalSeconds, goalProblem, noteLabel, note,
         noteProblem, zonesLabel, zones, failure, saveLabel, removeLabel, severalLabel] = record;
  visit("title", title);
  visit("isNew", isNew);
  visit("start", start);
  visit("end", end);
  visit("startLabel", startLabel);
  visit("startText", startText);
  visit("startSpoken", startSpoken);
  visit("startProblem", startProblem);
  visit("endLabel", endLabel);
  visit("endText", endText);
  visit("endSpoken", endSpoken);
  visit("endProblem", endProblem);
  visit("lengthLabel", lengthLabel);
  visit("length", length);
  visit("lengthSpoken", lengthSpoken);
  visit("seconds", seconds);
  visit("overlap", overlap);
  visit("goalSeconds", goalSeconds);
  visit("goalProblem", goalProblem);
  visit("noteLabel", noteLabel);
  visit("note", note);
  visit("noteProblem", noteProblem);
  visit("zonesLabel", zonesLabel);
  visit("zones", zones);
  visit("failure", failure);
  visit("saveLabel", saveLabel);
  visit("removeLabel", removeLabel);
  visit("severalLabel", severalLabel);
}

/// `fasts` are by start. O(n) for what it overlaps.
FastSheet composeFastSheet(const FastDraft& draft, std::span<const FastRecord> fasts, const PageClients& clients);

}  // namespace mivo::host
