// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace mivo::tally {

/// A thread that does one job after the other, so that the event loop waits for none, and at every pause its upkeep.
class Worker {
 public:
  using Job = std::function<void()>;

  explicit Worker(Job upkeep = [] {}, std::chrono::milliseconds pause = std::chrono::hours{1});

  /// The last job must be done. It runs on the worker's thread.
  void run(Job next);

 private:
  void work(const std::stop_token& stop);

  Job upkeep;
  std::chrono::milliseconds pause;
  std::mutex mutex;
  std::condition_variable_any wake;
  Job job;
  std::jthread thread;
};

}  // namespace mivo::tally
