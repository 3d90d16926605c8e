// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace mivo {

/// Where the lines of a log go.
class LogOutput {
 public:
  virtual ~LogOutput() = default;
  virtual void print(std::string_view line) const = 0;
};

/// Prints a line to the current context's log; without one, on standard output. Lines of several threads do not mix.
void logLine(std::string_view line);

}  // namespace mivo
