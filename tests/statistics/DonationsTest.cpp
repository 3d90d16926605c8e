// SPDX-License-Identifier: MIT
#include "mivo/statistics/DonationsFeature.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statistics/StatisticsWorld.h"

namespace mivo {
namespace {

using State = DonationsFeature::State;
using Action = DonationsFeature::Action;
using LoadingState = DonationsFeature::LoadingState;
using testing::ElementsAre;

class Donations : public tests::StatisticsTest {
 protected:
  std::unique_ptr<tests::TestStore<DonationsFeature>> shown() const {
    return std::make_unique<tests::TestStore<DonationsFeature>>(world, State{}, DonationsFeature{});
  }
};

void loading(State& state) { state.loadingState = LoadingState::loading; }

TEST_F(Donations, loadTheirProductsAndOpenTheOneThatIsTapped) {
  auto store = shown();
  store->send(Action::onAppear{}, loading);
  store->receive(Action::didLoad{donations->answer}, [this](State& state) {
    state.oneTimeProducts = donations->answer.oneTime;
    state.loadingState = LoadingState::loaded;
  });
  store->send(Action::didTapProduct{"coffee"});
  store->send(Action::didTapProduct{"unknown"});
  store->finish();
  EXPECT_THAT(links->opened, ElementsAre("https://example.org/coffee"));
}

TEST_F(Donations, sayWhyLoadingFailedAndMayBeTriedAgain) {
  donations->failure = "The network is down.";
  auto store = shown();
  store->send(Action::onAppear{}, loading);
  store->send(Action::onAppear{});  // one load at a time
  store->receive(Action::didFailToLoad{"The network is down."}, [](State& state) {
    state.loadingState = LoadingState::failed;
    state.failure = "The network is down.";
  });
  donations->failure.clear();
  store->send(Action::didTapRetry{}, loading);
  store->receive(Action::didLoad{donations->answer}, [this](State& state) {
    state.oneTimeProducts = donations->answer.oneTime;
    state.loadingState = LoadingState::loaded;
    state.failure = "";
  });
}

struct ShoutedTexts : tests::EnglishTexts {
  std::string text(std::string_view key, std::string_view context = {}) const override {
    return EnglishTexts::text(key, context) + '!';
  }
};

TEST_F(Donations, sayInTheUsersLanguageThatNothingIsSetUp) {
  world.dependencies.donations = nullptr;
  world.dependencies.texts = std::make_shared<ShoutedTexts>();
  const DependencyScope bare = world.enter();
  auto store = shown();
  store->send(Action::onAppear{}, [](State& state) {
    state.loadingState = LoadingState::failed;
    state.failure = "No ways to donate are set up.!";
  });
}

}  // namespace
}  // namespace mivo
