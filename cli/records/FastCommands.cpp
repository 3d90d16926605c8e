// SPDX-License-Identifier: MIT
#include <cstddef>
#include <vector>

#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/UserDirectories.h"
#include "cli/options/OptionValues.h"
#include "cli/records/ImportCommand.h"
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordRun.h"
#include "cli/records/RecordTables.h"
#include "cli/usage/Usage.h"
#include "host/app/AppFeature.h"
#include "host/app/Settings.h"
#include "host/fasting/Fasting.h"
#include "host/fasting/OverlappingFasts.h"
#include "host/history/Snapshot.h"

namespace mivo::cli {
namespace {

using host::FastRecord;

std::int64_t usualGoal() { return host::goalSeconds(adapters::FileUserDefaults{adapters::appDefaultsFile()}); }

/// Does a change, and says so of a record as the database has it now.
std::string done(const RecordRun& run, HistoryFile& file, const host::HistoryChange& change, std::string_view pattern,
                 const FastRecord& record) {
  file.apply(change);
  auto fasts = file.history().fasts;
  const FastRecord* kept = host::fastWithID(fasts, record.fast.id);
  const bool overlaps = kept && host::overlappingFasts(fasts, run.now)[static_cast<std::size_t>(kept - fasts.data())];
  if (!kept) fasts.push_back(record);  // its id is told apart from theirs
  std::string line = filledIn(run.texts->text(pattern), {described(record, idsOf(fasts), run)});
  if (overlaps) line += " (" + run.texts->text("overlaps another fast") + ')';
  return line + '\n';
}

std::string addOne(const RecordRun& run, std::string_view pattern, const FastingDataEntry& fast) {
  const FastRecord record{fast, run.options.note.value_or("")};
  HistoryFile file = run.open();
  const auto fasts = file.history().fasts;
  const auto outcome = host::addingFast(fasts, record, run.now);
  if (const auto* same = outcome ? nullptr : std::get_if<host::FastIsSavedAlready>(&outcome.error()))
    return filledIn(run.texts->text("Saved already: {1}"), {described(same->saved, idsOf(fasts), run)}) + '\n';
  return done(run, file, run.change(outcome), pattern, record);
}

std::string start(const RecordRun& run) {
  return addOne(run, translatable("Started {1}"),
                ongoingFast(adapters::LocalUUIDGenerator{}.next(), run.dateOrNow("--at", run.options.at),
                            run.goalSeconds(usualGoal())));
}

std::string stop(const RecordRun& run) {
  const Date end = run.dateOrNow("--at", run.options.at);
  HistoryFile file = run.open();
  const auto change = run.change(host::stopping(file.history().fasts, end, run.now));
  if (change.addedFasts.empty()) {
    file.apply(change);
    return withHelp(
               host::doneText({host::AppFeature::Step::stopAtOnce, {}}, *run.texts, *run.formatters.numberFormatter),
               "mivo undo lets it run on") +
           '\n';
  }
  return done(run, file, change, translatable("Stopped {1}"), change.addedFasts.front());
}

std::string add(const RecordRun& run) {
  const RecordOptions& options = run.options;
  if (options.takesLines || (options.start == "-" && !options.end)) return addLines(run, run.goalSeconds(usualGoal()));
  if (!options.start || !options.end) throw Refused{wrongUsage, "expected START and END, or --lines"};
  if (options.isDryRun) throw Refused{wrongUsage, "--dry-run: expected --lines with it"};
  const Date start = run.date("START", *options.start);
  const Date end = run.date("END", *options.end, start);
  return addOne(run, translatable("Added {1}"),
                finishedFast(adapters::LocalUUIDGenerator{}.next(), start, end, run.goalSeconds(usualGoal())));
}

const FastRecord& found(const RecordRun& run, const std::vector<FastRecord>& fasts) {
  return fasts[placeOf(run, idsOf(fasts), "fast")];
}

FastRecord edited(const FastRecord& before, const RecordRun& run) {
  const RecordOptions& options = run.options;
  const FastingDataEntry& fast = before.fast;
  const Date start = options.start ? run.date("--start", *options.start) : fast.start;
  const std::int64_t goalSeconds = run.goalSeconds(fast.goalSeconds);
  std::optional<Date> end;
  if (fast.finished) end = fast.finished->end;
  if (options.end) end = run.date("--end", *options.end, start);
  if (options.isRunning) end.reset();
  return {end ? finishedFast(fast.id, start, *end, goalSeconds) : ongoingFast(fast.id, start, goalSeconds),
          options.note.value_or(before.note)};
}

std::string edit(const RecordRun& run) {
  const RecordOptions& options = run.options;
  if (!options.start && !options.end && !options.isRunning && !options.goalHours && !options.note)
    throw Refused{wrongUsage, "nothing to change: expected --start, --end, --running, --goal-hours or --note"};
  HistoryFile file = run.open();
  const auto fasts = file.history().fasts;
  const FastRecord after = edited(found(run, fasts), run);
  return done(run, file, run.change(host::changingFast(fasts, after, run.now)), translatable("Changed to {1}"), after);
}

std::string remove(const RecordRun& run) {
  HistoryFile file = run.open();
  const auto fasts = file.history().fasts;
  const FastRecord record = found(run, fasts);
  return done(run, file, run.change(host::removingFast(fasts, record.fast.id)), translatable("Removed {1}"), record);
}

std::string list(const RecordRun& run) {
  const auto asJson = readFormat(run.options.format);
  if (!asJson) throw Refused{wrongUsage, asJson.error()};
  const auto fasts = run.history().fasts;
  return *asJson ? host::writeFasts(fasts) : fastTable(fasts, run);
}

}  // namespace

int runStart(const RecordOptions& options) { return runRecordCommand(options, start); }
int runStop(const RecordOptions& options) { return runRecordCommand(options, stop); }
int runAdd(const RecordOptions& options) { return runRecordCommand(options, add); }
int runEdit(const RecordOptions& options) { return runRecordCommand(options, edit); }
int runRemove(const RecordOptions& options) { return runRecordCommand(options, remove); }
int runList(const RecordOptions& options) { return runRecordCommand(options, list); }

}  // namespace mivo::cli
