// SPDX-License-Identifier: MIT
#include "host/app/AppFeature.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/app/Settings.h"
#include "host/app/Stamps.h"
#include "host/database/DatabaseHistory.h"
#include "host/disk/DatabaseFile.h"
#include "mivo/statistics/AddWeightForm.h"
#include "tests/statistics/StatisticsWorld.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Action = AppFeature::Action;
using Sent = StatisticsFeature::Action;

/// The app on a real database, its tasks and its main queue driven by hand.
class AppFeatureTest : public tests::StatisticsTest {
 protected:
  Date at(double hoursFromNow) const { return world.clock->now() + Duration{hoursFromNow * secondsPerHour}; }

  FastRecord fast(std::uint64_t id, double start, double end, std::string note = "") const {
    return {finishedFast({7, id}, at(start), at(end), 57600), std::move(note)};
  }

  void send(Action action) {
    app.send(std::move(action));
    settle();
  }

  /// Another program adds a fast.
  void keep(const FastRecord& record) {
    openDatabase(file).apply(adding(record));
    send(Action::reload{});
  }

  void settle() {
    do {
      world.tasks->runAll();
      world.queue->runAll();
    } while (world.tasks->count() > 0);
  }

  std::vector<FastRecord> onDisk() const { return openDatabase(file).history().fasts; }
  const AppFeature::State& state() const { return app.state(); }

  tests::TemporaryFolder folder;
  std::filesystem::path file = folder.path / "mivo.sqlite";
  std::shared_ptr<const DatabaseHistory> history = std::make_shared<DatabaseHistory>(openDatabase(file));
  std::vector<std::optional<int>> weekdays;  // that weeks were to begin on
  std::vector<ReminderSettings> reminded;
  std::optional<std::string> reminderFault;
  Store<AppFeature> app{AppFeature::State::make(TimeRange::week),
                        AppFeature{.history = history,
                                   .chooseFirstWeekday = [this](auto weekday) { weekdays.push_back(weekday); },
                                   .keepReminding =
                                       [this](const ReminderSettings& settings) {
                                         reminded.push_back(settings);
                                         return reminderFault;
                                       }},
                        world.queue, world.tasks};
};

TEST_F(AppFeatureTest, showsAFastOnlyOnceItIsOnDisk) {
  app.send(Action::didTapStart{at(-3), 57600});
  EXPECT_THAT(*state().fasts, IsEmpty());
  settle();
  ASSERT_NE(state().runningFast(), nullptr);
  EXPECT_THAT(onDisk(), ElementsAre(*state().runningFast()));
  EXPECT_EQ(state().statistics.stats.totalFasts, 1);
  EXPECT_EQ(state().statistics.stats.totalHours, 3);

  world.clock->date = at(2);
  send(Action::recompute{});
  EXPECT_EQ(state().statistics.stats.totalHours, 5);

  send(Action::didTapStop{at(0)});
  EXPECT_EQ(state().runningFast(), nullptr);
  EXPECT_EQ(onDisk(), state().fasts->elements());
}

TEST_F(AppFeatureTest, keepsNothingOfAStartThatWasAMistakeUnlessItIsUndone) {
  world.clock->date = at(0.01) + Duration{0.5};
  send(Action::didTapStart{world.clock->date, 57600});
  const auto begun = onDisk();
  world.clock->date = world.clock->date + Duration{20};
  send(Action::didTapStop{world.clock->date});
  EXPECT_THAT(onDisk(), IsEmpty());
  EXPECT_EQ(state().statistics.stats.totalFasts, 0);
  ASSERT_TRUE(state().undo->has_value());
  EXPECT_EQ((*state().undo)->step, AppFeature::Step::stopAtOnce);
  send(Action::didTapMessage{});
  EXPECT_EQ(onDisk(), begun);
  EXPECT_NE(state().runningFast(), nullptr);
}

