// SPDX-License-Identifier: MIT
#include "host/pages/OpenScreens.h"

#include <gtest/gtest.h>

#include "host/app/AppFeature.h"
#include "host/app/Settings.h"
#include "tests/statistics/StatisticsWorld.h"

namespace mivo::host {
namespace {

using Action = AppFeature::Action;

/// Keeps what is written and does nothing else.
struct NoHistory : HistoryClient {
  History load() const override { return {}; }
  void apply(const HistoryChange&) const override {}
  std::int64_t version() const override { return 0; }
  std::optional<FileState> lastSynced() const override { return std::nullopt; }
  std::int64_t sync(const WeightSync&) const override { return 0; }
};

class OpenScreensTest : public tests::StatisticsTest {
 protected:
  void SetUp() override {
    const Date now = world.clock->now();
    const auto at = [now](double hours) { return now + Duration{hours * secondsPerHour}; };
    History history;
    history.fasts = {{finishedFast({7, 1}, at(-40), at(-24), 57600), ""},
                     {finishedFast({7, 2}, at(-28), at(-20), 57600), ""},
                     {ongoingFast({7, 3}, at(-2), 57600), ""}};
    history.weights = {{{8, 1}, at(-30), 80}, {{8, 2}, at(-6), 79}};
    app.send(Action::didLoad{history});
    app.send(Action::health{HealthFeature::Action::onAppear{}});
    app.send(Action::backups{
        BackupsFeature::Action::didList{{}, {{.backup = {"mivo.json", now}, .counts = RecordCounts{}}}}});
  }

  OpenScreens shown() const { return composeOpenScreens(app.state()); }

  Store<AppFeature> app{
      AppFeature::State::make(TimeRange::week),
      AppFeature{.history = std::make_shared<NoHistory>(),
                 .linkedHealth = std::make_shared<LinkedHealthClient>(world.dependencies.userDefaults)},
      world.queue, world.tasks};
};

struct Row {
  Screen screen;
  OpenScreens shown;
  OpenScreens afterBack;
};

TEST_F(OpenScreensTest, openOverWhatTheyStandOnFromWhereverOneIs) {
  const OpenScreens statistics{"statistics", "", ""}, fasting{"fasting", "", ""}, settings{"settings", "", ""},
      badges{"statistics", "badges", ""}, roadmap{"statistics", "roadmap", ""}, weights{"statistics", "weights", ""},
      reminders{"settings", "reminders", ""};
  const std::vector<Row> rows{{Screen::statistics, statistics, statistics},
                              {Screen::badges, badges, statistics},
                              {Screen::milestones, badges, badges},
                              {Screen::streaks, badges, badges},
                              {Screen::roadmap, roadmap, statistics},
                              {Screen::feedback, {"statistics", "roadmap", "feedback"}, roadmap},
                              {Screen::donations, {"statistics", "", "donations"}, statistics},
                              {Screen::overlaps, {"statistics", "", "overlaps"}, statistics},
                              {Screen::goalWeight, {"statistics", "", "goalWeight"}, statistics},
                              {Screen::weights, weights, statistics},
                              {Screen::editWeight, {"statistics", "weights", "editWeight"}, weights},
                              {Screen::weightMenu, {"statistics", "weights", "weightMenu"}, weights},
                              {Screen::date, {"statistics", "", "date"}, statistics},
                              {Screen::table, {"statistics", "", "table"}, statistics},
                              {Screen::fasting, fasting, fasting},
                              {Screen::editFast, {"fasting", "", "editFast"}, fasting},
                              {Screen::addFast, {"fasting", "", "editFast"}, fasting},
                              {Screen::severalFasts, {"fasting", "", "severalFasts"}, fasting},
                              {Screen::fastGoal, {"fasting", "", "fastGoal"}, fasting},
                              {Screen::fastStart, {"fasting", "", "fastStart"}, fasting},
                              {Screen::fastMenu, {"fasting", "", "fastMenu"}, fasting},
                              {Screen::months, {"fasting", "", "months"}, fasting},
                              {Screen::settings, settings, settings},
                              {Screen::cards, {"settings", "cards", ""}, settings},
                              {Screen::reminders, reminders, settings},
                              {Screen::eatingWindow, {"settings", "reminders", "eatingWindow"}, reminders},
                              {Screen::about, {"settings", "about", ""}, settings},
                              {Screen::importing, {"settings", "", "import"}, settings},
                              {Screen::exporting, {"settings", "", "export"}, settings},
                              {Screen::health, {"settings", "", "health"}, settings},
                              {Screen::backups, {"settings", "backups", ""}, settings},
                              {Screen::restoring, {"settings", "backups", "restore"}, {"settings", "backups", ""}},
                              {Screen::firstWeekday, {"settings", "", "firstWeekday"}, settings},
                              {Screen::defaultGoal, {"settings", "", "defaultGoal"}, settings},
                              {Screen::weightUnit, {"settings", "", "weightUnit"}, settings},
                              {Screen::language, {"settings", "", "language"}, settings},
                              {Screen::appearance, {"settings", "", "appearance"}, settings}};
  ASSERT_EQ(rows.size(), screenCount);
  for (const Screen from : allScreens())
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string{rawValue(from)} + " to " + std::string{rawValue(row.screen)});
      app.send(Action::didOpen{from});
      app.send(Action::didOpen{row.screen});
      EXPECT_EQ(shown(), row.shown);
      app.send(Action::didGoBack{});
      EXPECT_EQ(shown(), row.afterBack);
    }
}

