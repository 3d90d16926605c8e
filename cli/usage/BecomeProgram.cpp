// SPDX-License-Identifier: MIT
#include "cli/usage/BecomeProgram.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "cli/terminal/StandardOutput.h"
#include "cli/usage/Usage.h"

namespace mivo::cli {
namespace {

namespace fs = std::filesystem;

// A build leaves each program in the folder of its room.
fs::path programNamed(const std::string& name) {
  std::error_code failure;
  const fs::path here = fs::read_symlink("/proc/self/exe", failure).parent_path();
  const fs::path beside = here / name, inBuild = here.parent_path() / "app/program" / name;
  return !fs::exists(beside, failure) && fs::exists(inBuild, failure) ? inBuild : beside;
}

}  // namespace

int becomeProgram(const std::string& name, std::vector<std::string> arguments) {
  const fs::path program = programNamed(name);
  arguments.insert(arguments.begin(), "mivo");
  std::vector<char*> texts;
  texts.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) texts.push_back(argument.data());
  texts.push_back(nullptr);
  ::execv(program.c_str(), texts.data());
  complain(program.string() + ": " + std::generic_category().message(errno));
  return atFault;
}

}  // namespace mivo::cli