TEST_F(AppFeatureTest, editsAndRemovalsCanBeUndone) {
  keep(fast(1, -40, -24, "first"));
  keep(fast(2, -20, -4));
  send(Action::didTapEditFast{{7, 1}});
  send(Action::didChangeDraftStart{at(-41)});
  send(Action::didTapSaveDraft{});
  EXPECT_THAT(*state().fasts, ElementsAre(fast(1, -41, -24, "first"), fast(2, -20, -4)));
  EXPECT_EQ((*state().undo)->step, AppFeature::Step::edit);
  send(Action::didTapMessage{});
  EXPECT_THAT(onDisk(), ElementsAre(fast(1, -40, -24, "first"), fast(2, -20, -4)));

  send(Action::didDeleteFast{{7, 1}});
  EXPECT_THAT(onDisk(), ElementsAre(fast(2, -20, -4)));
  ASSERT_TRUE(state().undo->has_value());
  send(Action::didTapMessage{});
  EXPECT_THAT(onDisk(), ElementsAre(fast(1, -40, -24, "first"), fast(2, -20, -4)));
  EXPECT_EQ(onDisk(), state().fasts->elements());
  EXPECT_EQ(*state().undo, std::nullopt);
}

TEST_F(AppFeatureTest, repairsOverlapsOnConfirmationAndUndoesItAsAWhole) {
  keep(fast(1, -40, -24));
  keep(fast(2, -28, -20));
  keep(fast(3, -21, -5));
  ASSERT_TRUE(state().statistics.stats.hasOverlappingFasts);
  const auto before = onDisk();

  send(Action::statistics{Sent::didTapFixOverlappingFasts{}});
  ASSERT_TRUE(state().overlapRepair->has_value());
  EXPECT_EQ(onDisk(), before) << "proposed, not done";
  send(Action::didCancelOverlapRepair{});
  EXPECT_FALSE(state().overlapRepair->has_value());

  send(Action::statistics{Sent::didTapFixOverlappingFasts{}});
  send(Action::didConfirmOverlapRepair{});
  EXPECT_FALSE(state().statistics.stats.hasOverlappingFasts);
  EXPECT_THAT(onDisk(), ElementsAre(fast(1, -40, -20), fast(3, -20, -5)));
  send(Action::didTapMessage{});
  EXPECT_EQ(onDisk(), before);
}

TEST_F(AppFeatureTest, savesAWeightAndTellsItsCard) {
  send(Action::statistics{Sent::addWeightLogAction{AddWeightLogFeature::Action::didChangeText{"72.4"}}});
  send(Action::statistics{Sent::addWeightLogAction{AddWeightLogFeature::Action::didTapSave{}}});
  EXPECT_EQ(state().statistics.addWeightLogState.savingState, AddWeightLogFeature::SavingState::saved);
  ASSERT_THAT(*state().weights, SizeIs(1));
  EXPECT_EQ(openDatabase(file).history().weights, state().weights->elements());
  EXPECT_EQ(*state().statistics.stats.currentWeightInKg, 72.4);

  send(Action::didDeleteWeight{(*state().weights)[0].id});
  EXPECT_EQ(*state().statistics.stats.currentWeightInKg, std::nullopt);
  send(Action::didTapMessage{});
  EXPECT_EQ(*state().statistics.stats.currentWeightInKg, 72.4);
}

