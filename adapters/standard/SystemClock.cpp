// SPDX-License-Identifier: MIT
#include "adapters/standard/SystemClock.h"

#include <chrono>

namespace mivo::adapters {

Date SystemClock::now() const { return std::chrono::system_clock::now(); }

}  // namespace mivo::adapters
