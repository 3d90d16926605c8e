// SPDX-License-Identifier: MIT
#include <utility>

#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/LocalUUIDGenerator.h"
#include "adapters/system/UserDirectories.h"
#include "cli/options/OptionValues.h"
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordRun.h"
#include "cli/records/RecordTables.h"
#include "cli/usage/Usage.h"
#include "host/app/Settings.h"
#include "host/history/Snapshot.h"
#include "host/overlaps/OverlappingFasts.h"

namespace mivo::cli {
namespace {

using host::FastRecord;

std::int64_t usualGoal() { return host::goalSeconds(adapters::FileUserDefaults{adapters::appDefaultsFile()}); }

/// What was done, as the database has it now.
std::string answer(const RecordRun& run, const host::Database& database, std::string_view pattern,
                   const FastRecord& record, bool isGone = false) {
  auto fasts = database.history().fasts;
  bool overlaps = false;
  const auto marks = host::overlappingFasts(fasts, run.now);
  for (std::size_t index = 0; index < fasts.size(); ++index)
    overlaps = overlaps || (fasts[index].fast.id == record.fast.id && marks[index]);
  if (isGone) fasts.push_back(record);  // its id is told apart from theirs
  std::string line = filledIn(run.texts->text(pattern), {described(record, idsOf(fasts), run)});
  if (overlaps) line += " (" + run.texts->text("overlaps another fast") + ')';
  return line + '\n';
}

FastRecord found(const RecordRun& run, const host::Database& database) {
  const auto fasts = database.history().fasts;
  return fasts[placeOf(run, idsOf(fasts), "fast")];
}

std::string start(const RecordRun& run) {
  const FastRecord record{ongoingFast(adapters::LocalUUIDGenerator{}.next(), run.dateOrNow("--at", run.options.at),
                                      run.goalSeconds(usualGoal())),
                          run.options.note.value_or("")};
  run.check(record);
  host::Database database = run.open();
  if (const auto running = database.runningFast())
    throw Refused{atFault, "a fast is running since " + run.typed(running->fast.start) +
                               ": expected mivo stop before another one starts"};
  database.apply(host::adding(record));
  return answer(run, database, translatable("Started {1}"), record);
}

std::string stop(const RecordRun& run) {
  host::Database database = run.open();
  const auto running = database.runningFast();
  if (!running) throw Refused{atFault, "no fast is running: expected mivo start before"};
  const Date start = running->fast.start, end = run.dateOrNow("--at", run.options.at);
  if (end < start)
    throw Refused{atFault, "the fast is running since " + run.typed(start) + ", after " + run.typed(end) +
                               ": expected a time since then" + (run.options.at ? "" : "; was the clock set back?")};
  const FastRecord record = host::stopped(*running, end);
  run.check(record, running);
  database.apply(host::replacing(*running, record));
  return answer(run, database, translatable("Stopped {1}"), record);
}

std::string add(const RecordRun& run) {
  const Date start = run.date("START", *run.options.start), end = run.date("END", *run.options.end);
  const FastRecord record{finishedFast(adapters::LocalUUIDGenerator{}.next(), start, end, run.goalSeconds(usualGoal())),
                          run.options.note.value_or("")};
  run.check(record);
  host::Database database = run.open();
  database.apply(host::adding(record));
  return answer(run, database, translatable("Added {1}"), record);
}

FastRecord edited(const FastRecord& before, const RecordRun& run) {
  const RecordOptions& options = run.options;
  const FastingDataEntry& fast = before.fast;
  const Date start = options.start ? run.date("--start", *options.start) : fast.start;
  const std::int64_t goalSeconds = run.goalSeconds(fast.goalSeconds);
  std::optional<Date> end;
  if (fast.finished) end = fast.finished->end;
  if (options.end) end = run.date("--end", *options.end);
  if (options.isRunning) end.reset();
  return {end ? finishedFast(fast.id, start, *end, goalSeconds) : ongoingFast(fast.id, start, goalSeconds),
          options.note.value_or(before.note)};
}

std::string edit(const RecordRun& run) {
  const RecordOptions& options = run.options;
  if (!options.start && !options.end && !options.isRunning && !options.goalHours && !options.note)
    throw Refused{wrongUsage, "nothing to change: expected --start, --end, --running, --goal-hours or --note"};
  host::Database database = run.open();
  const FastRecord before = found(run, database);
  const FastRecord after = edited(before, run);
  run.check(after, std::optional{before});
  if (const auto running = database.runningFast(); running && !after.fast.finished && running->fast.id != after.fast.id)
    throw Refused{atFault, "another fast is running since " + run.typed(running->fast.start) +
                               ": expected mivo stop before this one runs on"};
  database.apply(host::replacing(before, after));
  return answer(run, database, translatable("Changed to {1}"), after);
}

std::string remove(const RecordRun& run) {
  host::Database database = run.open();
  const FastRecord record = found(run, database);
  database.apply(host::removing(record));
  return answer(run, database, translatable("Removed {1}"), record, true);
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
