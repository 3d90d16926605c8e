// SPDX-License-Identifier: MIT
#include "mivo/roadmap/RoadmapListFeature.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "adapters/json/NlohmannDecoder.h"
#include "tests/support/TestStore.h"

namespace mivo {
namespace {

using Action = RoadmapListFeature::Action;
using State = RoadmapListFeature::State;
using testing::ElementsAre;

/// Answers every address with the same text.
struct OneAnswer : URLSession {
  void data(std::string_view url, StopToken, Completion<std::string> completion) const override {
    asked.emplace_back(url);
    if (isOffline) return completion(std::make_exception_ptr(URLError{std::string{url} + ": no connection"}));
    completion(body);
  }
  std::string body;
  bool isOffline = false;
  mutable std::vector<std::string> asked;
};

/// Counts in memory.
struct MemoryVoter : FeatureVoter {
  void fetch(const RoadmapFeature& feature, StopToken, Count completion) const override {
    completion(isGone ? 0 : counts[feature.id]);
  }
  void vote(const RoadmapFeature& feature, VoteCount completion) const override { completion(add(1, feature)); }
  void unvote(const RoadmapFeature& feature, VoteCount completion) const override { completion(add(-1, feature)); }

  std::optional<std::int64_t> add(int delta, const RoadmapFeature& feature) const {
    rememberedWhenAsked = defaults->boolean("roadmap.vote." + feature.id, false);
    if (isAway) return std::nullopt;
    return counts[feature.id] += delta;
  }

  Client<UserDefaults> defaults;
  bool isAway = false, isGone = false;  // for votes; for all
  mutable std::map<std::string, std::int64_t> counts{{"1", 10}, {"2", 20}, {"3", 30}};
  mutable bool rememberedWhenAsked = false;
};

struct CountingNumbers : RandomNumberGenerator {
  std::uint64_t next() const override { return ++last; }
  mutable std::uint64_t last = 0;
};

constexpr const char* threeFeatures =
    R"([{"id": 1, "title": {"en": "One", "de": "Eins"}, "status": "planned"},
        {"id": 2, "title": "Two", "status": "On ice"}, {"id": 3, "title": "Three", "status": "finished"}])";

class RoadmapList : public testing::Test {
 protected:
  RoadmapList() {
    session->body = threeFeatures;
    world.dependencies.urlSession = session;
    world.dependencies.jsonDecoder = std::make_shared<adapters::NlohmannDecoder>();
    world.dependencies.random = std::make_shared<CountingNumbers>();
    world.dependencies.servers.roadmap = "https://mivo.example";
    world.dependencies.bundleIdentifier = "app.example";
    voter->defaults = world.dependencies.userDefaults;
    enter();
  }

  void enter() { scope.emplace(std::make_shared<const Dependencies>(world.dependencies)); }

  RoadmapListFeature feature() const {
    RoadmapListFeature made;
    made.configuration.voter = voter;
    return made;
  }

  State stateOnceLoaded() const {
    Store<RoadmapListFeature> store{State{}, feature(), world.queue, world.tasks};
    store.send(Action::onAppear{});
    world.tasks->runAll();
    world.queue->runAll();
    return store.state();
  }

  static RoadmapRow row(const char* id, const char* title, const char* status, std::int64_t count = 0) {
    return {.feature = {id, title, "", status}, .count = count};
  }

  /// With the counts of the voter, in the order of the shuffle.
  static State loadedState() {
    State state;
    state.phase = RoadmapPhase::loaded;
    state.rows = List<RoadmapRow>{row("3", "Three", "finished", 30), row("1", "One", "planned", 10),
                                  row("2", "Two", "On ice", 20)};
    return state;
  }

  static auto changeOf(std::size_t index, std::function<void(RoadmapRow&)> change) {
    return [index, change](State& state) {
      auto rows = state.rows->elements();
      change(rows[index]);
      state.rows = List<RoadmapRow>{rows};
    };
  }

