// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <array>
#include <optional>
#include <string>

namespace mivo::app {

/// The pages and sheets that the window can present by name.
inline constexpr std::array<const char*, 28> screens{
    "statistics", "badges",     "milestones",   "streaks",     "roadmap",    "feedback", "donations",
    "overlaps",   "goalWeight", "weights",      "editWeight",  "date",       "table",    "fasting",
    "editFast",   "addFast",    "fastGoal",     "fastStart",   "fastMenu",   "months",   "settings",
    "cards",      "about",      "firstWeekday", "defaultGoal", "weightUnit", "language", "appearance"};

/// What stands after `mivo-app`, as it was typed.
struct Options {
  std::string database = {};  ///< a file; the user's own without one
  std::string sample = {};    ///< a snapshot, shown from a database and settings of its own that go with the program
  std::string locale = {}, now = {}, timeZone = {};
  std::string tally = "http://127.0.0.1:8787", donations = {}, namespaceName = "mivo";
  std::string feedback = {};  ///< a mail address
  std::string picture = {};   ///< the file to draw the window into, instead of showing it
  std::string size = {};      ///< as it was last without one
  double scale = 1;
  bool dark = false, light = false, mirrored = false, whole = false;
  std::optional<double> textScale = {};
  std::string tab = {};     ///< the running fast's, or the last one
  std::string screen = {};  ///< what is open over the tab
};

/// Lists them for the parser and for --help.
void addOptions(CLI::App& program, Options& options);

}  // namespace mivo::app
