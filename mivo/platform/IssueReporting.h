// SPDX-License-Identifier: MIT
#pragma once

#include <source_location>
#include <string_view>

namespace mivo {

/// Where runtime issues go: faults of a caller that the program survives.
class IssueReporter {
 public:
  virtual ~IssueReporter() = default;
  virtual void report(std::string_view message, const std::source_location& where) const = 0;
};

/// Reports a runtime issue to the current context's reporter and goes on; without one, as a line on standard error:
/// "Streaks.cpp:40: no date".
void reportIssue(std::string_view message, std::source_location where = std::source_location::current());

/// Prints that line on standard error.
void printIssue(std::string_view message, const std::source_location& where);

}  // namespace mivo