  tests::TestWorld world;
  std::shared_ptr<OneAnswer> session = std::make_shared<OneAnswer>();
  std::shared_ptr<MemoryVoter> voter = std::make_shared<MemoryVoter>();
  std::optional<DependencyScope> scope;
};

TEST_F(RoadmapList, loadsShufflesAndFetchesTheCounts) {
  tests::TestStore store{world, State{}, feature()};
  store.send(Action::onAppear{}, [](State& state) { state.phase = RoadmapPhase::loading; });
  const List<RoadmapRow> rows{row("3", "Three", "finished"), row("1", "One", "planned"), row("2", "Two", "On ice")};
  store.receive(Action::didLoad{rows}, [&](State& state) {
    state.phase = RoadmapPhase::loaded;
    state.rows = rows;
  });
  store.receive(Action::didReceiveCount{{"3", 30}}, changeOf(0, [](RoadmapRow& row) { row.count = 30; }));
  store.receive(Action::didReceiveCount{{"1", 10}}, changeOf(1, [](RoadmapRow& row) { row.count = 10; }));
  store.receive(Action::didReceiveCount{{"2", 20}}, changeOf(2, [](RoadmapRow& row) { row.count = 20; }));
  EXPECT_THAT(session->asked, ElementsAre("https://mivo.example/data/roadmap-mivo.json"));
  store.send(Action::onAppear{});
}

/// Answers when the test says so, long after the task has ended that asked.
struct LateAnswer : URLSession {
  void data(std::string_view, StopToken asker, Completion<std::string> completion) const override {
    stop = std::move(asker);
    answer = std::move(completion);
  }
  mutable StopToken stop;
  mutable Completion<std::string> answer;
};

TEST_F(RoadmapList, loadsWhatIsAnsweredOnceItsTaskHasEnded) {
  const auto late = std::make_shared<const LateAnswer>();
  world.dependencies.urlSession = late;
  enter();
  Store<RoadmapListFeature> store{State{}, feature(), world.queue, world.tasks};
  store.send(Action::onAppear{});
  world.tasks->runAll();
  world.queue->runAll();
  EXPECT_EQ(store.state().phase, RoadmapPhase::loading);
  scope.reset();
  std::exchange(late->answer, {})(std::string{threeFeatures});
  world.queue->runAll();
  EXPECT_EQ(store.state().phase, RoadmapPhase::loaded);
  EXPECT_EQ(store.state().rows->size(), 3u);
}

TEST_F(RoadmapList, stopsWhatIsAskedForWhenItGoes) {
  const auto late = std::make_shared<const LateAnswer>();
  world.dependencies.urlSession = late;
  enter();
  auto store = std::make_unique<Store<RoadmapListFeature>>(State{}, feature(), world.queue, world.tasks);
  store->send(Action::onAppear{});
  world.tasks->runAll();
  EXPECT_FALSE(late->stop.stopRequested());
  store.reset();
  EXPECT_TRUE(late->stop.stopRequested());
  std::exchange(late->answer, {})(std::string{threeFeatures});
  EXPECT_EQ(world.queue->count(), 0u) << "nobody is left to be told";
}

TEST_F(RoadmapList, titlesAreInTheUsersLanguage) {
  world.dependencies.languageTag = "de-CH";
  enter();
  EXPECT_EQ(stateOnceLoaded().rows.value()[1].feature.title, "Eins");
}