TEST_F(AppFeatureTest, beginsTheNextWeightWithTheNewestUnlessOneIsTyped) {
  using Card = AddWeightLogFeature::Action;
  const auto& card = state().statistics.addWeightLogState;
  const auto enter = [this](Card action) { send(Action::statistics{Sent::addWeightLogAction{std::move(action)}}); };
  const BodyWeightSample first{{7, 1}, at(-3), 72}, newest{{7, 2}, at(-2), 90};
  for (const auto& sample : {first, newest}) openDatabase(file).apply(adding(sample));
  send(Action::reload{});
  EXPECT_EQ(*card.weightInKg, 90);
  send(Action::didDeleteWeight{newest.id});
  EXPECT_EQ(*card.weightInKg, 72);
  send(Action::didTapMessage{});
  EXPECT_EQ(*card.weightInKg, 90);

  enter(Card::didTapDecrease{});
  send(Action::didDeleteWeight{first.id});
  EXPECT_EQ(*card.weightInKg, 89.9) << "the newest is the same";
  enter(Card::didChangeText{"85"});
  send(Action::didDeleteWeight{newest.id});
  send(Action::didTapMessage{});
  EXPECT_EQ(*card.weightInKg, 85);
}

TEST_F(AppFeatureTest, offersToTakeASavedWeightBackAndWritesItOnce) {
  const Action save = Action::statistics{Sent::addWeightLogAction{AddWeightLogFeature::Action::didTapSave{}}};
  send(save);
  ASSERT_TRUE(state().undo->has_value());
  EXPECT_EQ((*state().undo)->step, AppFeature::Step::addWeight);
  send(save);
  EXPECT_EQ(*state().failure, "This weight is saved already.");
  EXPECT_EQ(state().statistics.addWeightLogState.savingState, AddWeightLogFeature::SavingState::saved);
  EXPECT_THAT(openDatabase(file).history().weights, SizeIs(1));
  send(Action::didDismissMessages{});
  send(Action::didTapMessage{});
  EXPECT_THAT(openDatabase(file).history().weights, IsEmpty());
  EXPECT_THAT(*state().weights, IsEmpty());
}

TEST_F(AppFeatureTest, showsTheTimeAsTheOneOfTheNextWeightUntilAnotherIsChosen) {
  using Card = AddWeightLogFeature::Action;
  const auto& card = state().statistics.addWeightLogState;
  world.clock->date = at(4);
  send(Action::recompute{});
  EXPECT_EQ(*card.logDate, at(0));
  const Date chosen = at(-2);
  send(Action::statistics{Sent::addWeightLogAction{Card::didChangeDate{chosen}}});
  world.clock->date = at(4);
  send(Action::recompute{});
  send(Action::statistics{Sent::onAppear{}});
  EXPECT_EQ(*card.logDate, chosen);
  send(Action::statistics{Sent::addWeightLogAction{Card::didTapSave{}}});
  EXPECT_EQ(state().weights->front().date, chosen);
  EXPECT_EQ(*card.logDate, at(0));
}

class WeightEdits : public AppFeatureTest {
 protected:
  using Entry = AddWeightLogFeature::Action;

  WeightEdits() {
    for (const auto& sample : {kept, other}) openDatabase(file).apply(adding(sample));
    send(Action::reload{});
    send(Action::didTapEditWeight{kept.id});
  }

  void enter(Entry action) { send(Action::editedWeight{PresentationAction<Entry>::presented{std::move(action)}}); }
  std::vector<BodyWeightSample> weightsOnDisk() const { return openDatabase(file).history().weights; }

  BodyWeightSample kept{{7, 1}, at(-3) + Duration{30}, 72.43}, other{{7, 2}, at(-2), 90};
};

TEST_F(WeightEdits, putAWeightRightAndAreUndone) {
  enter(Entry::didChangeText{"71.9"});
  enter(Entry::didChangeDate{at(-3)});
  enter(Entry::didTapSave{});
  BodyWeightSample right = kept;
  right.weightInKg = 71.9;
  EXPECT_THAT(weightsOnDisk(), ElementsAre(right, other)) << "the minute that was chosen again keeps its seconds";
  EXPECT_EQ(state().weights->elements(), weightsOnDisk());
  EXPECT_FALSE(state().editedWeight);
  EXPECT_EQ((*state().undo)->step, AppFeature::Step::editWeight);
  send(Action::didTapMessage{});
  EXPECT_THAT(weightsOnDisk(), ElementsAre(kept, other));

  send(Action::didTapEditWeight{kept.id});
  enter(Entry::didChangeDate{at(-1)});
  enter(Entry::didTapSave{});
  EXPECT_EQ(state().weights->elements().back().weightInKg, 72.43) << "not the one that the field shows";
}

