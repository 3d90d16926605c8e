// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <exception>
#include <ranges>
#include <span>
#include <string>
#include <vector>

#include "adapters/manual/ManualPage.h"
#include "adapters/system/FreedMemory.h"
#include "adapters/system/UserDirectories.h"
#include "cli/completion/Completions.h"
#include "cli/completion/ShellScripts.h"
#include "cli/network/NetworkOptions.h"
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordOptions.h"
#include "cli/report/ReportCommand.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/usage/BecomeProgram.h"
#include "cli/usage/Usage.h"
#include "host/disk/DatabaseFile.h"
#include "host/versions/Versions.h"

namespace mivo::cli {
namespace {

constexpr const char* footer =
    "mivo start begins a fast, mivo stop ends it. mivo help COMMAND tells more of each, with examples.\n\n"
    "Exit status: 0 done, 1 a file or the records stood against it, 2 the command line did.";

/// "mivo weight add --help tells what can": of the command that was asked for, or of the first thing that people want.
std::string hint(const CLI::App& program) {
  std::string name = "mivo";
  const CLI::App* command = &program;
  while (!command->get_subcommands().empty()) {
    command = command->get_subcommands().front();
    name += ' ' + command->get_name();
  }
  return name + " --help tells what can";
}

int print(const std::string& text) {
  const auto fault = writeOutput(text);
  if (fault) complain(*fault);
  return fault ? atFault : 0;
}

/// Where nothing was asked for: how far the fast has come, and what can be asked.
int greet(const CLI::App& program, const RecordOptions& options) {
  const int status = runStatus(options);
  return print('\n' + program.help()) == 0 ? status : atFault;
}

adapters::ManualFacts manualFacts() {
  return {MIVO_VERSION,
          {{host::ownDatabaseFile(), "The fasts and weights, the app's and the command line's"},
           {adapters::appDefaultsFile(), "The settings of the app"}}};
}

/// All that can be typed, and what it is read into.
struct CommandLine {
  CommandLine() {
    program.require_subcommand(1);
    program.footer(footer);
    CLI::Option* const verbose =
        program.add_flag("--verbose", isVerbose, "With --version: the libraries and the zones");
    verbose->needs(program.set_version_flag("--version", [this] { return version(); }));
    program.add_subcommand("help", "Tell what a command can do: mivo help add")->footer("");  // never comes here
    adapters::addManualPage(program, manualFacts());
  }

  std::string version() const {
    auto details = isVerbose ? host::versionsInUse() : std::vector<host::Version>{};
    if (isVerbose) details.push_back({"CLI11", CLI11_VERSION});
    return host::versionText("mivo " MIVO_VERSION, details);
  }

  CLI::App program{"Statistics of intermittent fasting: every figure of a history of fasts and weights.", "mivo"};
  bool isVerbose = false;  // looked at before --version is answered
  ReportOptions reportOptions;
  RecordOptions recordOptions;
  NetworkOptions networkOptions;
  std::string shell;
  const CLI::App& report = addReport(program, reportOptions);
  const std::vector<RecordCommand> recordCommands = addRecordCommands(program, recordOptions);
  const NetworkCommands networkCommands = addNetworkCommands(program, networkOptions);
  const CLI::App& completion = addCompletion(program, shell);
};

/// Runs the command that was parsed.
int runCommand(const CommandLine& line, const std::vector<std::string>& arguments) {
  // To load the network's libraries alone takes as long as a whole report.
  if (line.networkCommands.areParsed()) return becomeProgram("mivo-roadmap", arguments);
  for (const auto& [command, runRecordCommand] : line.recordCommands | std::views::reverse)  // a group's own come first
    if (command->parsed()) return runRecordCommand(line.recordOptions);
  if (line.completion.parsed()) return print(shellScript(line.shell));
  return line.report.parsed() ? runReport(line.reportOptions) : wrongUsage;
}

int run(const std::vector<std::string>& arguments) {
  if (const auto fault = closedOutput()) {
    complain(*fault);
    return atFault;
  }
  CommandLine line;
  if (arguments.empty()) return greet(line.program, line.recordOptions);
  if (arguments.front() == completeOption)
    return print(completionLines(completionsOf(line.program, std::span{arguments}.subspan(1))));
  if (const auto wrong = wrongCommand(line.program, arguments)) {
    complain(*wrong);
    return wrongUsage;
  }
  try {
    line.program.parse(std::vector<std::string>{arguments.rbegin(), arguments.rend()});  // takes them from the end
  } catch (const CLI::ParseError& parsed) {
    return answer(line.program, parsed, hint(line.program).c_str());
  }
  return runCommand(line, arguments);
}

}  // namespace
}  // namespace mivo::cli

int main(int count, char** arguments) {
  mivo::adapters::keepFreedMemory();
  try {
    return mivo::cli::run(mivo::cli::helpAsOption({arguments + 1, arguments + count}));
  } catch (const std::exception& error) {
    mivo::cli::complain(error.what());
    return mivo::cli::atFault;
  }
}
