// SPDX-License-Identifier: MIT
#include "mivo/statistics/AddWeightForm.h"

#include <gtest/gtest.h>

#include "tests/support/TestStore.h"

namespace mivo {
namespace {

using Feature = AddWeightLogFeature;
using State = Feature::State;
using Action = Feature::Action;

class AddWeightLog : public testing::Test {
 protected:
  tests::TestWorld world;
  DependencyScope scope = world.enter();
  tests::TestStore<Feature> store{world, State{}, Feature{}};
};

void saving(State& state) { state.savingState = Feature::SavingState::saving; }

Action accepted(std::uint64_t id, Date date, double weightInKg) {
  return Action::didAcceptSample{{UUID{0, id}, date, weightInKg}};
}

auto chose(Date date) {
  return [date](State& state) {
    state.logDate = date;
    state.isDateChosen = true;
  };
}

TEST_F(AddWeightLog, handsAGoodEntryToTheHostAndIsReadyForTheNext) {
  store.send(Action::didChangeText{"81,4"}, [](State& state) {
    state.typedText = "81,4";
    state.weightInKg = 81.4;
  });
  store.send(Action::didTapSave{}, saving);
  store.send(Action::didTapSave{});  // a second tap while it is saved makes no second sample
  store.receive(accepted(1, world.clock->now(), 81.4));
  world.clock->date = world.clock->date + Duration{5};
  store.send(Action::didSave{}, [this](State& state) {
    state.savingState = Feature::SavingState::saved;
    state.typedText = std::nullopt;
    state.logDate = world.clock->now();
  });
  store.send(Action::didTapIncrease{}, [](State& state) {
    state.weightInKg = 81.5;
    state.savingState = Feature::SavingState::notSaved;
  });
}

TEST_F(AddWeightLog, refusesWhatIsNoWeightAndKeepsTheText) {
  store.send(Action::didChangeText{"8x"}, [](State& state) { state.typedText = "8x"; });
  store.send(Action::didTapSave{}, [](State& state) { state.problem = Feature::Problem::notAWeight; });
  EXPECT_EQ(problemText(store.state(), tests::EnglishTexts{}), "Type up to 700 kg or 1543 lb, such as 81.4.");
  store.send(Action::didChangeText{"80"}, [](State& state) {
    state.typedText = "80";
    state.weightInKg = 80.0;
    state.problem = std::nullopt;
  });
}

TEST_F(AddWeightLog, takesTheTimeOfSavingUnlessOneWasChosen) {
  const auto wait = [this](double seconds) { world.clock->date = world.clock->date + Duration{seconds}; };
  wait(240);
  store.send(Action::didTapSave{}, [this](State& state) {
    state.logDate = world.clock->now();
    saving(state);
  });
  store.receive(accepted(1, world.clock->now(), 65));
  const auto saved = [this](State& state) {
    state.savingState = Feature::SavingState::saved;
    state.logDate = world.clock->now();
    state.isDateChosen = false;
  };
  store.send(Action::didSave{}, saved);
  const Date yesterday = world.clock->now() - Duration{secondsPerDay};
  store.send(Action::didChangeDate{yesterday}, [&](State& state) {
    chose(yesterday)(state);
    state.savingState = Feature::SavingState::notSaved;
  });
  wait(240);
  store.send(Action::didTapSave{}, saving);
  store.receive(accepted(2, yesterday, 65));
  store.send(Action::didSave{}, saved);
}

TEST_F(AddWeightLog, refusesADateThatHasNotCome) {
  const Date tomorrow = world.clock->now() + Duration{secondsPerDay};
  store.send(Action::didChangeDate{tomorrow}, chose(tomorrow));
  store.send(Action::didTapSave{}, [](State& state) { state.problem = Feature::Problem::dateInFuture; });
}

TEST_F(AddWeightLog, saysWhySavingFailedAndMayBeTriedAgain) {
  store.send(Action::didTapSave{}, saving);
  store.receive(accepted(1, world.clock->now(), 65));
  store.send(Action::didFailToSave{"The disk is full."}, [](State& state) {
    state.savingState = Feature::SavingState::failed;
    state.failure = "The disk is full.";
  });
  EXPECT_EQ(problemText(store.state(), tests::EnglishTexts{}), "The disk is full.");
  store.send(Action::didTapSave{}, saving);
  store.receive(accepted(2, world.clock->now(), 65));
}

TEST_F(AddWeightLog, stepsToWhatTheFieldShowsInEachUnit) {
  constexpr double pound = 0.45359237;
  store.send(Action::didChangeUnit{WeightUnit::pounds}, [](State& state) { state.weightUnit = WeightUnit::pounds; });
  store.send(Action::didTapIncrease{}, [](State& state) { state.weightInKg = 1434 * (pound / 10); });  // 143.3 lb
  store.send(Action::didChangeUnit{WeightUnit::stones}, [](State& state) { state.weightUnit = WeightUnit::stones; });
  store.send(Action::didTapDecrease{}, [](State& state) { state.weightInKg = 142 * pound; });
}

}  // namespace
}  // namespace mivo