TEST_F(WeightEdits, writeNothingThatIsNoChange) {
  enter(Entry::didTapSave{});
  EXPECT_FALSE(state().editedWeight);
  EXPECT_EQ(*state().undo, std::nullopt);
  send(Action::didTapEditWeight{kept.id});
  enter(Entry::didChangeText{"60"});
  send(Action::editedWeight{PresentationAction<Entry>::dismiss{}});
  EXPECT_FALSE(state().editedWeight);
  EXPECT_THAT(weightsOnDisk(), ElementsAre(kept, other));
}

TEST_F(WeightEdits, sayInTheirSheetWhyNothingWasSaved) {
  const auto problem = [this] { return problemText(state().editedWeight->entry, *world.dependencies.texts); };
  enter(Entry::didChangeText{"7200"});
  enter(Entry::didTapSave{});
  EXPECT_EQ(problem(), "Type up to 700 kg or 1543 lb, such as 81.4.");
  enter(Entry::didChangeText{"72"});
  openDatabase(file).apply(removing(kept));  // by another program
  enter(Entry::didTapSave{});
  EXPECT_EQ(problem(), "Nothing was saved: the record was changed by another program. Look at it and try again.");
  send(Action::reload{});
  enter(Entry::didTapSave{});
  EXPECT_EQ(problem(), "Nothing was changed: the record is gone.");
  EXPECT_THAT(*state().failure, IsEmpty());
  EXPECT_THAT(weightsOnDisk(), ElementsAre(other));
}

TEST_F(AppFeatureTest, savesADraftAndForgetsIt) {
  send(Action::settings{SettingsFeature::Action::didChooseGoal{72000}});
  send(Action::didTapAddFast{});
  ASSERT_TRUE(state().draft->has_value());
  EXPECT_EQ((*state().draft)->record.fast.goalSeconds, 72000);
  send(Action::didChangeDraftEnd{at(-2)});
  send(Action::didChangeDraftGoal{36000});
  send(Action::didChangeDraftNote{"slept well"});
  EXPECT_THAT(onDisk(), IsEmpty());
  const FastRecord made = (*state().draft)->record;
  app.send(Action::didTapSaveDraft{});
  EXPECT_TRUE((*state().draft)->isSaving);
  app.send(Action::didTapSaveDraft{});  // a second tap while it is saved
  settle();
  EXPECT_EQ(*state().draft, std::nullopt);
  EXPECT_THAT(onDisk(), ElementsAre(made));
  EXPECT_EQ(made.fast.finished->end, at(-2));
  EXPECT_EQ(made.fast.goalSeconds, 36000);
  EXPECT_EQ(made.note, "slept well");
  EXPECT_EQ((*state().undo)->step, AppFeature::Step::add);
  EXPECT_EQ((*state().undo)->change, removing(made));

  send(Action::didTapEditFast{made.fast.id});
  send(Action::didTapSaveDraft{});  // nothing was changed
  EXPECT_EQ(*state().draft, std::nullopt);
  send(Action::didTapEditFast{made.fast.id});
  send(Action::didChangeDraftEnd{at(-100)});
  send(Action::didTapSaveDraft{});
  EXPECT_TRUE(state().draft->has_value()) << "not worth saving";
  send(Action::didDismissDraft{});
  EXPECT_EQ(*state().draft, std::nullopt);
  EXPECT_THAT(onDisk(), ElementsAre(made));
}

