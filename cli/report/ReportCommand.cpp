// SPDX-License-Identifier: MIT
#include "cli/report/ReportCommand.h"

#include <array>
#include <filesystem>
#include <string>
#include <tl/expected.hpp>
#include <utility>

#include "cli/backup/DamagedSentence.h"
#include "cli/options/OptionValues.h"
#include "cli/report/ReportText.h"
#include "cli/report/RunSettings.h"
#include "cli/terminal/Paint.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/usage/Usage.h"
#include "host/disk/DatabaseFile.h"
#include "host/disk/TextFile.h"
#include "host/files/ReadImportFiles.h"
#include "host/history/FastsCsv.h"
#include "host/history/WeightsCsv.h"
#include "host/import/PlanImport.h"
#include "host/report/ReportJson.h"

namespace mivo::cli {
namespace {

using host::BadRecord;
using host::History;
using host::ImportFault;

constexpr int done = 0, badData = atFault;

int refused(int status, const std::string& sentence) {
  complain(sentence);
  return status;
}

bool hasTables(const ReportOptions& options) { return !options.fasts.empty() || !options.weights.empty(); }

/// What is wrong with the choice of inputs, if anything.
std::string inputFault(const ReportOptions& options) {
  const int inputs = !options.input.empty() + !options.database.empty() + hasTables(options);
  if (inputs > 1) return "expected one of --input, --database, or --fasts and --weights, not several";
  if (inputs == 0 && !std::filesystem::exists(host::ownDatabaseFile()))
    return "no history given, and the app has none here: expected --input FILE.json, --fasts FILE.csv with or without "
           "--weights FILE.csv, or --database FILE";
  return {};
}

tl::expected<History, BadRecord> readTables(const ReportOptions& options, const RunSettings& settings,
                                            const UUIDGenerator& ids) {
  History history;
  if (!options.fasts.empty()) {
    auto table = host::readTextInput(options.fasts).and_then([&](const std::string& text) {
      return host::readFastsCsv(text, host::inputName(options.fasts), settings.zone(), ids);
    });
    if (!table) return tl::unexpected{std::move(table.error())};
    history.fasts = std::move(table->fasts);
    history.endsBeforeStart = std::move(table->endsBeforeStart);
  }
  if (!options.weights.empty()) {
    auto weights = host::readTextInput(options.weights).and_then([&](const std::string& text) {
      return host::readWeightsCsv(text, host::inputName(options.weights), settings.zone(), settings.weightUnit, ids);
    });
    if (!weights) return tl::unexpected{std::move(weights.error())};
    history.weights = std::move(*weights);
  }
  return history;
}

/// A report makes no database where there is none.
tl::expected<History, BadRecord> readDatabase(const std::filesystem::path& file) {
  if (!std::filesystem::is_regular_file(file))
    return tl::unexpected{BadRecord{.file = file.string(), .reason = "expected a database of the app"}};
  return host::openDatabase(file).history();
}

bool isOwn(const host::ImportedFile& file) {
  return file.kind == host::ImportKind::snapshot || file.kind == host::ImportKind::database;
}

/// What a file of any kind holds, up to the first record that is wrong. A backup is taken as it is; of what other apps
/// write, repeats count once.
tl::expected<History, ImportFault> readInput(const ReportOptions& options, const RunSettings& settings,
                                             const UUIDGenerator& ids) {
  auto files = host::readImportFiles(
      std::array{options.input},
      {.zone = settings.calendar->zone(), .weightUnit = settings.weightUnit, .dateOrder = settings.dateOrder}, ids);
  if (!files) return tl::unexpected{std::move(files.error())};
  host::ImportedFile& file = files->front();
  if (files->size() == 1 && isOwn(file) && file.refused.count() == 0)
    return History{std::move(file.fasts), std::move(file.weights), std::move(file.endsBeforeStart)};
  host::ImportPlan plan = planImport({}, *files, ids);
  if (plan.refused.count() > 0) return tl::unexpected{ImportFault{plan.refused.first().front()}};
  History history{std::move(plan.change.addedFasts), std::move(plan.change.addedWeights), {}};
  host::sortByDate(history.weights);
  return history;
}

tl::expected<History, ImportFault> readHistory(const ReportOptions& options, const RunSettings& settings,
                                               const UUIDGenerator& ids) {
  if (!options.input.empty()) return readInput(options, settings, ids);
  auto history = hasTables(options) ? readTables(options, settings, ids)
                                    : readDatabase(options.database.empty() ? host::ownDatabaseFile()
                                                                            : std::filesystem::path{options.database});
  return std::move(history).map_error([](BadRecord bad) { return ImportFault{std::move(bad)}; });
}

std::string drawn(const host::Report& report, const RunSettings& settings) {
  DashboardSettingsFeature::State flags;
  if (settings.asJson) return reportJson(report, trends(report), screen(report, settings.report, flags));
  flags.showKetosisHours = true;  // a page has room for all seven
  flags.showDeepKetosisHours = true;
  return reportText(report, screen(report, settings.report, flags), settings.report.weightUnit, screenFormatters(),
                    Paint::forStandardOutput());
}

int report(const ReportOptions& options, const RunSettings& settings, const UUIDGenerator& ids) {
  const auto history = readHistory(options, settings, ids);
  if (!history) {
    const auto& [bad, asks, isUnknown] = history.error();
    return refused(asks == ImportFault::Asks::nothing ? badData : wrongUsage,
                   withHelp(describe(bad), answeringOption(asks)));
  }
  const std::string page = drawn(makeReport(*history, settings.report), settings);
  if (history->endsBeforeStart) complain(describe(*history->endsBeforeStart));
  if (const auto fault = writeOutput(page)) return refused(badData, *fault);
  return done;
}

}  // namespace

int runReport(const ReportOptions& options) {
  if (const std::string fault = inputFault(options); !fault.empty()) return refused(wrongUsage, fault);
  const auto settings = runSettings(options);
  if (!settings) return refused(wrongUsage, settings.error());
  const auto clients = runDependencies(*settings);
  const DependencyScope scope{clients};
  try {
    return report(options, *settings, *clients->uuid);
  } catch (const host::DatabaseError& error) {
    if (error.kind != host::DatabaseError::Kind::damaged) throw;
    return refused(badData, damagedSentence(error, *clients->texts, *clients->dateFormatter));
  }
}

}  // namespace mivo::cli
