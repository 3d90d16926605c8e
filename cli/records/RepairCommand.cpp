// SPDX-License-Identifier: MIT
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordRun.h"
#include "cli/records/RecordTables.h"
#include "cli/usage/Usage.h"
#include "host/app/AppFeature.h"
#include "host/fasting/OverlapRepair.h"

namespace mivo::cli {
namespace {

/// Each fast as it is, after a minus, and as it would be, after a plus.
std::string lines(const host::HistoryChange& change, const ShortIDs& ids, const RecordRun& run) {
  std::string text;
  for (const host::FastRecord& before : change.removedFasts) {
    text += "- " + described(before, ids, run) + '\n';
    if (const host::FastRecord* after = host::fastWithID(change.addedFasts, before.fast.id))
      text += "+ " + described(*after, ids, run) + '\n';
  }
  return text;
}

std::string repair(const RecordRun& run) {
  HistoryFile file = run.open();
  const auto fasts = file.history().fasts;
  const host::HistoryChange change = host::overlapRepair(fasts, run.now);
  if (change.isEmpty()) return run.texts->text("No fasts overlap.") + '\n';
  std::string changes = lines(change, idsOf(fasts), run);
  if (run.options.isDryRun) return changes;
  file.apply(change);
  return changes +
         withHelp(
             host::doneText({host::AppFeature::Step::repairOverlaps, {}}, *run.texts, *run.formatters.numberFormatter),
             "mivo undo takes it back") +
         '\n';
}

}  // namespace

int runRepair(const RecordOptions& options) { return runRecordCommand(options, repair); }

}  // namespace mivo::cli
