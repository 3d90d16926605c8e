// SPDX-License-Identifier: MIT
#include "mivo/platform/EventStream.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/HandDriven.h"

namespace mivo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class EventStreamTest : public testing::Test {
 protected:
  auto logging(std::string prefix = "") {
    return [this, prefix](int value) { log.push_back(prefix + std::to_string(value)); };
  }

  std::shared_ptr<const tests::HandDrivenQueue> queue = std::make_shared<tests::HandDrivenQueue>();
  std::vector<std::string> log;
  std::optional<EventStream<int>> stream{std::in_place};
};

TEST_F(EventStreamTest, reachesSubscribersInOrderUntilTheyAreReleased) {
  const Subscription first = stream->subscribe(logging("a"));
  std::optional second{stream->subscribe(logging("b"))};
  stream->send(1);
  second.reset();
  stream->send(2);
  EXPECT_THAT(log, ElementsAre("a1", "b1", "a2"));
}

TEST_F(EventStreamTest, aSubscriberMaySendEndAndReleaseTheStream) {
  Subscription first, second;
  first = stream->subscribe([&](int value) {
    log.push_back("a" + std::to_string(value));
    if (value > 0) return stream->send(value - 1);
    second.end();
    stream.reset();
  });
  second = stream->subscribe(logging("b"));
  stream->send(1);
  EXPECT_THAT(log, ElementsAre("a1", "a0"));
}

TEST_F(EventStreamTest, debouncePassesOnTheLastOfABurst) {
  const Subscription subscription = stream->debounce(10ms, queue).subscribe(logging());
  stream->send(1);
  queue->advance(9ms);
  stream->send(2);
  queue->advance(9ms);
  EXPECT_THAT(log, IsEmpty()) << "each event begins the wait anew";
  queue->advance(1ms);
  EXPECT_THAT(log, ElementsAre("2"));
  stream->send(3);
  queue->advance(1s);
  EXPECT_THAT(log, ElementsAre("2", "3"));
}

TEST_F(EventStreamTest, releasingADebouncedSubscriptionDropsWhatWaits) {
  std::optional subscription{stream->debounce(10ms, queue).subscribe(logging())};
  stream->send(1);
  subscription.reset();
  queue->advance(1s);
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(EventStreamTest, nobodyKeepsASubscriber) {
  const auto model = std::make_shared<int>();
  std::optional subscription{stream->debounce(10ms, queue).subscribe([model](int) {})};
  stream->send(1);
  EXPECT_EQ(model.use_count(), 2);
  subscription.reset();
  stream.reset();
  EXPECT_EQ(model.use_count(), 1) << "the event that still waits holds it";
}

TEST_F(EventStreamTest, emptyEventsAndTwoDebouncesOfOneStream) {
  const EventStream<> voidSubject;
  int quick = 0, slow = 0;
  const Subscription first = voidSubject.debounce(10ms, queue).subscribe([&] { ++quick; });
  const Subscription second = voidSubject.debounce(30ms, queue).subscribe([&] { ++slow; });
  for (int event = 0; event < 3; ++event) {
    voidSubject.send();
    queue->advance(20ms);
  }
  EXPECT_EQ(quick, 3);
  EXPECT_EQ(slow, 0);
  queue->advance(20ms);
  EXPECT_EQ(slow, 1);
}

}  // namespace
}  // namespace mivo
