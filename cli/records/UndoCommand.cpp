// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/records/RecordCommands.h"
#include "cli/records/RecordRun.h"
#include "cli/records/RecordTables.h"
#include "host/fasting/Refusal.h"

namespace mivo::cli {
namespace {

using host::idOf;

template <class Record>
bool hasIDOf(const std::vector<Record>& records, const Record& one) {
  return std::ranges::any_of(records, [&](const Record& other) { return idOf(other) == idOf(one); });
}

/// A line for each record, told apart from those that are there now.
template <class Record>
std::string lines(const std::vector<Record>& removed, const std::vector<Record>& added, std::vector<Record> present,
                  const RecordRun& run) {
  for (const Record& record : removed)
    if (!hasIDOf(added, record)) present.push_back(record);
  const ShortIDs ids = idsOf(present);
  std::string text;
  const auto say = [&](const std::string& pattern, const Record& record) {
    text += filledIn(pattern, {described(record, ids, run)}) + '\n';
  };
  for (const Record& record : removed)
    if (!hasIDOf(added, record)) say(run.texts->text("Gone again: {1}"), record);
  for (const Record& record : added)
    say(hasIDOf(removed, record) ? run.texts->text("As before: {1}") : run.texts->text("Back again: {1}"), record);
  return text;
}

std::string undo(const RecordRun& run) {
  HistoryFile file = run.open();
  const host::HistoryChange change = file.undo();
  if (change.isEmpty()) run.refuse(host::NothingToUndo{});
  const host::History present = file.history();
  return lines(change.removedFasts, change.addedFasts, present.fasts, run) +
         lines(change.removedWeights, change.addedWeights, present.weights, run);
}

}  // namespace

int runUndo(const RecordOptions& options) { return runRecordCommand(options, undo); }

}  // namespace mivo::cli