TEST_F(AppFeatureTest, saysInTheDraftWhyItWasNotSaved) {
  keep(fast(1, -40, -24));
  send(Action::didTapEditFast{{7, 1}});
  send(Action::didChangeDraftEnd{at(-25)});
  openDatabase(file).apply(removing(fast(1, -40, -24)));  // by another program
  send(Action::didTapSaveDraft{});
  EXPECT_EQ((*state().draft)->failure,
            "Nothing was saved: the record was changed by another program. Look at it and try again.");
  EXPECT_THAT(*state().failure, IsEmpty());
  send(Action::reload{});
  send(Action::didTapSaveDraft{});
  EXPECT_EQ((*state().draft)->failure, "Nothing was changed: the record is gone.");
  send(Action::didChangeDraftEnd{at(-26)});
  EXPECT_THAT((*state().draft)->failure, IsEmpty());
}

TEST_F(AppFeatureTest, writesAWeightOnceHoweverOftenSaveIsTapped) {
  const Action tap = Action::statistics{Sent::addWeightLogAction{AddWeightLogFeature::Action::didTapSave{}}};
  app.send(tap);
  app.send(tap);
  settle();
  EXPECT_THAT(*state().failure, IsEmpty());
  EXPECT_THAT(*state().weights, SizeIs(1));
  send(Action::statistics{Sent::addWeightLogAction{AddWeightLogFeature::Action::didTapIncrease{}}});
  app.send(tap);
  app.send(tap);
  settle();
  EXPECT_EQ(state().statistics.addWeightLogState.savingState, AddWeightLogFeature::SavingState::saved);
  EXPECT_THAT(*state().weights, SizeIs(2));
  EXPECT_EQ(openDatabase(file).history().weights, state().weights->elements());
}

struct RefusedRow {
  const char* name;
  Action action;
  const char* failure;
};

TEST_F(AppFeatureTest, writesNothingThatIsNoRecord) {
  keep(fast(1, -40, -24));
  send(Action::didTapStart{at(-3), 57600});
  const auto before = onDisk();
  for (const RefusedRow& row : {
           RefusedRow{"secondStart", Action::didTapStart{at(0), 57600}, "A fast is running already."},
           RefusedRow{"stoppedBeforeItsStart", Action::didTapStop{at(-4)}, "The end is before the start."},
           RefusedRow{"stoppedInFuture", Action::didTapStop{at(1)}, "The end is in the future. Is the clock right?"},
           RefusedRow{"startInFuture", Action::didChangeStart{at(1)},
                      "The start is in the future. Is the clock right?"},
           RefusedRow{"negativeGoal", Action::didChangeGoal{-1}, "Choose a shorter goal."},
           RefusedRow{"removedAlready", Action::didDeleteFast{{7, 99}}, "Nothing was changed: the record is gone."},
           RefusedRow{"noSuchWeight", Action::didDeleteWeight{{7, 99}}, "Nothing was changed: the record is gone."},
       }) {
    send(row.action);
    EXPECT_EQ(*state().failure, row.failure) << row.name;
    EXPECT_EQ(onDisk(), before) << row.name;
    EXPECT_EQ(state().fasts->elements(), before) << row.name;
    send(Action::didDismissMessages{});
  }
}

TEST_F(AppFeatureTest, keepsARunningFastWhenTheClockIsSetBack) {
  send(Action::didTapStart{at(0), 57600});
  world.clock->date = at(-2);
  send(Action::didTapStop{at(0)});
  EXPECT_EQ(*state().failure, "The start is in the future. Is the clock right?");
  ASSERT_NE(state().runningFast(), nullptr);
  send(Action::recompute{});
  EXPECT_EQ(state().statistics.stats.totalFasts, 0) << "it has not begun";

  FastRecord edited = *state().runningFast();
  edited.fast.goalSeconds = 72000;
  send(Action::didChangeGoal{72000});
  EXPECT_THAT(onDisk(), ElementsAre(edited)) << "what was wrong before the edit is no fault of it";
}

