// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace mivo {

/// The place where effects run: a thread pool in an app, a hand-driven list in tests. Never inside the call.
/// A task keeps the main queue alive that its answers go to: whoever ends without having run it drops it.
class TaskRunner {
 public:
  virtual ~TaskRunner() = default;
  virtual void run(std::function<void()> task) const = 0;
};

}  // namespace mivo
