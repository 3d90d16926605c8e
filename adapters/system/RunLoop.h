// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "mivo/platform/MainQueue.h"

namespace mivo::adapters {

/// The main queue of a program that has no event loop of its own, such as the command line. The thread that calls `run`
/// is the main thread.
///
///     RunLoop loop;
///     loop.post([&] { work(); loop.stop(); });
///     loop.run();
///
/// Thread: `post`, `postAfter` and `stop` from any, `run` from one. What is still waiting when the loop is destroyed is
/// dropped.
class RunLoop final : public MainQueue {
 public:
  RunLoop();
  ~RunLoop() override;

  void post(std::function<void()> work) const override;
  /// A delay that is not above zero, or not a number, is none.
  void postAfter(Duration delay, std::function<void()> work) const override;

  /// Runs what is posted until `stop` was called; what a piece of work throws leaves through here, and the rest stays
  /// posted.
  void run();
  /// Lets `run` return after the work that it is at; called ahead of `run`, it makes that return at once.
  void stop() const;

 private:
  struct Loop;
  std::unique_ptr<Loop> loop;
};

}  // namespace mivo::adapters
