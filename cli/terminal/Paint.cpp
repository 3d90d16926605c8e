// SPDX-License-Identifier: MIT
#include "cli/terminal/Paint.h"

#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdlib>

namespace mivo::cli {
namespace {

/// Parameters of ECMA-48's "select graphic rendition", one an ink.
constexpr std::array<std::string_view, 12> renditions{"",   "1",  "2",  "1;33", "34", "33",
                                                      "36", "94", "32", "93",   "31", "35"};

std::string_view environment(const char* name) {
  const char* const value = std::getenv(name);
  return value ? value : "";
}

}  // namespace

Paint Paint::forStandardOutput() {
  return Paint{::isatty(STDOUT_FILENO) == 1 && environment("NO_COLOR").empty() && environment("TERM") != "dumb"};
}

std::string Paint::operator()(Ink ink, std::string_view text) const {
  const std::string_view rendition = renditions[static_cast<std::size_t>(ink)];
  if (!isColoured || rendition.empty() || text.empty()) return std::string{text};
  return "\x1B[" + std::string{rendition} + 'm' + std::string{text} + "\x1B[0m";
}

}  // namespace mivo::cli
