// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <latch>
#include <memory>
#include <mutex>
#include <utility>

#include "adapters/system/ThreadPool.h"
#include "mivo/store/Store.h"
#include "tests/statistics/StatisticsWorld.h"

// Effects on real threads: what the thread sanitizer looks at.
namespace mivo {
namespace {

using Action = StatisticsFeature::Action;
using Destination = StatisticsFeature::Destination;
using Sent = PresentationAction<Destination::Action>;

/// The main thread of the test: runs what any thread posts, until one of them stops it.
class RunLoop final : public MainQueue {
 public:
  void post(std::function<void()> work) const override {
    const std::scoped_lock lock{mutex};
    waiting.push_back(std::move(work));
    hasMore.notify_one();
  }
  void postAfter(Duration, std::function<void()> work) const override { post(std::move(work)); }

  void stop() { isStopped = true; }
  void run() {
    for (isStopped = false; !isStopped;) next()();
  }

 private:
  std::function<void()> next() {
    std::unique_lock lock{mutex};
    hasMore.wait(lock, [this] { return !waiting.empty(); });
    auto work = std::move(waiting.front());
    waiting.pop_front();
    return work;
  }

  mutable std::mutex mutex;
  mutable std::condition_variable hasMore;
  mutable std::deque<std::function<void()>> waiting;
  bool isStopped = false;
};

class Workers : public tests::StatisticsTest {
 protected:
  std::shared_ptr<RunLoop> loop = std::make_shared<RunLoop>();
  std::shared_ptr<const adapters::ThreadPool> pool = std::make_shared<adapters::ThreadPool>(4);
};

TEST_F(Workers, everyAnswerArrivesWhileScreensComeAndGo) {
  constexpr int appearances = 200;
  Store store{emptyState(), StatisticsFeature{}, loop, pool};
  int answers = 0;
  Stamp last = store.state().shouldRequestHealthKitAuthorization.stamp();
  const auto subscription = store.observe([&](const StatisticsFeature::State& state) {
    const Stamp present = state.shouldRequestHealthKitAuthorization.stamp();
    if (std::exchange(last, present) != present && ++answers == appearances) loop->stop();
  });
  for (int appearance = 0; appearance < appearances; ++appearance)
    loop->post([&store] {
      store.send(Action::onAppear{});
      store.send(Action::didTapOpenDonations{});
      store.send(Action::destination{
          Sent{Sent::presented{Destination::Action::donations{DonationsFeature::Action::onAppear{}}}}});
      store.send(Action::requestHealthKitAccess{});
      store.send(Action::destination{Sent::dismiss{}});
    });
  loop->run();
  EXPECT_EQ(answers, appearances);
  EXPECT_FALSE(store.state().destination);
  EXPECT_TRUE(world.dependencies.userDefaults->healthKitSync());
}

struct SlowHealth final : HealthKitClient {
  void shouldRequestAuthorization(std::function<void(bool)> completion) const override {
    begun.count_down();
    storeIsGone.wait();
    completion(true);
  }
  void requestAuthorization(std::function<void()> completion) const override { completion(); }
  mutable std::latch begun{1}, storeIsGone{1};
};

TEST_F(Workers, aTaskMayOutliveItsStore) {
  const auto slow = std::make_shared<const SlowHealth>();
  world.dependencies.healthKitClient = slow;
  const DependencyScope slowly = world.enter();
  auto store = std::make_unique<Store<StatisticsFeature>>(emptyState(), StatisticsFeature{}, loop, pool);
  store->send(Action::onAppear{});
  slow->begun.wait();
  store.reset();
  slow->storeIsGone.count_down();
  pool.reset();  // waits for the task, whose answer is dropped
  loop->post([this] { loop->stop(); });
  loop->run();
}

}  // namespace
}  // namespace mivo
