// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <exception>

#include "adapters/curl/CurlURLSession.h"
#include "cli/doctor/Doctor.h"
#include "cli/network/NetworkOptions.h"
#include "cli/roadmap/RoadmapCommands.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/usage/Usage.h"

namespace mivo::cli {
namespace {

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
  NetworkOptions options;
  const NetworkCommands commands = addNetworkCommands(program, options);
  try {
    program.parse(count, arguments);
  } catch (const CLI::ParseError& parsed) {
    return answer(program, parsed, "mivo roadmap --help tells what can");
  }
  if (commands.doctor->parsed()) return runDoctor(options.doctor);
  const auto dependencies = roadmapDependencies(options.roadmap);
  if (!dependencies) {
    complain(dependencies.error());
    return wrongUsage;
  }
  if (commands.roadmap->parsed()) return finish(listRoadmap(options.roadmap, *dependencies));
  return finish(sendVote(commands.vote->parsed(), options.roadmap, *dependencies));
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