TEST_F(AppFeatureTest, keepsTheOfferWhereUndoingFails) {
  keep(fast(1, -40, -24));
  send(Action::didDeleteFast{{7, 1}});
  const auto offer = *state().undo;
  openDatabase(file).apply(adding(fast(1, -30, -20)));  // another program took the id
  send(Action::didTapMessage{});
  EXPECT_EQ(*state().failure,
            "Nothing was saved: the record was changed by another program. Look at it and try again.");
  EXPECT_EQ(*state().undo, offer);
  send(Action::didTapMessage{});  // has read it
  EXPECT_THAT(*state().failure, IsEmpty());
  EXPECT_EQ(*state().undo, offer);

  openDatabase(file).apply(removing(fast(1, -30, -20)));
  send(Action::didTapMessage{});
  EXPECT_THAT(onDisk(), ElementsAre(fast(1, -40, -24)));
  EXPECT_EQ(*state().undo, std::nullopt);
}

TEST_F(AppFeatureTest, keepsWhatIsSaidWhileAChangeIsWritten) {
  send(Action::didFail{"Of the step before."});
  app.send(Action::didTapStart{at(-3), 57600});
  EXPECT_THAT(*state().failure, IsEmpty());
  send(Action::didFail{"The backup went elsewhere."});
  ASSERT_NE(state().runningFast(), nullptr);
  EXPECT_EQ(*state().failure, "The backup went elsewhere.");
}

TEST_F(AppFeatureTest, changesNothingWhereWritingFails) {
  openDatabase(file).apply(adding({mivo::ongoingFast({7, 9}, at(-3), 57600), ""}));  // by another program
  const AppFeature::State before = state();
  send(Action::didTapStart{at(-2), 57600});
  EXPECT_EQ(*state().failure, "A fast is running already.");
  EXPECT_EQ(state().fasts, before.fasts);
  send(Action::didDismissMessages{});
  EXPECT_EQ(state(), before);
}

TEST_F(AppFeatureTest, readsWhatAnotherProgramWrote) {
  send(Action::reload{});
  const auto version = history->version();
  HistoryChange change;
  change.addedFasts = {fast(9, -20, -4)};
  openDatabase(file).apply(change);
  EXPECT_NE(history->version(), version);
  send(Action::reload{});
  EXPECT_THAT(*state().fasts, ElementsAre(fast(9, -20, -4)));
}

TEST_F(AppFeatureTest, recomputesForAnotherRangeAndKeepsTheSelection) {
  keep(fast(1, -40, -24));
  const UUID selected = state().statistics.stats.fastingChartState.data->front().id;
  send(Action::statistics{Sent::fastingChartAction{ScrollChartFeature::Action::didTapBar{selected}}});
  world.clock->date = at(0.02);
  send(Action::recompute{});
  EXPECT_EQ(*state().statistics.stats.fastingChartState.selectedUUID, selected);
  EXPECT_NE(state().statistics.stats.fastingChartState.data->indexOf(selected), std::nullopt);

  send(Action::statistics{Sent::binding{Write<&StatisticsFeature::State::timeRange>{TimeRange::year}}});
  EXPECT_EQ(state().statistics.stats.fastingChartState.chartTimeUnit, ChartTimeUnit::month);
}

TEST_F(AppFeatureTest, stampsWhatChangesAPageButNotWhereChartsStand) {
  const auto isWrittenBy = [this](const Action& action) {
    const auto before = stampsOf(state());
    send(action);
    return stampsOf(state()) != before;
  };
  using Chart = ScrollChartFeature::Action;
  keep(fast(1, -40, -24));
  const UUID bar = state().statistics.stats.fastingChartState.data->front().id;
  EXPECT_FALSE(isWrittenBy(Action::statistics{Sent::fastingChartAction{Chart::didTapBar{bar}}}));
  EXPECT_EQ(*state().statistics.stats.fastingChartState.selectedUUID, bar);
  EXPECT_FALSE(isWrittenBy(Action::didOpen{Screen::fasting}));
  EXPECT_TRUE(isWrittenBy(Action::didTapEditFast{{7, 1}}));
  EXPECT_TRUE(isWrittenBy(Action::recompute{}));
}

