// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <exception>

#include "adapters/curl/CurlURLSession.h"
#include "cli/doctor/Doctor.h"
#include "cli/roadmap/RoadmapCommands.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/usage/Usage.h"

namespace mivo::cli {
namespace {

constexpr const char* examples =
    "Examples:\n"
    "  mivo roadmap\n"
    "  mivo roadmap --tally https://tally.example --format json\n"
    "  mivo vote 2\n";

CLI::App& addCommand(CLI::App& program, const char* name, const char* description, RoadmapOptions& options) {
  CLI::App& command = *program.add_subcommand(name, description);
  command.footer(examples);
  command.add_option("--tally", options.tally, "The server of the roadmap and its votes")
      ->type_name("URL")
      ->envname("MIVO_TALLY_URL")
      ->capture_default_str();
  command.add_option("--namespace", options.namespaceName, "Under which the votes are counted")
      ->type_name("NAME")
      ->capture_default_str();
  command.add_option("--locale", options.locale, "The language: de-DE; default: the system's")->type_name("TAG");
  return command;
}

constexpr const char* doctorFooter =
    "Examples:\n"
    "  mivo doctor\n"
    "  mivo doctor --tally https://tally.example --format json\n\n"
    "Exit status: 0 all is sound, 1 something is ill, 2 the command line was at fault.";

CLI::App& addDoctor(CLI::App& program, DoctorOptions& options) {
  CLI::App& doctor = *program.add_subcommand("doctor", "Tell what is where, and whether it is sound");
  doctor.footer(doctorFooter);
  doctor.add_option("--database", options.database, "The history; default: the app's own")->type_name("FILE");
  doctor.add_option("--tally", options.tally, "The server of the votes, to see whether it can be reached")
      ->type_name("URL")
      ->envname("MIVO_TALLY_URL");
  doctor.add_option("--format", options.format, "text or json")
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"text", "json"}))
      ->capture_default_str();
  return doctor;
}

int runDoctor(const DoctorOptions& options) {
  const adapters::CurlURLSession network{{.timeLimit = Duration{5}}};
  const auto findings = examine(options, network);
  if (const auto fault = writeOutput(options.format == "json" ? findingsJson(findings) : findingsText(findings))) {
    complain(*fault);
    return atFault;
  }
  return isSound(findings) ? 0 : atFault;
}

int finish(const Outcome& outcome) {
  if (outcome.warning) complain(*outcome.warning);
  if (const auto fault = writeOutput(outcome.output)) {
    complain(*fault);
    return atFault;
  }
  return outcome.status;
}

int run(int count, const char* const* arguments) {
  if (const auto fault = closedOutput()) {
    complain(*fault);
    return atFault;
  }
  CLI::App program{"The features of Mivo that may come, and the votes for them.", "mivo"};
  program.require_subcommand(1);
  RoadmapOptions options;
  CLI::App& list = addCommand(program, "roadmap", "List the features that may come, and their votes", options);
  list.add_option("--format", options.format, "text or json")
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"text", "json"}))
      ->capture_default_str();
  CLI::App& vote = addCommand(program, "vote", "Vote for a feature of the roadmap", options);
  CLI::App& unvote = addCommand(program, "unvote", "Take a vote back", options);
  for (CLI::App* command : {&vote, &unvote})
    command->add_option("FEATURE", options.feature, "The feature's id, as mivo roadmap shows it")->required();
  DoctorOptions doctorOptions;
  const CLI::App& doctor = addDoctor(program, doctorOptions);
  try {
    program.parse(count, arguments);
  } catch (const CLI::ParseError& parsed) {
    return answer(program, parsed, "mivo roadmap --help tells what can");
  }
  if (doctor.parsed()) return runDoctor(doctorOptions);
  const auto dependencies = roadmapDependencies(options);
  if (!dependencies) {
    complain(dependencies.error());
    return wrongUsage;
  }
  if (list.parsed()) return finish(listRoadmap(options, *dependencies));
  return finish(sendVote(vote.parsed(), options, *dependencies));
}

}  // namespace
}  // namespace mivo::cli

int main(int count, char** arguments) {
  try {
    return mivo::cli::run(count, arguments);
  } catch (const std::exception& error) {
    mivo::cli::complain(error.what());
    return mivo::cli::atFault;
  }
}
