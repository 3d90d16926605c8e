// SPDX-License-Identifier: MIT
#include "adapters/system/StandardErrorReporter.h"

#include <mutex>

namespace mivo::adapters {

void StandardErrorReporter::report(std::string_view message, const std::source_location& where) const {
  static std::mutex oneLineAtATime;
  const std::scoped_lock lock{oneLineAtATime};
  printIssue(message, where);
}

}  // namespace mivo::adapters
