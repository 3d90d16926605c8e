// SPDX-License-Identifier: MIT
#include "tally/store/OperationQueue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::tally {
namespace {

// A store whose batches the test finishes by hand.
class HandDrivenStore final : public CounterStore {
 public:
  std::optional<std::int64_t> known(std::string_view) const override { return std::nullopt; }
  bool isAvailable() const override { return true; }
  void submit(Operations operations, std::function<void(Results)> whenDone) override {
    ASSERT_FALSE(done) << "a second batch before the first was done";
    sizes.push_back(operations.size());
    done = std::move(whenDone);
  }
  void finish(std::int64_t firstCount) {
    Results results;
    for (std::size_t i = 0; i < sizes.back(); ++i)
      results.push_back({Outcome::counted, firstCount + std::ssize(results)});
    std::exchange(done, {})(results);
  }

  std::vector<std::size_t> sizes;

 private:
  std::function<void(Results)> done;
};

struct Fixture : testing::Test {
  void add() {
    queue.add({"a/feature1", 1}, [this](const Result& result) { counts.push_back(result.count); });
  }
  void turn() {
    loop.restart();
    loop.poll();
  }

  asio::io_context loop;
  HandDrivenStore store;
  std::vector<std::size_t> told;
  OperationQueue queue{loop, store, [this](std::size_t size) { told.push_back(size); }};
  std::vector<std::int64_t> counts;
};

using OperationQueueTest = Fixture;

TEST_F(OperationQueueTest, sendsWhatCameInOneTurnTogether) {
  add();
  add();
  EXPECT_TRUE(store.sizes.empty());
  turn();
  store.finish(7);
  EXPECT_THAT(counts, testing::ElementsAre(7, 8));
  EXPECT_TRUE(queue.isIdle());
}

TEST_F(OperationQueueTest, gathersWhileABatchIsUnderWay) {
  add();
  turn();
  add();
  add();
  turn();
  EXPECT_THAT(store.sizes, testing::ElementsAre(1));
  store.finish(1);
  EXPECT_THAT(store.sizes, testing::ElementsAre(1, 2));
  EXPECT_FALSE(queue.isIdle());
  store.finish(2);
  EXPECT_THAT(counts, testing::ElementsAre(1, 2, 3));
  EXPECT_EQ(told, store.sizes);
}

TEST(OperationQueueLanes, readsDoNotWaitForVotes) {
  class Apart final : public CounterStore {
   public:
    std::optional<std::int64_t> known(std::string_view) const override { return std::nullopt; }
    bool isAvailable() const override { return true; }
    bool readsApart() const override { return true; }
    void submit(Operations operations, std::function<void(Results)> done) override {
      if (operations.front().delta == 0) done({{Outcome::counted, 7}});  // votes take for ever
    }
  };
  asio::io_context loop;
  Apart store;
  OperationQueue queue{loop, store, [](std::size_t) {}};
  std::int64_t count = 0;
  queue.add({"a/feature1", 1}, [](const Result&) { FAIL(); });
  queue.add({"a/feature1", 0}, [&](const Result& result) { count = result.count; });
  loop.poll();
  EXPECT_EQ(count, 7);
  EXPECT_FALSE(queue.isIdle());
}

TEST_F(OperationQueueTest, takesAnOperationFromInsideAnAnswer) {
  queue.add({"a/feature1", 1}, [this](const Result&) { add(); });
  turn();
  store.finish(1);
  turn();
  store.finish(2);
  EXPECT_THAT(counts, testing::ElementsAre(2));
}

}  // namespace
}  // namespace mivo::tally
