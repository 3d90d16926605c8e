// SPDX-License-Identifier: MIT
#include "cli/records/ImportCommand.h"

#include <array>
#include <string>
#include <vector>

#include "adapters/icu/LanguageWords.h"
#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/UserDirectories.h"
#include "cli/options/OptionValues.h"
#include "cli/records/RecordCommands.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/usage/Usage.h"
#include "host/app/CarriedSettings.h"
#include "host/disk/TextFile.h"
#include "host/files/ReadImportFiles.h"
#include "host/import/ImportText.h"
#include "host/import/PlanImport.h"
#include "host/import/SaidFasts.h"
#include "host/place/TypedDates.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::cli {
namespace {

using Files = std::vector<host::ImportedFile>;

host::ImportSettings settings(const RecordRun& run) {
  const auto& [order, unit] = run.options.ambiguities;
  const auto dateOrder = readDateOrder(order);
  if (!dateOrder) throw Refused{wrongUsage, dateOrder.error()};
  const auto weightUnit = readWeightUnit(unit);
  if (!weightUnit) throw Refused{wrongUsage, weightUnit.error()};
  return {.zone = run.zone, .weightUnit = *weightUnit, .dateOrder = *dateOrder};
}

Files read(const RecordRun& run, const UUIDGenerator& ids) {
  auto files = host::readImportFiles(run.options.files, settings(run), ids);
  if (files) return std::move(*files);
  const auto& [bad, asks, isUnknown] = files.error();
  throw Refused{asks == host::ImportFault::Asks::nothing ? atFault : wrongUsage,
                withHelp(describe(bad), answeringOption(asks))};
}

/// The rows, one a line, and how many more there are than are kept.
void complainOf(const host::RefusedRecords& refused, const RecordRun& run) {
  for (const auto& bad : refused.first()) complain(describe(bad));
  const auto more = refused.count() - static_cast<std::int64_t>(refused.first().size());
  if (more > 0)
    complain(filledIn(run.texts->plural("{1} more was refused.", "{1} more were refused.", more),
                      {run.formatters.numberFormatter->string(more)}));
}

/// Of several files the last one's hold.
std::string settingsTaken(const Files& files, const RecordRun& run) {
  const adapters::FileUserDefaults app{adapters::appDefaultsFile()}, group{adapters::groupDefaultsFile()};
  std::int64_t count = 0;
  for (const auto& file : files) count += static_cast<std::int64_t>(host::choose(file.settings, {app, group}));
  return filledIn(run.texts->plural("{1} setting taken over", "{1} settings taken over", count),
                  {run.formatters.numberFormatter->string(count)}) +
         '\n';
}

/// Adds what they hold as one change, or only tells of it where the run is dry.
std::string report(const RecordRun& run, const Files& files, const UUIDGenerator& ids) {
  HistoryFile history = run.open();
  const host::ImportPlan plan = planImport(history.history(), files, ids);
  const bool isDone = !run.options.isDryRun;
  if (isDone && !plan.change.isEmpty()) history.apply(plan.change);
  std::string lines;
  for (std::size_t index = 0; index < files.size(); ++index) {
    const auto& numbers = *run.formatters.numberFormatter;
    lines += importSummary(files[index], plan.counts[index], isDone, *run.texts, numbers) + '\n';
    for (const std::string& note : importNotes(files[index], *run.texts, numbers)) lines += "  " + note + '\n';
  }
  if (isDone && run.options.takesSettings) lines += settingsTaken(files, run);
  for (const auto& file : files)
    if (file.endsBeforeStart) complain(describe(*file.endsBeforeStart));
  complainOf(plan.refused, run);
  return lines;
}

std::string import(const RecordRun& run) {
  const adapters::LocalUUIDGenerator ids;
  return report(run, read(run, ids), ids);
}

}  // namespace

std::string addLines(const RecordRun& run, std::int64_t goalSeconds) {
  if (run.options.note) throw Refused{wrongUsage, "--note: expected one fast, not --lines"};
  const std::string name = host::inputName("-");
  const auto text = host::readTextInput("-");
  if (!text) throw Refused{atFault, describe(text.error())};
  const auto [names, order] = host::typedDateWords(adapters::dateWords(run.locale));
  const adapters::LocalUUIDGenerator ids;
  const Files files{host::readSaidFasts(name, *text, {names, {run.now, *run.zone, order}, goalSeconds}, ids)};
  if (!files.front().fasts.empty()) return report(run, files, ids);
  complainOf(files.front().refused, run);
  throw Refused{atFault, name + ": expected fasts, one a line, as in \"yesterday 20:00 - 12:00\""};
}

int runImport(const RecordOptions& options) { return runRecordCommand(options, import); }

}  // namespace mivo::cli