TEST_F(AppFeatureTest, namesTheZoneThatTimesAreShownInNow) {
  const auto fasts = state().fasts;
  send(Action::didChangeZone{"America/Port_of_Spain"});
  EXPECT_EQ(*state().failure,
            "Your time zone is now America/Port of Spain. All times are shown in it; nothing was changed.");
  EXPECT_EQ(state().fasts, fasts);
}

TEST_F(AppFeatureTest, remembersTheGoal) {
  send(Action::statistics{Sent::goalWeightCardAction{GoalWeightCardFeature::Action::didSetGoal{69.0}}});
  EXPECT_EQ(goalWeight(*world.dependencies.userDefaults), 69.0);
  send(Action::statistics{Sent::goalWeightCardAction{GoalWeightCardFeature::Action::didTypeGoal{"heavy"}}});
  EXPECT_EQ(goalWeight(*world.dependencies.userDefaults), 69.0);
  send(Action::statistics{Sent::goalWeightCardAction{GoalWeightCardFeature::Action::didTypeGoal{"68,5"}}});
  EXPECT_EQ(goalWeight(*world.dependencies.userDefaults), 68.5);
  send(Action::statistics{Sent::goalWeightCardAction{GoalWeightCardFeature::Action::didSetGoal{std::nullopt}}});
  EXPECT_EQ(goalWeight(*world.dependencies.userDefaults), std::nullopt);
}

class ChosenSettings : public AppFeatureTest {
 protected:
  using Chosen = SettingsFeature::Action;
  void choose(Chosen chosen) { send(Action::settings{std::move(chosen)}); }
  const UserDefaults& defaults() const { return *world.dependencies.userDefaults; }
};

TEST_F(ChosenSettings, holdInTheStatisticsAtOnce) {
  const auto& card = state().statistics.addWeightLogState;
  send(Action::statistics{Sent::addWeightLogAction{AddWeightLogFeature::Action::didChangeText{"72.4"}}});
  DashboardSettingsFeature::State cards;
  cards.showBadges = false;
  choose(Chosen::didChooseCards{cards});
  EXPECT_EQ(state().statistics.dashboardSettings, cards);
  EXPECT_FALSE(defaults().boolean("showBadges", true));
  choose(Chosen::didChooseLongestBreak{30});
  choose(Chosen::didToggleBelowGoal{});
  choose(Chosen::didChooseCountingEntity{StreakSettings::CountingEntity::fasts});
  EXPECT_EQ(*state().statistics.streakSettings, (StreakSettings{StreakSettings::CountingEntity::fasts, true, 30}));
  choose(Chosen::didToggleBelowGoal{});
  EXPECT_FALSE(state().statistics.streakSettings->ignoreFastGoal);
  EXPECT_EQ(*card.typedText, "72.4") << "no other unit";

  choose(Chosen::didChooseWeightUnit{WeightUnit::pounds});
  EXPECT_EQ(*card.weightUnit, WeightUnit::pounds);
  EXPECT_EQ(*state().statistics.goalWeightCardState.weightUnit, WeightUnit::pounds);
  EXPECT_EQ(*card.typedText, std::nullopt) << "72.4 was meant in kilograms";

  setGoalSeconds(defaults(), 64800);  // by another program
  send(Action::statistics{Sent::onAppear{}});
  EXPECT_EQ(*state().nextGoalSeconds, 64800);
}

TEST_F(ChosenSettings, beginTheWeeksOnAnotherDay) {
  choose(Chosen::didChooseFirstWeekday{7});
  choose(Chosen::didChooseFirstWeekday{std::nullopt});
  choose(Chosen::didChooseFirstWeekday{1});
  EXPECT_THAT(weekdays, ElementsAre(7, std::nullopt, 1));
  EXPECT_EQ(firstWeekday(defaults()), 1);
  EXPECT_EQ(*state().settings.firstWeekday, 1);
}

