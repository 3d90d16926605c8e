// SPDX-License-Identifier: MIT
#include "mivo/platform/IssueReporting.h"

#include <cstdio>
#include <string>

#include "mivo/platform/Dependencies.h"

namespace mivo {

void reportIssue(std::string_view message, std::source_location where) {
  const auto context = currentContext();
  if (context && context->issueReporter) return context->issueReporter->report(message, where);
  printIssue(message, where);
}

void printIssue(std::string_view message, const std::source_location& where) {
  const std::string_view path = where.file_name();
  std::string line{path.substr(path.find_last_of('/') + 1)};
  line.append(":").append(std::to_string(where.line())).append(": ").append(message).append("\n");
  std::fputs(line.c_str(), stderr);  // streams would bring all that is known of locales into every program
}

}  // namespace mivo
