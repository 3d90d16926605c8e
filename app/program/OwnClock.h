// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "mivo/platform/DateGenerator.h"

namespace mivo::app {

/// A clock that was set to another time when the program started, and goes on from there or stands still. Nobody moves
/// it: where the machine's clock is set anew, this one goes on.
class OwnClock final : public DateGenerator {
 public:
  OwnClock(Date instant, bool standsStill) : start{instant}, stands{standsStill} {}
  Date now() const override { return stands ? start : start + Duration{std::chrono::steady_clock::now() - begun}; }

 private:
  Date start;
  bool stands;
  std::chrono::steady_clock::time_point begun = std::chrono::steady_clock::now();
};

}  // namespace mivo::app
