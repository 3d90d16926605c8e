// SPDX-License-Identifier: MIT
#include "host/app/CurrentTipFacts.h"

#include <gtest/gtest.h>

#include "host/tips/Tips.h"
#include "tests/statistics/StatisticsWorld.h"

namespace mivo::host {
namespace {

class CurrentTipFacts : public tests::StatisticsTest {
 protected:
  struct Voter : FeatureVoter {
    void fetch(const RoadmapFeature&, StopToken, Count completion) const override { completion(0); }
    void vote(const RoadmapFeature&, VoteCount completion) const override { completion(count); }
    void unvote(const RoadmapFeature&, VoteCount completion) const override { completion(count); }
    std::optional<std::int64_t> count;
  };

  AppFeature::State state = AppFeature::State::make(TimeRange::week);
  RoadmapVotes votes{world.dependencies.userDefaults};
  RoadmapFeature feature{.id = "7", .title = {}, .description = {}, .status = {}};
  Voter voter;
};

TEST_F(CurrentTipFacts, countWhatTheUserKeeps) {
  EXPECT_EQ(currentTipFacts(state, votes), TipFacts{});
  state.fasts = List<FastRecord>{{{day(1), ""}, {day(2), ""}, {running(3), ""}}};
  state.weights = List<BodyWeightSample>{{{UUID{}, Date{}, 80}}};
  state.statistics.goalWeightCardState.goalInKg = 70.0;
  EXPECT_EQ(currentTipFacts(state, votes), (TipFacts{.finishedFasts = 2, .weights = 1, .hasGoalWeight = true}));
}

TEST_F(CurrentTipFacts, offerNoTipToVoteToWhoHasVoted) {
  state.fasts = List<FastRecord>{std::vector<FastRecord>(20, {day(1), ""})};
  const Tips shipped{world.dependencies.userDefaults};
  const auto isOffered = [&] {
    shipped.setFacts(currentTipFacts(state, votes));
    return shipped.canDisplay("voteOnRoadmap");
  };
  votes.send(true, feature, voter, [](std::optional<std::int64_t>) {});
  EXPECT_TRUE(isOffered()) << "the vote did not get through";
  voter.count = 1;
  votes.send(true, feature, voter, [](std::optional<std::int64_t>) {});
  EXPECT_FALSE(isOffered());
  votes.send(false, feature, voter, [](std::optional<std::int64_t>) {});
  EXPECT_FALSE(isOffered()) << "who took it back knows how";
}

}  // namespace
}  // namespace mivo::host
