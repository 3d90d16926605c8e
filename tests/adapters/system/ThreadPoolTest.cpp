// SPDX-License-Identifier: MIT
#include "adapters/system/ThreadPool.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <memory>
#include <optional>
#include <stdexcept>
#include <thread>

namespace mivo::adapters {
namespace {

TEST(ThreadPool, runsTasksAtOnceBesideTheCaller) {
  const ThreadPool pool{3};
  std::latch allAreRunning{4};
  std::atomic<int> onThisThread = 0;
  for (int task = 0; task < 3; ++task)
    pool.run([&, caller = std::this_thread::get_id()] {
      onThisThread += std::this_thread::get_id() == caller;
      allAreRunning.arrive_and_wait();
    });
  allAreRunning.arrive_and_wait();
  EXPECT_EQ(onThisThread, 0);
}

TEST(ThreadPool, waitsForWhatRuns) {
  std::latch isRunning{1}, mayEnd{1};
  std::atomic<bool> didEnd = false;
  std::optional<ThreadPool> pool{1};
  pool->run([&] {
    isRunning.count_down();
    mayEnd.wait();
    didEnd = true;
  });
  isRunning.wait();
  std::thread destroys{[&] { pool.reset(); }};
  mayEnd.count_down();
  destroys.join();
  EXPECT_TRUE(didEnd);
}

TEST(ThreadPool, goesOnAfterATaskThatThrows) {
  const ThreadPool pool{1};
  std::latch ran{1};
  testing::internal::CaptureStderr();
  pool.run([] { throw std::runtime_error{"disk full"}; });
  pool.run([&] { ran.count_down(); });
  ran.wait();
  EXPECT_NE(testing::internal::GetCapturedStderr().find("A task failed: disk full"), std::string::npos);
}

TEST(ThreadPool, mayBeReleasedLastByItsOwnTaskAndDropsTheRest) {
  std::latch mayRelease{1}, isDropped{1};
  std::atomic<bool> didRunTheRest = false;
  auto pool = std::make_shared<ThreadPool>(1);
  ThreadPool& running = *pool;
  running.run([&mayRelease, last = std::move(pool)]() mutable {
    mayRelease.wait();
    last.reset();
  });
  const auto dropped = [&isDropped](int*) { isDropped.count_down(); };
  running.run([&didRunTheRest, rest = std::shared_ptr<int>{nullptr, dropped}] { didRunTheRest = true; });
  mayRelease.count_down();
  isDropped.wait();
  EXPECT_FALSE(didRunTheRest);
}

TEST(ThreadPool, finishesThoughItsOwnTasksHoldIt) {
  std::latch isRunning{1}, mayEnd{1};
  std::atomic<bool> didEnd = false, didBeginAfterwards = false;
  std::weak_ptr<ThreadPool> held;
  {
    const auto pool = std::make_shared<ThreadPool>(1);
    held = pool;
    pool->run([&, pool] {
      isRunning.count_down();
      mayEnd.wait();
      didEnd = true;
    });
    pool->run([pool] {});
    isRunning.wait();
    std::thread finishes{[&] { pool->finish(); }};
    mayEnd.count_down();
    finishes.join();
    EXPECT_TRUE(didEnd);
    pool->run([&] { didBeginAfterwards = true; });
  }
  EXPECT_TRUE(held.expired());
  EXPECT_FALSE(didBeginAfterwards);
}

}  // namespace
}  // namespace mivo::adapters
