// SPDX-License-Identifier: MIT
#include "adapters/system/ThreadPool.h"

#include <algorithm>
#include <boost/asio/post.hpp>
#include <boost/asio/thread_pool.hpp>
#include <cstddef>
#include <exception>
#include <string>
#include <thread>
#include <utility>

#include "mivo/platform/IssueReporting.h"

namespace mivo::adapters {
namespace {

void runReporting(const std::function<void()>& task) {
  try {
    task();
  } catch (const std::exception& error) {
    reportIssue(std::string{"A task failed: "} + error.what());
  }
}

}  // namespace

struct ThreadPool::Pool {
  explicit Pool(int count) : threads{static_cast<std::size_t>(std::max(count, 1))} {}
  boost::asio::thread_pool threads;
};

ThreadPool::ThreadPool(int threads) : pool{std::make_unique<Pool>(threads)} {}

ThreadPool::~ThreadPool() {
  if (!pool) return;
  pool->threads.stop();
  // A thread cannot wait for itself.
  if (pool->threads.get_executor().running_in_this_thread()) std::thread{[last = std::move(pool)] {}}.detach();
}

void ThreadPool::run(std::function<void()> task) const {
  if (pool) boost::asio::post(pool->threads, [task = std::move(task)] { runReporting(task); });
}

void ThreadPool::finish() { pool.reset(); }

}  // namespace mivo::adapters