TEST_F(RoadmapList, saysThatItIsOfflineAndTriesAgainOnRequest) {
  tests::TestStore store{world, State{}, feature()};
  session->isOffline = true;
  store.send(Action::onAppear{}, [](State& state) { state.phase = RoadmapPhase::loading; });
  store.send(Action::didTapTryAgain{});
  const std::string reason = "https://mivo.example/data/roadmap-mivo.json: no connection";
  store.receive(Action::didFailToLoad{{reason}}, [&](State& state) {
    state.phase = RoadmapPhase::failed;
    state.failure = reason;
  });
  session->isOffline = false;
  session->body = "[]";
  store.send(Action::didTapTryAgain{}, [](State& state) {
    state.phase = RoadmapPhase::loading;
    state.failure = std::string{};
  });
  store.receive(Action::didLoad{List<RoadmapRow>{}}, [](State& state) { state.phase = RoadmapPhase::loaded; });
}

TEST_F(RoadmapList, showsWhatCameWithTheAppWhereNoServerAnswers) {
  world.dependencies.shippedRoadmap = R"([{"id": 5, "title": "Five", "status": "planned"}])";
  enter();
  session->isOffline = true;
  State state = stateOnceLoaded();
  EXPECT_EQ(state.phase, RoadmapPhase::failed);
  ASSERT_EQ(state.rows->size(), 1U);
  EXPECT_EQ(state.rows.value()[0].feature.title, "Five");
  const State before = state;
  feature().reduce(state, Action::didTapVote{"5"});
  EXPECT_EQ(state, before) << "there is nobody to count a vote";
}

TEST_F(RoadmapList, takesAShippedFileThatCannotBeReadForNone) {
  for (const char* shipped : {"<html>", R"([{"id": 5}])"}) {
    world.dependencies.shippedRoadmap = shipped;
    enter();
    session->isOffline = true;
    const State state = stateOnceLoaded();
    EXPECT_EQ(state.phase, RoadmapPhase::failed) << shipped;
    EXPECT_TRUE(state.rows->empty()) << shipped;
  }
}

TEST_F(RoadmapList, aFileThatDoesNotFitIsAFailureToo) {
  session->body = "<html>";
  const State state = stateOnceLoaded();
  EXPECT_EQ(state.phase, RoadmapPhase::failed);
  EXPECT_THAT(state.failure.value(), testing::StartsWith("not JSON: "));
}

TEST_F(RoadmapList, showsAVoteAtOnceRemembersItAndTakesTheAnswer) {
  tests::TestStore store{world, loadedState(), feature()};
  voter->counts["1"] = 15;  // others voted meanwhile
  store.send(Action::didTapVote{"1"}, changeOf(1, [](RoadmapRow& row) {
               row.isVoted = row.isSending = true;
               row.count = 11;
             }));
  store.send(Action::didTapVote{"1"});
  store.receive(Action::didReceiveVoteAnswer{{"1", 16}}, changeOf(1, [](RoadmapRow& row) {
                  row.count = 16;
                  row.isSending = false;
                  row.hasOwnAnswer = true;
                }));
  EXPECT_TRUE(voter->rememberedWhenAsked) << "remembered before it is sent";
  EXPECT_TRUE(feature().votes.isVoted("1"));
  store.send(Action::didReceiveCount{{"1", 15}});
  store.send(Action::didTapVote{"1"}, changeOf(1, [](RoadmapRow& row) {
               row.isVoted = false;
               row.isSending = true;
               row.count = 15;
             }));
  store.receive(Action::didReceiveVoteAnswer{{"1", 15}}, changeOf(1, [](RoadmapRow& row) { row.isSending = false; }));
  EXPECT_FALSE(feature().votes.isVoted("1"));
}

