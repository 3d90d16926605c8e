// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

#include "adapters/system/AtomicFile.h"
#include "cli/options/OptionValues.h"
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordRun.h"
#include "cli/usage/Usage.h"
#include "host/history/Snapshot.h"

namespace mivo::cli {
namespace {

namespace fs = std::filesystem;

/// The form is read off the name, so that another one can come without changing what this one means.
bool isJson(const fs::path& file) {
  std::string ending = file.extension().string();
  std::ranges::transform(ending, ending.begin(), [](unsigned char letter) { return std::tolower(letter); });
  return ending == ".json";
}

void write(const RecordOptions& options, std::string_view snapshot) {
  const fs::path file = options.to;
  std::error_code unknown;
  if (fs::exists(file, unknown) && !fs::is_regular_file(file, unknown))
    throw Refused{atFault, options.to + ": expected a file, or no such name yet"};
  const auto existing = options.isForced ? adapters::Existing::replaced : adapters::Existing::refused;
  try {
    adapters::writePrivately(file, snapshot, existing);
  } catch (const std::system_error& error) {
    if (error.code() != std::errc::file_exists) throw;
    throw Refused{atFault, options.to + ": the file is there already: expected another name, or --force to replace it"};
  }
}

/// "Exported to backup.json: 2 fasts, 1 weight"
std::string summary(const host::History& history, const RecordRun& run) {
  const TextLookup& texts = *run.texts;
  const auto filled = [&run](const std::string& pattern, std::int64_t count) {
    return filledIn(pattern, {run.formatters.numberFormatter->string(count)});
  };
  const auto fasts = static_cast<std::int64_t>(history.fasts.size());
  const auto weights = static_cast<std::int64_t>(history.weights.size());
  return filledIn(texts.text("Exported to {1}: {2}, {3}"),
                  {run.options.to, filled(texts.plural("{1} fast", "{1} fasts", fasts), fasts),
                   filled(texts.plural("{1} weight", "{1} weights", weights), weights)}) +
         '\n';
}

std::string exportAll(const RecordRun& run) {
  const std::string& to = run.options.to;
  const bool isPrinted = to == "-";
  if (!isPrinted && !isJson(to))
    throw Refused{wrongUsage, wrong("--to", "expected a file whose name ends in .json, or -", to).value()};
  const host::History history = run.history();
  std::string snapshot = writeSnapshot(history);
  if (isPrinted) return snapshot;
  write(run.options, snapshot);
  return summary(history, run);
}

}  // namespace

int runExport(const RecordOptions& options) { return runRecordCommand(options, exportAll); }

}  // namespace mivo::cli
