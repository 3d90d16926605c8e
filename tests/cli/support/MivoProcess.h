// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace mivo::cli {

/// What a run of the program left behind.
struct Ran {
  int status = 0;
  std::string output, errors;
};

/// A folder of its own, gone with the object, in which the built program runs.
class Workplace {
 public:
  Workplace();
  ~Workplace();
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;

  std::filesystem::path file(const std::string& name) const { return folder / name; }
  void write(const std::string& file, std::string_view content) const;

  /// Runs `mivo` with arguments as a shell reads them, in English, in UTC and without colour, whatever the machine's
  /// settings. `environment` goes before it and `redirection` after it.
  Ran run(const std::string& arguments, const std::string& redirection = ">output",
          const std::string& environment = "") const;

  /// The same on a terminal of so many columns; what the terminal shows is its output.
  Ran runOnTerminal(const std::string& arguments, int columns) const;

 private:
  std::string commandLine(const std::string& arguments, const std::string& environment) const;

  std::filesystem::path folder;
};

/// The arguments of a run that is the same every day.
inline const std::string fixedRun = " --now 2026-03-01T12:00:00Z --time-zone Europe/Berlin --locale en-DE ";

/// The path of a shipped history.
std::string sample(std::string_view name);

}  // namespace mivo::cli
