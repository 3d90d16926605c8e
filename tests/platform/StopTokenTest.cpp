// SPDX-License-Identifier: MIT
#include "mivo/platform/StopToken.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <latch>
#include <optional>
#include <thread>

#include "tests/support/Threads.h"

namespace mivo {
namespace {

TEST(StopToken, tellsOfTheFirstRequestAndOutlivesItsSource) {
  EXPECT_FALSE(StopToken{}.stopRequested());
  std::optional<StopSource> source{std::in_place}, other{std::in_place};
  StopSource copy = *source;
  const StopToken token = source->token(), another = other->token();
  EXPECT_FALSE(token.stopRequested());
  EXPECT_TRUE(copy.requestStop());
  EXPECT_FALSE(source->requestStop()) << "it was requested before";
  EXPECT_TRUE(source->stopRequested());
  source.reset();
  other.reset();
  EXPECT_TRUE(token.stopRequested());
  EXPECT_FALSE(another.stopRequested()) << "nobody asked";
}

TEST(StopToken, callsEachCallbackOnceWhereItIsRequested) {
  StopSource source;
  int early = 0, late = 0, gone = 0, never = 0;
  std::thread::id where;
  const StopCallback nobodyAsks{StopToken{}, [&] { ++never; }};
  {
    const StopCallback first{source.token(), [&] {
                               ++early;
                               where = std::this_thread::get_id();
                             }};
    {
      const StopCallback ended{source.token(), [&] { ++gone; }};
    }
    std::thread{[&] { source.requestStop(); }}.join();
    EXPECT_NE(where, std::this_thread::get_id());
    EXPECT_NE(where, std::thread::id{});
    source.requestStop();
    const StopCallback tooLate{source.token(), [&] { ++late; }};
    EXPECT_EQ(late, 1) << "at once";
  }
  EXPECT_EQ((std::array{early, late, gone, never}), (std::array{1, 1, 0, 0}));
}

TEST(StopToken, aCallbackMayEndItselfAnotherAndTheSource) {
  std::optional<StopSource> source{std::in_place};
  std::optional<StopCallback> first, second;
  int calls = 0;
  const auto endAll = [&] {
    ++calls;
    first.reset();
    second.reset();
    source.reset();
  };
  first.emplace(source->token(), endAll);
  second.emplace(source->token(), endAll);
  EXPECT_TRUE(source->requestStop());
  EXPECT_EQ(calls, 1);
}

TEST(StopToken, endingACallbackWaitsWhileItRunsElsewhere) {
  for (int round = 0; round < 20; ++round) {
    StopSource source;
    std::latch begun{1}, isEnding{1};
    bool hasEnded = false;  // neither atomic nor locked: the thread sanitizer sees whether the end is waited for
    std::optional<StopCallback> callback;
    callback.emplace(source.token(), [&] {
      begun.count_down();
      isEnding.wait();
      hasEnded = true;
    });
    std::thread requests{[&] { source.requestStop(); }};
    begun.wait();
    isEnding.count_down();
    callback.reset();
    EXPECT_TRUE(hasEnded);
    requests.join();
  }
}

TEST(StopToken, oneOfManyRequestsIsTheFirstAndPublishesWhatWasWritten) {
  for (int round = 0; round < 20; ++round) {
    StopSource source;
    std::atomic<int> firsts = 0, calls = 0;
    int written = 0;
    const StopCallback callback{source.token(), [&] { ++calls; }};
    {
      tests::Threads threads;
      for (int reader = 0; reader < 2; ++reader)
        threads.start([&, token = source.token()] {
          while (!token.stopRequested()) std::this_thread::yield();
          EXPECT_EQ(written, 7);
        });
      written = 7;
      for (int requester = 0; requester < 3; ++requester)
        threads.start([&, source]() mutable { firsts += source.requestStop() ? 1 : 0; });
    }
    EXPECT_EQ(firsts, 1);
    EXPECT_EQ(calls, 1);
  }
}

TEST(StopToken, callbacksComeAndGoWhileAStopIsRequested) {
  StopSource source;
  std::latch begun{4};
  tests::Threads threads;
  for (int thread = 0; thread < 3; ++thread)
    threads.start([&] {
      for (int turn = 0; turn < 500; ++turn) {
        int calls = 0;
        const bool wasRequested = source.stopRequested();
        {
          const StopCallback callback{source.token(), [&] { ++calls; }};
        }
        EXPECT_TRUE(calls == 1 || (calls == 0 && !wasRequested));
        if (turn == 100) begun.arrive_and_wait();
      }
    });
  begun.arrive_and_wait();
  source.requestStop();
}

}  // namespace
}  // namespace mivo
