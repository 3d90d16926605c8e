// SPDX-License-Identifier: MIT
#include "tally/store/Worker.h"

#include <utility>

namespace mivo::tally {

Worker::Worker(Job betweenJobs, std::chrono::milliseconds rest)
    : upkeep(std::move(betweenJobs)), pause(rest), thread([this](const std::stop_token& stop) { work(stop); }) {}

void Worker::run(Job next) {
  {
    const std::lock_guard guard{mutex};
    job = std::move(next);
  }
  wake.notify_one();
}

void Worker::work(const std::stop_token& stop) {
  auto nextUpkeep = std::chrono::steady_clock::now() + pause;
  while (!stop.stop_requested()) {
    Job taken;
    {
      std::unique_lock lock{mutex};
      wake.wait_until(lock, stop, nextUpkeep, [this] { return job != nullptr; });
      taken = std::exchange(job, {});
    }
    if (taken) taken();
    if (std::chrono::steady_clock::now() < nextUpkeep || stop.stop_requested()) continue;
    upkeep();
    nextUpkeep = std::chrono::steady_clock::now() + pause;
  }
}

}  // namespace mivo::tally
