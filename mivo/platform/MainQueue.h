// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "mivo/model/Date.h"

namespace mivo {

/// The host's main thread. What is posted runs there, in order, never inside the call that posts it. Posting is allowed
/// from any thread.
class MainQueue {
 public:
  virtual ~MainQueue() = default;
  virtual void post(std::function<void()> work) const = 0;
  /// Runs the work once that time has passed.
  virtual void postAfter(Duration delay, std::function<void()> work) const = 0;
};

}  // namespace mivo
