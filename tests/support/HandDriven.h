// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include "mivo/model/Date.h"
#include "mivo/platform/MainQueue.h"
#include "mivo/platform/TaskRunner.h"

namespace mivo::tests {

/// A main queue whose work runs when the test says so. Posting is allowed from any thread.
class HandDrivenQueue final : public MainQueue {
 public:
  void post(std::function<void()> work) const override;
  void postAfter(Duration delay, std::function<void()> work) const override;

  std::size_t count() const;
  /// Runs the oldest work; false where there was none.
  bool runOne() const;
  /// Runs until nothing is left, what is posted meanwhile included.
  void runAll() const;
  /// Lets time pass: posts the delayed work that is due by then, and runs all.
  void advance(Duration time) const;
  void clear() const;

 private:
  struct Delayed {
    Duration due;
    std::function<void()> work;
  };

  mutable std::mutex mutex;
  mutable std::deque<std::function<void()>> works;
  mutable std::vector<Delayed> delayed;  // in order of posting
  mutable Duration passed{0};
};

/// A place for tasks that runs them, one after the other, when the test says so.
class HandDrivenTasks final : public TaskRunner {
 public:
  void run(std::function<void()> task) const override { tasks.push_back(std::move(task)); }

  std::size_t count() const { return tasks.size(); }
  void runAll() const;
  void clear() const { tasks.clear(); }

 private:
  mutable std::deque<std::function<void()>> tasks;
};

}  // namespace mivo::tests
