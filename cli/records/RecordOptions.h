// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "cli/usage/Choices.h"

namespace mivo::cli {

/// What `export --what` can choose.
enum class What { everything, fasts, weights };
inline constexpr std::array<Choice<What>, 3> exportedLists{
    {{"", What::everything}, {"fasts", What::fasts}, {"weights", What::weights}}};

/// What stands after a command that keeps the history, as it was typed; empty or missing where it was not.
struct RecordOptions {
  std::string id, weight, to, what, which, folder, newFolder, range = "week";
  std::vector<std::string> files;  ///< to import
  std::optional<std::string> at, start, end, goalHours, note;
  struct {
    std::string dateOrder, weightUnit;
  } ambiguities;  ///< what files leave open
  bool isRunning = false, takesLines = false, isForced = false, isDryRun = false, takesSettings = false,
       withWeights = false, isUsualFolder = false;
  std::string database, locale, timeZone, format = "text";
};

/// A command and what runs it; the answer is the exit status.
struct RecordCommand {
  const CLI::App* parsed;
  int (*run)(const RecordOptions& options);
};

/// Adds the commands; one that is a group too stands before those in it. `options` must outlive the parsing.
std::vector<RecordCommand> addRecordCommands(CLI::App& program, RecordOptions& options);

}  // namespace mivo::cli
