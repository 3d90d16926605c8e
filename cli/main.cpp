// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>
#include <filesystem>
#include <ranges>
#include <string>
#include <system_error>
#include <vector>

#include "adapters/system/FreedMemory.h"
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordOptions.h"
#include "cli/report/ReportCommand.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/usage/Usage.h"
#include "host/versions/Versions.h"

namespace mivo::cli {
namespace {

/// Lists a command whose arguments are another program's business.
const CLI::App* addForeign(CLI::App& program, const char* name, const char* description) {
  CLI::App* const command = program.add_subcommand(name, description)->prefix_command();
  command->set_help_flag();  // --help is for that program too
  return command;
}

/// What needs the network is a program of its own beside this one: to load the network's libraries alone takes as long
/// as a whole report.
int becomeNetworkProgram(std::vector<std::string> arguments) {
  std::error_code failure;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", failure);
  const auto program = self.parent_path() / "mivo-roadmap";
  arguments.insert(arguments.begin(), "mivo");
  std::vector<char*> texts;
  texts.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) texts.push_back(argument.data());
  texts.push_back(nullptr);
  ::execv(program.c_str(), texts.data());
  complain(program.string() + ": " + std::generic_category().message(errno));
  return atFault;
}

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

/// Where nothing was asked for: how far the fast has come, and what can be asked.
int greet(const CLI::App& program, const RecordOptions& options) {
  const int status = runStatus(options);
  if (const auto fault = writeOutput('\n' + program.help())) {
    complain(*fault);
    return atFault;
  }
  return status;
}

void parse(CLI::App& program, const std::vector<std::string>& arguments) {
  program.parse(std::vector<std::string>{arguments.rbegin(), arguments.rend()});  // takes them from the end
}

int run(const std::vector<std::string>& arguments) {
  if (const auto fault = closedOutput()) {
    complain(*fault);
    return atFault;
  }
  CLI::App program{"Statistics of intermittent fasting: every figure of a history of fasts and weights.", "mivo"};
  bool isVerbose = false;  // looked at before --version is answered
  CLI::Option* const verbose = program.add_flag("--verbose", isVerbose, "With --version: the libraries and the zones");
  verbose->needs(program.set_version_flag("--version", [&isVerbose] {
    auto details = isVerbose ? host::versionsInUse() : std::vector<host::Version>{};
    if (isVerbose) details.push_back({"CLI11", CLI11_VERSION});
    return host::versionText("mivo " MIVO_VERSION, details);
  }));
  program.require_subcommand(1);
  program.footer("mivo start begins a fast, mivo stop ends it. mivo help COMMAND tells more of each, with examples.");
  ReportOptions reportOptions;
  const CLI::App& report = addReport(program, reportOptions);
  RecordOptions recordOptions;
  const auto recordCommands = addRecordCommands(program, recordOptions);
  const std::array foreign{addForeign(program, "doctor", "Tell what is where, and whether it is sound"),
                           addForeign(program, "roadmap", "List the features that may come, and their votes"),
                           addForeign(program, "vote", "Vote for a feature of the roadmap"),
                           addForeign(program, "unvote", "Take a vote back")};
  program.add_subcommand("help", "Tell what a command can do: mivo help add");  // for the list; it never comes here
  if (arguments.empty()) return greet(program, recordOptions);
  if (const auto wrong = wrongCommand(program, arguments)) {
    complain(*wrong);
    return wrongUsage;
  }
  try {
    parse(program, arguments);
  } catch (const CLI::ParseError& parsed) {
    return answer(program, parsed, hint(program).c_str());
  }
  if (std::ranges::any_of(foreign, [](const CLI::App* command) { return command->parsed(); }))
    return becomeNetworkProgram(arguments);
  for (const auto& [command, runCommand] : recordCommands | std::views::reverse)  // those in a group come first
    if (command->parsed()) return runCommand(recordOptions);
  return report.parsed() ? runReport(reportOptions) : wrongUsage;
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
