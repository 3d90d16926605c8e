// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/system/SystemClock.h"

namespace mivo::app {

/// A clock that was set to another time when the program started, and goes on from there or stands still.
class OwnClock final : public DateGenerator {
 public:
  OwnClock(Date instant, bool standsStill)
      : start{instant}, begun{adapters::SystemClock{}.now()}, stands{standsStill} {}
  Date now() const override { return stands ? start : start + (adapters::SystemClock{}.now() - begun); }

 private:
  Date start, begun;
  bool stands;
};

}  // namespace mivo::app