TEST_F(ChosenSettings, takeOnlyAnotherLanguage) {
  const Stamp before = state().settings.language.stamp();
  choose(Chosen::didChooseLanguage{""});
  EXPECT_EQ(state().settings.language.stamp(), before);
  choose(Chosen::didChooseLanguage{"fr"});
  EXPECT_EQ(language(defaults()), "fr");
  EXPECT_EQ(*state().settings.language, "fr");
}

TEST_F(ChosenSettings, giveWayToWhatWasGivenForThisRunUntilTheyAreChosenAnew) {
  const auto& look = state().settings.appearance;
  setAppearanceMode(defaults(), AppearanceMode::dark);
  choose(Chosen::didOverrideAppearance{{.mode = AppearanceMode::light, .textScale = 9, .still = true}});
  EXPECT_EQ(look, (Appearance{AppearanceMode::light, 2, true}));
  EXPECT_EQ(appearance(defaults()), (Appearance{AppearanceMode::dark, 1, false})) << "nothing is kept";
  send(Action::statistics{Sent::onAppear{}});
  EXPECT_EQ(look->mode, AppearanceMode::light);
  choose(Chosen::didChooseAppearanceMode{AppearanceMode::dark});
  EXPECT_EQ(look, (Appearance{AppearanceMode::dark, 2, true}));
  choose(Chosen::didChooseTextScale{1.1});
  EXPECT_EQ(look, (Appearance{AppearanceMode::dark, 1.1, true}));

  choose(Chosen::didOverrideAppearance{});
  choose(Chosen::didToggleReducedMotion{});
  EXPECT_TRUE(look->reducesMotion);
  choose(Chosen::didToggleReducedMotion{});
  EXPECT_EQ(look, (Appearance{AppearanceMode::dark, 1.1, false}));
}

TEST_F(ChosenSettings, tellOfWhatIsWantedAndWhyTheyCannot) {
  send(Action::didStart{});
  EXPECT_THAT(reminded, IsEmpty()) << "nothing is wanted yet";
  choose(Chosen::didToggleGoalReminder{});
  choose(Chosen::didToggleEatingWindowReminder{});
  choose(Chosen::didToggleGoalReminder{});
  reminderFault = "Reminders will not come.";
  choose(Chosen::didChooseEatingWindow{8});
  EXPECT_THAT(reminded, ElementsAre(ReminderSettings{.tellsGoal = true},
                                    ReminderSettings{.tellsGoal = true, .tellsEatingWindow = true},
                                    ReminderSettings{.tellsEatingWindow = true},
                                    ReminderSettings{.tellsEatingWindow = true, .eatingWindowHours = 8}));
  EXPECT_EQ(reminderSettings(defaults()), reminded.back());
  EXPECT_EQ(*state().failure, "Reminders will not come.");
  send(Action::didStart{});
  EXPECT_THAT(reminded, SizeIs(5));
  choose(Chosen::didChooseLongestBreak{30});
  EXPECT_THAT(reminded, SizeIs(5));
}

TEST_F(AppFeatureTest, readsTheHistoryAnewOnlyWhereAnotherProgramChangedIt) {
  send(Action::load{});
  send(Action::didTapStart{at(-3), 57600});
  app.send(Action::lookForChanges{});
  EXPECT_EQ(world.tasks->count(), 0U) << "its own changes it knows";
  openDatabase(file).apply(adding(fast(1, -40, -24)));
  app.send(Action::lookForChanges{});
  EXPECT_EQ(world.tasks->count(), 1U);
  app.send(Action::lookForChanges{});
  EXPECT_EQ(world.tasks->count(), 1U);
  settle();
  EXPECT_EQ(state().fasts->elements(), onDisk());
}

}  // namespace
}  // namespace mivo::host
