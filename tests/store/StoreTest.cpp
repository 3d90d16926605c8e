// SPDX-License-Identifier: MIT
#include "mivo/store/Print.h"
#include "mivo/store/Store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/store/PlayerFeature.h"
#include "tests/support/TestWorld.h"

namespace mivo::player {
namespace {

using Action = PlayerFeature::Action;
using State = PlayerFeature::State;
using testing::ElementsAre;
using testing::IsEmpty;

class StoreTest : public testing::Test {
 protected:
  std::unique_ptr<Store<PlayerFeature>> made() {
    return std::make_unique<Store<PlayerFeature>>(State{}, PlayerFeature{}, world.queue, world.tasks);
  }

  void finish() {
    world.tasks->runAll();
    world.queue->runAll();
  }

  tests::TestWorld world = [] {
    tests::TestWorld own;
    own.dependencies.issueReporter = std::make_shared<tests::RecordedIssues>();
    return own;
  }();
  const tests::RecordedIssues& issues = static_cast<const tests::RecordedIssues&>(*world.dependencies.issueReporter);
  DependencyScope scope = world.enter();
  std::unique_ptr<Store<PlayerFeature>> store = made();
  std::vector<std::string> log;
};

TEST_F(StoreTest, reducesThenTellsObserversThenStartsEffects) {
  const auto subscription = store->observe([&](const State& state) {
    log.push_back("volume " + std::to_string(state.volume.volume) + ", tasks " + std::to_string(world.tasks->count()));
  });
  store->send(Action::volume{VolumeFeature::Action::didTapLouder{}});
  EXPECT_THAT(log, ElementsAre("volume 1, tasks 0"));
  EXPECT_EQ(world.tasks->count(), 1u);
}

TEST_F(StoreTest, tellsObserversUnderTheDependenciesThatItWasMadeWith) {
  const auto own = currentContext();
  const auto subscription = store->observe([&](const State&) { EXPECT_EQ(currentContext(), own); });
  store->send(Action::didTapBack{});
  withDependencies(nullptr, [this] { store->send(Action::didTapBack{}); });
  EXPECT_EQ(currentContext(), own);
}

TEST_F(StoreTest, runsThePiecesOfABodyInTheirOrder) {
  store->send(Action::didTapBack{});
  EXPECT_EQ(store->state().order, "bvc");
  store->send(Action::binding{Write<&State::timeRange>{TimeRange::year}});
  EXPECT_EQ(store->state().timeRange, TimeRange::year);
}

TEST_F(StoreTest, runsMergedEffectsAndReducesWhatTheySendOnTheMainQueue) {
  store->send(Action::loadBoth{});
  EXPECT_EQ(world.tasks->count(), 2u);
  world.tasks->runAll();
  EXPECT_THAT(store->state().songs.value(), IsEmpty());
  EXPECT_TRUE(world.queue->runOne());
  EXPECT_THAT(store->state().songs.value(), ElementsAre("one"));
  EXPECT_TRUE(world.queue->runOne());
  EXPECT_THAT(store->state().songs.value(), ElementsAre("one", "two"));
}

TEST_F(StoreTest, wrapsWhatAChildsEffectSends) {
  store->send(Action::volume{VolumeFeature::Action::didTapLouder{}});
  finish();
  EXPECT_EQ(store->state().volume.volume, 10);
}

TEST_F(StoreTest, queuesWhatAnObserverSendsBehindTheActionItIsToldOf) {
  const auto sender = store->observe([&](const State& state) {
    if (state.songs->empty()) store->send(Action::setSongs{List<std::string>{"one"}});
  });
  const auto second =
      store->observe([&](const State& state) { log.push_back(std::to_string(state.songs->size()) + " songs"); });
  store->send(Action::didTapBack{});
  EXPECT_THAT(log, ElementsAre("0 songs", "1 songs"));
}

TEST_F(StoreTest, observersMaySubscribeAndUnsubscribeWhileTheyAreTold) {
  Subscription first, second, late;
  first = store->observe([&](const State&) {
    log.push_back("first");
    first.end();
    second.end();
    late = store->observe([&](const State&) { log.push_back("late"); });
  });
  second = store->observe([&](const State&) { log.push_back("second"); });
  const auto third = store->observe([&](const State&) { log.push_back("third"); });
  store->send(Action::didTapBack{});
  EXPECT_THAT(log, ElementsAre("first", "third"));
  log.clear();
  store->send(Action::didTapBack{});
  EXPECT_THAT(log, ElementsAre("third", "late"));
}

TEST_F(StoreTest, anObserverMayDestroyTheStore) {
  const auto killer = store->observe([&](const State&) {
    store->send(Action::didTapLyrics{});
    store.reset();
    log.push_back("destroyed");
  });
  const auto second = store->observe([&](const State&) { log.push_back("second"); });
  store->send(Action::volume{VolumeFeature::Action::didTapLouder{}});
  EXPECT_THAT(log, ElementsAre("destroyed"));
  EXPECT_EQ(world.tasks->count(), 0u);
}

TEST_F(StoreTest, mayBeDestroyedWithPostsPending) {
  store->send(Action::loadBoth{});
  world.tasks->runAll();
  store->send(Action::loadBoth{});
  store.reset();
  EXPECT_EQ(world.queue->count(), 2u);
  finish();
  EXPECT_THAT(issues.taken(), IsEmpty());
}

TEST_F(StoreTest, tellsByStampsWhatWasWritten) {
  const Stamp songs = store->state().songs.stamp(), range = store->state().timeRange.stamp();
  store->send(Action::setSongs{List<std::string>{}});
  store->send(Action::binding{Write<&State::timeRange>{TimeRange::week}});
  EXPECT_EQ(store->state().songs.stamp(), songs) << "an equal list is no write";
  EXPECT_NE(store->state().timeRange.stamp(), range) << "an equal scalar is one";
}

TEST_F(StoreTest, dismissingCancelsTheEffectsOfTheScreenAlone) {
  store->send(Action::didTapLyrics{});
  store->send(lyricsAction(LyricsFeature::Action::onAppear{}));
  store->send(Action::volume{VolumeFeature::Action::didTapLouder{}});
  world.tasks->runAll();
  store->send(dismissal());
  EXPECT_FALSE(store->state().destination);
  world.queue->runAll();
  EXPECT_THAT(issues.taken(), IsEmpty());
  EXPECT_EQ(store->state().volume.volume, 10);
}

TEST_F(StoreTest, cancelsWhoeverClearedOrReplacedTheScreen) {
  for (const Action& way :
       {Action{Action::didTapBack{}}, Action{Action::didTapCredits{}}, Action{Action::didTapLyrics{}}}) {
    SCOPED_TRACE(printed(way));
    store = made();
    store->send(Action::didTapLyrics{});
    store->send(lyricsAction(LyricsFeature::Action::onAppear{}));
    store->send(way);
    finish();
    EXPECT_THAT(issues.taken(), IsEmpty());
    const auto& destination = store->state().destination;
    const auto* lyrics = destination ? std::get_if<Destination::State::lyrics>(&*destination) : nullptr;
    EXPECT_TRUE(!lyrics || lyrics->state.text->empty());
  }
}

TEST_F(StoreTest, whatAScreenSendsReachesItWhileItIsThere) {
  store->send(Action::didTapLyrics{});
  store->send(lyricsAction(LyricsFeature::Action::onAppear{}));
  finish();
  EXPECT_EQ(std::get<Destination::State::lyrics>(*store->state().destination).state.text, "la la");
}

TEST_F(StoreTest, reportsAChildActionForAnotherScreenOrForNone) {
  store->send(lyricsAction(LyricsFeature::Action::onAppear{}));
  EXPECT_THAT(issues.taken(), ElementsAre("destination: an action arrived while nothing was presented"));
  store->send(Action::didTapCredits{});
  store->send(lyricsAction(LyricsFeature::Action::onAppear{}));
  EXPECT_THAT(issues.taken(), ElementsAre("lyrics: an action arrived while another screen was presented"));
  EXPECT_EQ(world.tasks->count(), 0u);
  store->send(dismissal());
  store->send(dismissal());
  EXPECT_THAT(issues.taken(), IsEmpty()) << "a second dismissal is no fault";
}

TEST_F(StoreTest, scopedStoresReadSendAndObserveTheirPart) {
  const auto volume = store->scope<Action::volume>(&State::volume);
  const auto lyrics = store->scope([](const State& state) {
    return state.destination ? std::get_if<Destination::State::lyrics>(&*state.destination) : nullptr;
  });
  const auto subscription =
      volume.observe([&](const VolumeFeature::State& state) { log.push_back(std::to_string(state.volume.value())); });
  const auto lyricsSubscription = lyrics.observe([&](const auto& screen) { log.push_back(screen.state.text); });
  volume.send(VolumeFeature::Action::didTapLouder{});
  EXPECT_EQ(lyrics.state(), nullptr);
  lyrics.send(Action::didTapLyrics{});
  EXPECT_NE(lyrics.state(), nullptr);
  EXPECT_THAT(log, ElementsAre("1", "1", ""));
  store.reset();
  EXPECT_EQ(volume.state(), nullptr);
  volume.send(VolumeFeature::Action::didTapLouder{});
}

struct ClockFeature {
  struct State {
    Date reduced, ran;
    bool operator==(const State&) const = default;
  };
  struct Action : std::variant<std::monostate, Date> {
    using variant::variant;
  };

  Effect<Action> reduce(State& state, const Action& action) const {
    if (const Date* ran = std::get_if<Date>(&action)) return state.ran = *ran, Effect<Action>::none();
    state.reduced = currentDependencies().date->now();
    return Effect<Action>::merge(
        Effect<Action>::run([](const Send<Action>& send, StopToken) { send(currentDependencies().date->now()); }),
        Effect<Action>::run([](const Send<Action>&, StopToken) { throw std::runtime_error("the disk is full"); }));
  }
};

template <RecordOf<ClockFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [reduced, ran] = record;
  visit("reduced", reduced);
  visit("ran", ran);
}

TEST_F(StoreTest, keepsTheDependenciesItWasMadeIn) {
  Store<ClockFeature> clock{ClockFeature::State{}, ClockFeature{}, world.queue, world.tasks};
  const DependencyScope others{nullptr};
  clock.send(std::monostate{});
  finish();
  EXPECT_EQ(clock.state().reduced, world.clock->now());
  EXPECT_EQ(clock.state().ran, world.clock->now());
  EXPECT_THAT(issues.taken(), ElementsAre("a task ended with an error: the disk is full"));
}

}  // namespace
}  // namespace mivo::player
