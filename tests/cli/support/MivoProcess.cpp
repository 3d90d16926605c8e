// SPDX-License-Identifier: MIT
#include "tests/cli_support/MivoProcess.h"

#include <stdlib.h>
#include <sys/wait.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace mivo::cli {
namespace {

std::string contents(const std::filesystem::path& file) {
  std::ifstream in{file, std::ios::binary};
  return {std::istreambuf_iterator<char>{in}, {}};
}

}  // namespace

Workplace::Workplace() {
  std::string pattern = std::filesystem::temp_directory_path() / "mivo-cli-XXXXXX";
  if (!::mkdtemp(pattern.data())) throw std::runtime_error{"no folder for the test"};
  folder = pattern;
}

Workplace::~Workplace() {
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
}

void Workplace::write(const std::string& file, std::string_view content) const {
  std::ofstream{folder / file, std::ios::binary} << content;
}

Ran Workplace::run(const std::string& arguments, const std::string& redirection, const std::string& environment) const {
  const std::string command = "cd '" + folder.string() +
                              "' && unset LANGUAGE LC_MESSAGES COLUMNS && : >output && export TZ=UTC LC_ALL=C "
                              "HOME=\"$PWD\" XDG_DATA_HOME=\"$PWD\" XDG_CONFIG_HOME=\"$PWD\" NO_COLOR=1 " +
                              environment + " && " MIVO_PROGRAM " " + arguments + " 2>errors " + redirection;
  const int waited = ::system(command.c_str());
  return {WIFEXITED(waited) ? WEXITSTATUS(waited) : -1, contents(folder / "output"), contents(folder / "errors")};
}

std::string sample(std::string_view name) { return MIVO_DATA_FOLDER "/" + std::string{name} + ".json"; }

}  // namespace mivo::cli
