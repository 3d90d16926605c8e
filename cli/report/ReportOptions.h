// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <string>

namespace mivo::cli {

/// What stands after `mivo report`, as it was typed; empty where it was not.
struct ReportOptions {
  std::string input, database, fasts, weights;
  std::string range = "week", now = {}, timeZone = {}, calendar = "gregorian", firstWeekday = {}, locale = {};
  std::string count = "days", maxBreakHours = {}, weightUnit = {}, dateOrder = {}, format = "text";
  bool ignoreGoal = false;
};

/// Adds `report` to the commands. `options` must outlive the parsing.
CLI::App& addReport(CLI::App& program, ReportOptions& options);

}  // namespace mivo::cli
