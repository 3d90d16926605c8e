// SPDX-License-Identifier: MIT
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "adapters/system/AtomicFile.h"
#include "cli/options/OptionValues.h"
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordRun.h"
#include "cli/records/RecordTables.h"
#include "cli/usage/BecomeProgram.h"
#include "cli/usage/Usage.h"
#include "host/history/HistoryCsv.h"
#include "host/history/Snapshot.h"
#include "mivo/model/LowerCase.h"

namespace mivo::cli {
namespace {

namespace fs = std::filesystem;

enum class Form { snapshot, table, printed };

/// The form is read off the name, so that another one can come without changing what this one means.
std::optional<Form> formOf(const fs::path& file) {
  const std::string ending = lowerCase(file.extension().string());
  if (ending == ".json") return Form::snapshot;
  if (ending == ".png" || ending == ".pdf") return Form::printed;
  return ending == ".csv" ? std::optional{Form::table} : std::nullopt;
}

[[noreturn]] void refuseToReplace(const std::string& file) {
  throw Refused{atFault, file + ": the file is there already: expected another name, or --force to replace it"};
}

void expectFile(const fs::path& file) {
  std::error_code unknown;
  if (fs::exists(file, unknown) && !fs::is_regular_file(file, unknown))
    throw Refused{atFault, file.string() + ": expected a file, or no such name yet"};
}

void write(const RecordOptions& options, std::string_view content) {
  const fs::path file = options.to;
  expectFile(file);
  const auto existing = options.isForced ? adapters::Existing::replaced : adapters::Existing::refused;
  try {
    adapters::writePrivately(file, content, existing);
  } catch (const std::system_error& error) {
    if (error.code() != std::errc::file_exists) throw;
    refuseToReplace(options.to);
  }
}

/// "Exported to backup.json: 2 fasts, 1 weight", of a table one of the two.
std::string summary(const host::History& history, What what, const RecordRun& run) {
  const TextLookup& texts = *run.texts;
  const std::string fasts = fastCountText(history.fasts.size(), run),
                    weights = weightCountText(history.weights.size(), run);
  if (what == What::everything)
    return filledIn(texts.text("Exported to {1}: {2}, {3}"), {run.options.to, fasts, weights}) + '\n';
  return filledIn(texts.text("Exported to {1}: {2}"), {run.options.to, what == What::fasts ? fasts : weights}) + '\n';
}

What whatOf(const RecordOptions& options) {
  const auto what = readChoice("--what", exportedLists, options.what);
  if (!what) throw Refused{wrongUsage, what.error()};
  return *what;
}

/// On standard output a part is a table, and all of it a snapshot.
Form formOf(const RecordOptions& options, What what) {
  if (options.to == "-") return what == What::everything ? Form::snapshot : Form::table;
  const auto form = formOf(fs::path{options.to});
  if (!form)
    throw Refused{
        wrongUsage,
        wrong("--to", "expected a file whose name ends in .json, .csv, .png or .pdf, or -", options.to).value()};
  if (*form == Form::printed && what != What::everything)
    throw Refused{wrongUsage, "--what: a picture and pages show the statistics, not a list"};
  if (*form == Form::table && what == What::everything)
    throw Refused{wrongUsage, "--what: expected fasts or weights, since a table holds one of them"};
  return *form;
}

std::string written(const host::History& history, const std::vector<host::Setting>& settings, Form form, What what) {
  if (what == What::fasts)
    return form == Form::table ? host::writeFastsCsv(history.fasts) : host::writeFasts(history.fasts);
  if (what == What::weights)
    return form == Form::table ? host::writeWeightsCsv(history.weights) : host::writeWeights(history.weights);
  return host::writeSnapshot(history, settings);
}

/// What draws the screen draws it on paper too: the app goes on from here.
void print(const RecordRun& run) {
  const RecordOptions& options = run.options;
  if (const auto range = readChoice("--range", ranges, options.range); !range) throw Refused{wrongUsage, range.error()};
  std::error_code unknown;
  expectFile(options.to);
  if (!options.isForced && fs::exists(options.to, unknown)) refuseToReplace(options.to);
  run.history();  // what stands against reading it is said here
  std::vector<std::string> arguments{"--print", options.to, "--database", run.file().string()};
  const auto add = [&arguments](const char* name, const std::string& value) {
    if (!value.empty()) arguments.insert(arguments.end(), {name, value});
  };
  add("--locale", options.locale);
  add("--time-zone", options.timeZone);
  add("--range", options.range);
  if (options.withWeights) arguments.emplace_back("--with-weights");
  throw Refused{becomeProgram("mivo-app", std::move(arguments)), "the statistics are drawn by the app"};
}

std::string exportAll(const RecordRun& run) {
  const What what = whatOf(run.options);
  const Form form = formOf(run.options, what);
  if (form == Form::printed) print(run);
  const host::History history = run.history();
  std::string content = written(history, run.settings(), form, what);
  if (run.options.to == "-") return content;
  write(run.options, content);
  return summary(history, what, run);
}

}  // namespace

int runExport(const RecordOptions& options) { return runRecordCommand(options, exportAll); }

}  // namespace mivo::cli
