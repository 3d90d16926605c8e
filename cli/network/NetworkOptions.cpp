// SPDX-License-Identifier: MIT
#include "cli/network/NetworkOptions.h"

#include <CLI/CLI.hpp>

#include "cli/usage/Choices.h"

namespace mivo::cli {
namespace {

constexpr const char* roadmapExamples =
    "Examples:\n"
    "  mivo roadmap\n"
    "  mivo roadmap --tally https://tally.example --format json\n"
    "  mivo vote 2\n";

constexpr const char* doctorExamples =
    "Examples:\n"
    "  mivo doctor\n"
    "  mivo doctor --tally https://tally.example --format json\n\n"
    "Exit status: 0 all is sound, 1 something is ill, 2 the command line was at fault.";

void addCheckedFormat(CLI::App& command, std::string& format) {
  addFormat(command, format)->check(CLI::IsMember(namesOf(formats)).description(""));  // help has the names already
}

CLI::Option* addTally(CLI::App& command, std::string& tally, const char* description) {
  return command.add_option("--tally", tally, description)->type_name("URL")->envname("MIVO_TALLY_URL");
}

CLI::App& addCommand(CLI::App& program, const char* name, const char* description, RoadmapOptions& options) {
  CLI::App& command = *program.add_subcommand(name, description);
  command.footer(roadmapExamples);
  addTally(command, options.tally, "The server of the roadmap and its votes")->capture_default_str();
  command.add_option("--namespace", options.namespaceName, "Under which the votes are counted")
      ->type_name("NAME")
      ->capture_default_str();
  command.add_option("--locale", options.locale, "The language: de-DE; default: the system's")->type_name("TAG");
  return command;
}

CLI::App& addVote(CLI::App& program, const char* name, const char* description, RoadmapOptions& options) {
  CLI::App& command = addCommand(program, name, description, options);
  command.add_option("FEATURE", options.feature, "The feature's id, as mivo roadmap shows it")->required();
  return command;
}

CLI::App& addDoctor(CLI::App& program, DoctorOptions& options) {
  CLI::App& doctor = *program.add_subcommand("doctor", "Tell what is where, and whether it is sound");
  doctor.footer(doctorExamples);
  doctor.add_option("--database", options.database, "The history; default: the app's own")->type_name("FILE");
  addTally(doctor, options.tally, "The server of the votes, to see whether it can be reached");
  addCheckedFormat(doctor, options.format);
  return doctor;
}

}  // namespace

NetworkCommands addNetworkCommands(CLI::App& program, NetworkOptions& options) {
  const CLI::App& doctor = addDoctor(program, options.doctor);
  CLI::App& roadmap =
      addCommand(program, "roadmap", "List the features that may come, and their votes", options.roadmap);
  addCheckedFormat(roadmap, options.roadmap.format);
  const CLI::App& vote = addVote(program, "vote", "Vote for a feature of the roadmap", options.roadmap);
  const CLI::App& unvote = addVote(program, "unvote", "Take a vote back", options.roadmap);
  return {&doctor, &roadmap, &vote, &unvote};
}

}  // namespace mivo::cli
