// SPDX-License-Identifier: MIT
#include "mivo/platform/LogOutput.h"

#include <iostream>
#include <mutex>

#include "mivo/platform/Dependencies.h"

namespace mivo {

void logLine(std::string_view line) {
  static std::mutex oneLineAtATime;
  const std::scoped_lock lock{oneLineAtATime};
  const auto context = currentContext();
  if (context && context->log) return context->log->print(line);
  std::cout << line << std::endl;
}

}  // namespace mivo
