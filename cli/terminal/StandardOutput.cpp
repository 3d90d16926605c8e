// SPDX-License-Identifier: MIT
#include "cli/terminal/StandardOutput.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>

namespace mivo::cli {
namespace {

std::string lastFault() { return "standard output: " + std::generic_category().message(errno); }

}  // namespace

std::optional<std::string> closedOutput() {
  return ::fcntl(STDOUT_FILENO, F_GETFD) < 0 ? std::optional{lastFault()} : std::nullopt;
}

std::optional<int> outputWidth() {
  constexpr int usual = 80;  // of a terminal that does not say
  if (::isatty(STDOUT_FILENO) != 1) return std::nullopt;
  winsize size{};
  return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

std::optional<std::string> writeOutput(std::string_view text) {
  std::signal(SIGPIPE, SIG_IGN);  // a reader that went away is a fault like any other
  while (!text.empty()) {
    const ssize_t count = ::write(STDOUT_FILENO, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return lastFault();
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return std::nullopt;
}

void complain(std::string_view sentence) {
  const std::string line = "mivo: " + std::string{sentence} + '\n';
  [[maybe_unused]] const ssize_t count = ::write(STDERR_FILENO, line.data(), line.size());  // nobody left to tell
}

}  // namespace mivo::cli
