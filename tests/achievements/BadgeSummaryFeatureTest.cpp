// SPDX-License-Identifier: MIT
#include "mivo/achievements/BadgeSummaryFeature.h"

#include <gtest/gtest.h>

#include "mivo/achievements/BadgeCardState.h"
#include "tests/support/TestStore.h"

namespace mivo {
namespace {

using State = BadgeSummaryFeature::State;
using Action = BadgeSummaryFeature::Action;
using Destination = BadgeSummaryFeature::Destination;

class BadgeSummary : public testing::Test {
 protected:
  tests::TestWorld world;
  DependencyScope scope = world.enter();
  tests::TestStore<BadgeSummaryFeature> store{
      world,
      State{.totalFasts = 7, .maxStreak = 3, .allMilestones = badgeThresholdList(), .allStreaks = badgeThresholdList()},
      BadgeSummaryFeature{}};
};

TEST_F(BadgeSummary, opensAListAndReplacesItByTheOther) {
  const auto toMilestones = [](State& state) { state.destination = Destination::State::milestones{}; };
  store.send(Action::didTapMilestones{}, toMilestones);
  const Stamp first = store.state().destination.identity();
  store.send(Action::didTapMilestones{}, toMilestones);
  EXPECT_NE(store.state().destination.identity(), first) << "opened anew";
  store.send(Action::didTapStreaks{}, [](State& state) { state.destination = Destination::State::streaks{}; });
}

TEST_F(BadgeSummary, dismissalClosesTheList) {
  store.send(Action::didTapStreaks{}, [](State& state) { state.destination = Destination::State::streaks{}; });
  store.send(Action::destination{PresentationAction<Destination::Action>::dismiss{}},
             [](State& state) { state.destination = std::nullopt; });
}

}  // namespace
}  // namespace mivo
