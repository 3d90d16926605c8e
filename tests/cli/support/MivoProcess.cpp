// SPDX-License-Identifier: MIT
#include "tests/cli_support/MivoProcess.h"

#include <pty.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
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

std::string Workplace::commandLine(const std::string& arguments, const std::string& environment) const {
  return "cd '" + folder.string() +
         "' && unset LANGUAGE LC_MESSAGES COLUMNS && : >output && export TZ=UTC LC_ALL=C "
         "HOME=\"$PWD\" XDG_DATA_HOME=\"$PWD\" XDG_CONFIG_HOME=\"$PWD\" NO_COLOR=1 " +
         environment + " && " MIVO_PROGRAM " " + arguments + " 2>errors ";
}

Ran Workplace::run(const std::string& arguments, const std::string& redirection, const std::string& environment) const {
  const int waited = ::system((commandLine(arguments, environment) + redirection).c_str());
  return {WIFEXITED(waited) ? WEXITSTATUS(waited) : -1, contents(folder / "output"), contents(folder / "errors")};
}

Ran Workplace::runOnTerminal(const std::string& arguments, int columns) const {
  const std::string command = commandLine(arguments, "");
  const winsize size{.ws_row = 24, .ws_col = static_cast<unsigned short>(columns), .ws_xpixel = 0, .ws_ypixel = 0};
  int terminal = -1;
  const pid_t child = ::forkpty(&terminal, nullptr, nullptr, &size);
  if (child < 0) throw std::runtime_error{"no terminal for the test"};
  if (child == 0) {
    ::execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
    ::_exit(127);
  }
  std::string shown;
  std::array<char, 4096> part;
  for (ssize_t count = 0; (count = ::read(terminal, part.data(), part.size())) > 0;)  // an error once it is closed
    shown.append(part.data(), static_cast<std::size_t>(count));
  ::close(terminal);
  int waited = 0;
  ::waitpid(child, &waited, 0);
  std::erase(shown, '\r');
  return {WIFEXITED(waited) ? WEXITSTATUS(waited) : -1, shown, contents(folder / "errors")};
}

std::string sample(std::string_view name) { return MIVO_DATA_FOLDER "/" + std::string{name} + ".json"; }

}  // namespace mivo::cli
