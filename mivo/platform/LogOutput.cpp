// SPDX-License-Identifier: MIT
#include "mivo/platform/LogOutput.h"

#include <cstdio>
#include <mutex>
#include <string>

#include "mivo/platform/Dependencies.h"

namespace mivo {

void logLine(std::string_view line) {
  static std::mutex oneLineAtATime;
  const std::scoped_lock lock{oneLineAtATime};
  const auto context = currentContext();
  if (context && context->log) return context->log->print(line);
  std::puts(std::string{line}.c_str());
  std::fflush(stdout);
}

}  // namespace mivo
