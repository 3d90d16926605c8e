// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "mivo/platform/TaskRunner.h"

namespace mivo::adapters {

/// Runs tasks on a few threads. Destroying it drops the tasks that have not begun and waits for those that have. What a
/// task throws is reported as an issue and ends that task only.
class ThreadPool final : public TaskRunner {
 public:
  /// `threads` is at least 1. Effects mostly wait, for the network or the disk, so the default does not ask how many
  /// cores there are.
  explicit ThreadPool(int threads = 4);
  /// May run inside one of its own tasks, whose dependencies can hold the pool last; it then waits for the other tasks
  /// in the background.
  ~ThreadPool() override;

  void run(std::function<void()> task) const override;

  /// Does at once what destroying does; what is run from then on never begins. On the thread that runs tasks, and
  /// inside none.
  void finish();

 private:
  struct Pool;
  std::unique_ptr<Pool> pool;
};

}  // namespace mivo::adapters
