// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <array>
#include <string>

#include "cli/usage/Choices.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/model/TimeRange.h"

namespace mivo::cli {

/// What stands after `mivo report`, as it was typed; empty where it was not.
struct ReportOptions {
  std::string input, database, fasts, weights;
  std::string range = "week", now = {}, timeZone = {}, calendar = "gregorian", firstWeekday = {}, locale = {};
  std::string count = "days", maxBreakHours = {}, weightUnit = {}, dateOrder = {}, format = "text";
  bool ignoreGoal = false;
};

/// What `--count` means.
inline constexpr std::array<Choice<StreakSettings::CountingEntity>, 2> countingEntities{
    {{"days", StreakSettings::CountingEntity::days}, {"fasts", StreakSettings::CountingEntity::fasts}}};

/// Adds `report` to the commands. `options` must outlive the parsing.
CLI::App& addReport(CLI::App& program, ReportOptions& options);

}  // namespace mivo::cli
