// SPDX-License-Identifier: MIT
#include "adapters/system/RunLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

namespace mivo::adapters {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(RunLoop, runsInOrderAndNeverInsideTheCallThatPosts) {
  RunLoop loop;
  std::vector<int> ran;
  loop.post([&] {
    loop.post([&] { ran.push_back(3); });
    loop.post([&] { loop.stop(); });
    ran.push_back(1);
  });
  loop.post([&] { ran.push_back(2); });
  EXPECT_TRUE(ran.empty());
  loop.run();
  EXPECT_THAT(ran, ElementsAre(1, 2, 3));
}

TEST(RunLoop, waitsForTheDelayAndTakesTheEarlierOneFirst) {
  RunLoop loop;
  std::vector<int> ran;
  const auto begin = std::chrono::steady_clock::now();
  loop.postAfter(20ms, [&] {
    ran.push_back(20);
    loop.stop();
  });
  loop.postAfter(5ms, [&] { ran.push_back(5); });
  loop.postAfter(Duration{-1}, [&] { ran.push_back(0); });
  loop.postAfter(Duration{std::numeric_limits<double>::infinity()}, [&] { ran.push_back(-1); });
  loop.run();
  EXPECT_GE(std::chrono::steady_clock::now() - begin, 20ms);
  EXPECT_THAT(ran, ElementsAre(0, 5, 20));
}

TEST(RunLoop, runsWhatOtherThreadsPostOnItsOwn) {
  RunLoop loop;
  std::thread::id ranOn;
  const std::jthread other{[&] {
    loop.post([&] {
      ranOn = std::this_thread::get_id();
      loop.stop();
    });
  }};
  loop.run();
  EXPECT_EQ(ranOn, std::this_thread::get_id());
}

TEST(RunLoop, goesOnAfterAStopAndAfterAnError) {
  RunLoop loop;
  std::vector<int> ran;
  loop.stop();
  loop.run();
  loop.post([] { throw std::runtime_error{"broken"}; });
  loop.post([&] {
    ran.push_back(1);
    loop.stop();
  });
  EXPECT_THROW(loop.run(), std::runtime_error);
  loop.run();
  EXPECT_THAT(ran, ElementsAre(1));
}

TEST(RunLoop, dropsWhatStillWaits) {
  const auto held = std::make_shared<int>();
  {
    const RunLoop loop;
    loop.post([held] {});
    loop.postAfter(1h, [held] {});
  }
  EXPECT_EQ(held.use_count(), 1);
}

}  // namespace
}  // namespace mivo::adapters
