// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <exception>
#include <string>

#include "cli/report/ReportCommand.h"
#include "cli/terminal/StandardOutput.h"

namespace mivo::cli {
namespace {

constexpr int atFault = 1, wrongUsage = 2;

/// Help and version are answers; anything else that the parser throws is a command line that it does not understand.
int answer(const CLI::App& program, const CLI::ParseError& parsed) {
  std::string text;
  if (parsed.get_exit_code() == 0) {
    std::ostringstream out, unused;
    program.exit(parsed, out, unused);
    const auto fault = writeOutput(out.str());
    if (fault) complain(*fault);
    return fault ? atFault : 0;
  }
  std::string sentence = parsed.what();
  sentence.resize(std::min(sentence.find('\n'), sentence.size()));
  complain(sentence + " (mivo report --help tells what can)");
  return wrongUsage;
}

int run(int count, const char* const* arguments) {
  if (const auto fault = closedOutput()) {
    complain(*fault);
    return atFault;
  }
  CLI::App program{"Statistics of intermittent fasting: every figure of a history of fasts and weights.", "mivo"};
  program.set_version_flag("--version", "mivo " MIVO_VERSION);
  program.require_subcommand(1);
  ReportOptions reportOptions;
  const CLI::App& report = addReport(program, reportOptions);
  try {
    program.parse(count, arguments);
  } catch (const CLI::ParseError& parsed) {
    return answer(program, parsed);
  }
  return report.parsed() ? runReport(reportOptions) : wrongUsage;
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