TEST_F(RoadmapList, takesBackAVoteThatDidNotGetThroughAndSaysSo) {
  tests::TestStore store{world, loadedState(), feature()};
  voter->isAway = true;
  voter->counts["2"] = 24;  // others voted meanwhile
  store.send(Action::didTapVote{"2"}, changeOf(2, [](RoadmapRow& row) {
               row.isVoted = row.isSending = true;
               row.count = 21;
             }));
  store.receive(Action::didReceiveVoteAnswer{{"2", std::nullopt}}, [](State& state) {
    changeOf(2, [](RoadmapRow& row) {
      row.isVoted = row.isSending = false;
      row.count = 20;
    })(state);
    state.unsentVote = std::string{"2"};
  });
  store.receive(Action::didReceiveCount{{"2", 24}}, changeOf(2, [](RoadmapRow& row) { row.count = 24; }));
  EXPECT_FALSE(feature().votes.isVoted("2"));
  voter->isAway = false;
  store.send(Action::didTapVote{"2"}, [](State& state) {
    changeOf(2, [](RoadmapRow& row) {
      row.isVoted = row.isSending = true;
      row.count = 25;
    })(state);
    state.unsentVote = std::nullopt;
  });
  store.receive(Action::didReceiveVoteAnswer{{"2", 25}}, changeOf(2, [](RoadmapRow& row) {
                  row.count = 25;
                  row.isSending = false;
                  row.hasOwnAnswer = true;
                }));
}

TEST_F(RoadmapList, keepsTheCountsThatItKnowsOfAServerThatIsGone) {
  State state = loadedState();
  changeOf(2, [](RoadmapRow& row) { row.isVoted = true; })(state);
  feature().votes.setVoted("2", true);
  tests::TestStore store{world, state, feature()};
  voter->isAway = voter->isGone = true;
  store.send(Action::didTapVote{"2"}, changeOf(2, [](RoadmapRow& row) {
               row.isVoted = false;
               row.isSending = true;
               row.count = 19;
             }));
  store.receive(Action::didReceiveVoteAnswer{{"2", std::nullopt}}, [](State& after) {
    changeOf(2, [](RoadmapRow& row) {
      row.isVoted = true;
      row.isSending = false;
      row.count = 20;
    })(after);
    after.unsentVote = std::string{"2"};
  });
  store.receive(Action::didReceiveCount{{"2", 0}}, [](State&) {});
}

TEST_F(RoadmapList, knowsItsVotesInTheNextRun) {
  feature().votes.setVoted("1", true);
  const State state = stateOnceLoaded();
  EXPECT_EQ(state.rows->size(), 3u);
  for (const RoadmapRow& row : *state.rows) EXPECT_EQ(row.isVoted, row.feature.id == "1");
}

TEST_F(RoadmapList, takesNoVoteForAFinishedFeatureForAStrangerOrWithoutCounters) {
  {
    tests::TestStore store{world, loadedState(), feature()};
    store.send(Action::didTapVote{"3"});
    store.send(Action::didTapVote{"4"});
  }
  world.dependencies.bundleIdentifier.clear();
  enter();
  tests::TestStore store{world, loadedState(), feature()};
  store.send(Action::didTapVote{"1"});
}

TEST_F(RoadmapList, filtersByStatus) {
  tests::TestStore store{world, loadedState(), feature()};
  EXPECT_THAT(statuses(store.state()), ElementsAre("planned", "finished", "On ice"));
  store.send(Action::didTapStatus{"planned"}, [](State& state) { state.status = std::string{"planned"}; });
  EXPECT_THAT(visibleRows(store.state()), ElementsAre(row("1", "One", "planned", 10)));
  store.send(Action::didTapStatus{std::nullopt}, [](State& state) { state.status = std::nullopt; });
  EXPECT_EQ(visibleRows(store.state()).size(), 3u);
}

TEST_F(RoadmapList, isSetUpAsTheRoadmapScreenWantsIt) {
  const RoadmapConfiguration set = RoadmapFeedbackView::configuration();
  EXPECT_EQ(set.roadmapJSONURL, "https://mivo.example/data/roadmap-mivo.json");
  EXPECT_EQ(set.request, std::nullopt);
  EXPECT_EQ(set.namespaceName, std::nullopt);
  EXPECT_TRUE(set.shuffled && set.allowVotes && set.allowsFilterByStatus);
  EXPECT_FALSE(set.allowSearching || set.sorting);
}

}  // namespace
}  // namespace mivo
