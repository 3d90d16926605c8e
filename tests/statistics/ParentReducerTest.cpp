// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "HostFeature.h"
#include "mivo/store/Store.h"
#include "tests/statistics/StatisticsWorld.h"

namespace mivo {
namespace {

using Screen = StatisticsFeature::Action;
using Action = HostFeature::Action;
using State = HostFeature::State;

/// The parent of the example, which acts on what passes through the screen.
class ParentReducer : public tests::StatisticsTest {
 protected:
  struct Labels : DateFormatter {
    std::optional<std::string> string(Date, std::string_view) const override { return ""; }
  };

  ParentReducer() {
    world.dependencies.dateFormatter = std::make_shared<Labels>();
    labelled.emplace(std::make_shared<const Dependencies>(world.dependencies));
  }

  std::unique_ptr<Store<HostFeature>> made(List<FastingDataEntry> fasts) const {
    return std::make_unique<Store<HostFeature>>(
        State{.statistics = StatisticsFeature::State::make(StatsContainer::empty(), std::move(fasts), TimeRange::week),
              .weights = List<BodyWeightSample>{}},
        HostFeature{}, world.queue, world.tasks);
  }

  std::optional<DependencyScope> labelled;
};

TEST_F(ParentReducer, recomputesForTheRangeThatPassesThrough) {
  auto store = made({day(1), day(29)});
  store->send(Action::statistics{Screen::binding{Write<&StatisticsFeature::State::timeRange>{TimeRange::year}}});
  const StatsContainer& stats = store->state().statistics.stats;
  EXPECT_EQ(stats.totalFasts, 2);
  EXPECT_EQ(stats.fastingChartState.chartTimeUnit, ChartTimeUnit::month);
  EXPECT_EQ(store->state().statistics.badgeCardState.totalFasts, 2);
}

TEST_F(ParentReducer, repairsOverlappingFasts) {
  const FastingDataEntry first = day(10);
  const FastingDataEntry second = finishedFast(UUID{3, 1}, first.start + Duration{10 * secondsPerHour},
                                               first.start + Duration{30 * secondsPerHour}, 57600);
  auto store = made({});
  store->send(Action::didRecordFast{second});
  store->send(Action::didRecordFast{first});
  EXPECT_TRUE(store->state().statistics.stats.hasOverlappingFasts);
  store->send(Action::statistics{Screen::didTapFixOverlappingFasts{}});
  const StatisticsFeature::State& screen = store->state().statistics;
  EXPECT_FALSE(screen.stats.hasOverlappingFasts);
  EXPECT_EQ(screen.fasts.value()[0].finished->end, second.start);
  EXPECT_EQ(screen.stats.totalHours, 30);
}

TEST_F(ParentReducer, keepsTheWeightThatTheCardHandsOver) {
  using CardAction = AddWeightLogFeature::Action;
  auto store = made({});
  const auto send = [&](CardAction action) { store->send(Action::statistics{Screen::addWeightLogAction{action}}); };
  send(CardAction::didChangeText{"heavy"});
  send(CardAction::didTapSave{});
  EXPECT_TRUE(store->state().weights->empty());
  send(CardAction::didChangeText{"79,5"});
  send(CardAction::didTapSave{});
  send(CardAction::didTapSave{});  // while it is saved: counts for nothing
  while (world.tasks->count() > 0) {
    world.tasks->runAll();
    world.queue->runAll();
  }
  ASSERT_EQ(store->state().weights->size(), 1u);
  EXPECT_EQ(store->state().weights->front().weightInKg, 79.5);
  EXPECT_EQ(store->state().statistics.addWeightLogState.savingState, AddWeightLogFeature::SavingState::saved);
  EXPECT_EQ(store->state().statistics.goalWeightCardState.currentWeightInKg, 79.5);
}

}  // namespace
}  // namespace mivo
