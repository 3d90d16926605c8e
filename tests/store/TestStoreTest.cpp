// SPDX-License-Identifier: MIT
#include "tests/support/TestStore.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "tests/store/PlayerFeature.h"

namespace mivo::player {
namespace {

using Action = PlayerFeature::Action;
using State = PlayerFeature::State;
using Player = tests::TestStore<PlayerFeature>;

const Action louder = Action::volume{VolumeFeature::Action::didTapLouder{}};

void inWorld(const std::function<void(Player&)>& steps) {
  const tests::TestWorld world;
  const DependencyScope scope = world.enter();
  Player store{world, State{}, PlayerFeature{}};
  steps(store);
}

void toLouder(State& state) {
  state.volume.volume = 1;
  state.order += "bvc";
}

TEST(TestStore, passesWhereEveryChangeAndActionIsNamed) {
  inWorld([](Player& store) {
    store.send(louder, toLouder);
    store.receive(Action::volume{VolumeFeature::Action::didMeasure{10}}, [](State& state) {
      state.volume.volume = 10;
      state.order += "bvc";
    });
  });
}

TEST(TestStore, namesTheFieldsThatDiffer) {
  EXPECT_NONFATAL_FAILURE(inWorld([](Player& store) {
                            store.send(Action::didTapBack{}, [](State& state) {
                              state.volume.volume = 3;
                              state.order = "bvc";
                            });
                          }),
                          "sent didTapBack: the state is not as expected\n  volume.volume: expected 3, found 0\n");
}

TEST(TestStore, failsForAnActionThatWasNotReceived) {
  EXPECT_NONFATAL_FAILURE(inWorld([](Player& store) { store.send(louder, toLouder); }),
                          "at the end: not received: volume(didMeasure(10))");
}

TEST(TestStore, failsForAnActionThatNothingSent) {
  EXPECT_NONFATAL_FAILURE(inWorld([](Player& store) { store.receive(Action::didTapBack{}); }),
                          "receiving didTapBack: no effect sent an action");
}

TEST(TestStore, failsForAnIssue) {
  EXPECT_NONFATAL_FAILURE(inWorld([](Player& store) {
                            store.send(lyricsAction(LyricsFeature::Action::onAppear{}),
                                       [](State& state) { state.order += "bvc"; });
                          }),
                          "issue reported: destination: an action arrived while nothing was presented");
}

}  // namespace
}  // namespace mivo::player
