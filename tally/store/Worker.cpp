// SPDX-License-Identifier: MIT
#include "tally/store/Worker.h"

#include <utility>

namespace mivo::tally {

Worker::Worker(Job upkeep, std::chrono::milliseconds pause)
    : upkeep_(std::move(upkeep)), pause_(pause), thread_([this](const std::stop_token& stop) { work(stop); }) {}

void Worker::run(Job job) {
  {
    const std::lock_guard guard{mutex_};
    job_ = std::move(job);
  }
  wake_.notify_one();
}

void Worker::work(const std::stop_token& stop) {
  auto nextUpkeep = std::chrono::steady_clock::now() + pause_;
  while (!stop.stop_requested()) {
    Job job;
    {
      std::unique_lock lock{mutex_};
      wake_.wait_until(lock, stop, nextUpkeep, [this] { return job_ != nullptr; });
      job = std::exchange(job_, {});
    }
    if (job) job();
    if (std::chrono::steady_clock::now() < nextUpkeep || stop.stop_requested()) continue;
    upkeep_();
    nextUpkeep = std::chrono::steady_clock::now() + pause_;
  }
}

}  // namespace mivo::tally