TEST_F(OpenScreensTest, showTheListOfBadgesThatWasAskedFor) {
  for (const Screen list : {Screen::milestones, Screen::streaks, Screen::milestones}) {
    app.send(Action::didOpen{list});
    EXPECT_EQ(openScreen(app.state()), list);
  }
}

TEST_F(OpenScreensTest, areNamedOnceEach) {
  for (const Screen screen : allScreens()) EXPECT_EQ(screenFrom(rawValue(screen)), screen);
  EXPECT_EQ(screenFrom(""), std::nullopt);
}

TEST_F(OpenScreensTest, stayWithoutWhatTheyWouldShow) {
  app.send(Action::didLoad{{}});
  app.send(Action::backups{BackupsFeature::Action::didList{}});
  for (const Screen screen : {Screen::editFast, Screen::fastStart, Screen::fastMenu, Screen::editWeight,
                              Screen::weightMenu, Screen::restoring}) {
    app.send(Action::didOpen{screen});
    EXPECT_EQ(openScreen(app.state()), screenBelow(screen)) << rawValue(screen);
  }
}

TEST_F(OpenScreensTest, editTheLatestFastAndWeight) {
  app.send(Action::didOpen{Screen::editFast});
  EXPECT_EQ((*app.state().draft)->record.fast.id, (UUID{7, 2}));
  app.send(Action::didOpen{Screen::editWeight});
  EXPECT_EQ(app.state().editedWeight->before.id, (UUID{8, 2}));
}

// A sheet that another took the place of says that it is closed, too.
TEST_F(OpenScreensTest, closeOnlyTheInnermost) {
  app.send(Action::didOpen{Screen::feedback});
  for (const Screen other : {Screen::roadmap, Screen::statistics, Screen::goalWeight}) {
    app.send(Action::didClose{other});
    EXPECT_EQ(openScreen(app.state()), Screen::feedback) << rawValue(other);
  }
  app.send(Action::didClose{Screen::feedback});
  EXPECT_EQ(openScreen(app.state()), Screen::roadmap);
}

TEST_F(OpenScreensTest, goWithWhatTheyShow) {
  app.send(Action::didOpen{Screen::editFast});
  app.send(Action::didTapSaveDraft{});  // as it was before
  EXPECT_EQ(openScreen(app.state()), Screen::fasting);
  app.send(Action::didOpen{Screen::overlaps});
  app.send(Action::didConfirmOverlapRepair{});
  EXPECT_EQ(openScreen(app.state()), Screen::statistics);
}

TEST_F(OpenScreensTest, keepNothingOfWhatTheyClose) {
  app.send(Action::didOpen{Screen::addFast});
  app.send(Action::didOpen{Screen::editWeight});
  EXPECT_EQ(*app.state().draft, std::nullopt);
  app.send(Action::didOpen{Screen::overlaps});
  EXPECT_FALSE(app.state().editedWeight);
  app.send(Action::didOpen{Screen::restoring});
  EXPECT_EQ(*app.state().overlapRepair, std::nullopt);
  app.send(Action::didOpen{Screen::importing});
  EXPECT_EQ(*app.state().backups.chosen, std::nullopt);
  app.send(Action::didOpen{Screen::badges});
  EXPECT_FALSE(app.state().importing);
  app.send(Action::didOpen{Screen::about});
  EXPECT_FALSE(app.state().statistics.destination);
}

// What was changed on other pages is seen on return, and sheets over the statistics hide nothing of them.
TEST_F(OpenScreensTest, readTheSettingsAnewWhenTheStatisticsAreSeenAgain) {
  for (const Screen away : {Screen::fasting, Screen::settings, Screen::badges, Screen::cards, Screen::weights}) {
    SCOPED_TRACE(rawValue(away));
    app.send(Action::didOpen{away});
    setGoalWeight(*world.dependencies.userDefaults, 70 + static_cast<double>(away));
    const auto back = screenBelow(away) == Screen::statistics ? Action{Action::didGoBack{}}
                                                              : Action{Action::didOpen{Screen::statistics}};
    app.send(back);
    EXPECT_EQ(*app.state().statistics.goalWeightCardState.goalInKg, 70 + static_cast<double>(away));
  }
}

}  // namespace
}  // namespace mivo::host
