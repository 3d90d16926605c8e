// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <optional>
#include <string>

namespace mivo::app {

/// What stands after `mivo-app`, as it was typed.
struct Options {
  std::string database = {};  ///< a file; the user's own without one
  std::string sample = {};    ///< a snapshot, shown from a database and settings of its own that go with the program
  std::string locale = {}, now = {}, timeZone = {};
  std::string tally = "http://127.0.0.1:8787", donations = {}, namespaceName = "mivo";
  std::string feedback = {};  ///< a mail address
  std::string picture = {};   ///< the file to draw the window into, instead of showing it
  std::string printed = {};   ///< the file to print the statistics into
  bool withWeights = false;   ///< on what is printed
  std::string range = {};     ///< of the statistics: the raw value of a `TimeRange`
  std::string size = {};      ///< as it was last without one
  double scale = 1;
  bool dark = false, light = false, mirrored = false, whole = false;
  std::optional<double> textScale = {};
  std::string tab = {};     ///< the running fast's, or the last one
  std::string screen = {};  ///< what is open over the tab: the raw value of a `host::Screen`
};

/// What is printed is a picture too: the statistics, whole, in light colours and twice as sharp, at the width of a
/// page. What was asked for otherwise stays.
Options asPrinted(Options options);

/// Lists them for the parser and for --help.
void addOptions(CLI::App& program, Options& options);

}  // namespace mivo::app
