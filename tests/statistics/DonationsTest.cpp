// SPDX-License-Identifier: MIT
#include "mivo/statistics/DonationsPage.h"

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
    state.chosenID = "coffee";
    state.loadingState = LoadingState::loaded;
  });
  store->send(Action::didTapProduct{"coffee"});
  store->send(Action::didTapProduct{"unknown"});
  store->send(Action::didTapButton{});
  store->send(Action::didChooseProduct{"unknown"}, [](State& state) { state.chosenID = "unknown"; });
  store->send(Action::didTapButton{});
  store->finish();
  EXPECT_THAT(links->opened, ElementsAre("https://example.org/coffee", "https://example.org/coffee"));
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
  store->send(Action::didTapButton{}, loading);
  store->receive(Action::didLoad{donations->answer}, [this](State& state) {
    state.oneTimeProducts = donations->answer.oneTime;
    state.chosenID = "coffee";
    state.loadingState = LoadingState::loaded;
    state.failure = "";
  });
}

struct ShoutedTexts : tests::EnglishTexts {
  std::string text(std::string_view key, std::string_view context = {}) const override {
    return EnglishTexts::text(key, context) + '!';
  }
};

TEST_F(Donations, sayWhatElseHelpsWhereThereIsNoWayToGive) {
  world.dependencies.donations = nullptr;
  const DependencyScope bare = world.enter();
  auto store = shown();
  store->send(Action::onAppear{}, [](State& state) { state.loadingState = LoadingState::loaded; });
  const DonationsPage page = composeDonations({.loadingState = LoadingState::loaded}, ShoutedTexts{});
  EXPECT_EQ(page.text,
            "There is no way to give here. It helps as much to tell a friend about Mivo, and to vote on what comes "
            "next.!");
  EXPECT_EQ(page.button, "") << "nothing to press in vain";
  EXPECT_EQ(page.failure, "");
  EXPECT_EQ(page.close, "Close!");
}

DonationProduct product(const std::string& id) { return {id, "For " + id, id + " €", "https://example.org/" + id}; }

struct ChoiceRow {
  const char* name;
  std::vector<DonationProduct> once, monthly;
  std::string chosenBefore, chosen, button;
  std::vector<std::string> groups;
};

TEST_F(Donations, chooseAtFirstWhatMostGive) {
  const tests::EnglishTexts texts;
  for (const ChoiceRow& row : {
           ChoiceRow{"nothing", {}, {}, "", "", "", {}},
           ChoiceRow{"one", {product("3")}, {}, "", "3", "Donate 3 €", {"Once"}},
           ChoiceRow{"several",
                     {product("3"), product("5"), product("10")},
                     {product("2")},
                     "",
                     "5",
                     "Donate 5 €",
                     {"Once", "Every month"}},
           ChoiceRow{"monthlyOnly", {}, {product("2"), product("4")}, "", "2", "Donate 2 €", {"Every month"}},
           ChoiceRow{"chosenBefore", {product("3"), product("5")}, {}, "3", "3", "Donate 3 €", {"Once"}},
           ChoiceRow{"chosenIsGone", {product("3"), product("5")}, {}, "7", "5", "Donate 5 €", {"Once"}},
       }) {
    State state{.chosenID = row.chosenBefore};
    DonationsFeature{}.reduce(state, Action::didLoad{{row.once, row.monthly}});
    EXPECT_EQ(*state.chosenID, row.chosen) << row.name;
    const DonationsPage page = composeDonations(state, texts);
    EXPECT_EQ(page.button, row.button) << row.name;
    std::vector<std::string> groups;
    for (const DonationGroup& group : page.groups) {
      groups.push_back(group.label);
      for (const DonationChoice& choice : group.choices)
        EXPECT_EQ(choice.isChosen, choice.id == row.chosen) << row.name;
    }
    EXPECT_EQ(groups, row.groups) << row.name;
  }
}

TEST_F(Donations, offerToTryAgainOnlyOnceLoadingHasFailed) {
  const tests::EnglishTexts texts;
  const DonationsPage loads = composeDonations({.loadingState = LoadingState::loading}, texts);
  EXPECT_EQ(loads.button, "");
  EXPECT_EQ(loads.failure, "");
  const DonationsPage failed =
      composeDonations({.loadingState = LoadingState::failed, .failure = "The network is down."}, texts);
  EXPECT_EQ(failed.button, "Try again");
  EXPECT_EQ(failed.failure, "The network is down.");
}

}  // namespace
}  // namespace mivo
