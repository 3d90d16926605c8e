// SPDX-License-Identifier: MIT
// The settings tab, driven with clicks and keys.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <algorithm>

#include "app/program/Restart.h"
#include "host/reminders/ReminderSettings.h"
#include "mivo/statistics/ComposeScreen.h"
#include "tests/app/ShownApp.h"
#include "tests/support/Instants.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

class Settings : public testing::Test {
 protected:
  void show(const char* screen, QSize size = {390, 844}) {
    Options options = ShownApp::optionsFor(threeWeeks);
    options.screen = screen;
    open(options, size);
  }

  void open(const Options& options, QSize size = {390, 844}) {
    app.reset();
    app = std::make_unique<ShownApp>(options, size);
  }

  /// A row, or one of the choices of a sheet, known by its text; within a group where several have it.
  QQuickItem* row(const QString& text, const QString& group = {}) {
    return app->find([&](const QQuickItem* item) {
      return item->property("text").toString() == text && item->inherits("QQuickAbstractButton") &&
             (group.isEmpty() || isIn(item, group));
    });
  }

  void click(const QString& text, const QString& group = {}) {
    const QQuickItem* item = row(text, group);
    ASSERT_NE(item, nullptr) << text.toStdString();
    app->click(item);
  }

  QQuickItem* stepper(const QString& name) {
    return app->find([&name](const QQuickItem* item) {
      return item->inherits("QQuickSpinBox") && item->property("accessibleName").toString() == name;
    });
  }

  void press(Qt::Key key, int times = 1) {
    for (int pressed = 0; pressed < times; ++pressed) app->key(key);
  }

  std::unique_ptr<ShownApp> app;

 private:
  static bool isIn(const QQuickItem* item, const QString& group) {
    for (; item; item = item->parentItem())
      if (item->property("title").toString() == group) return true;
    return false;
  }
};

using ShownCard = std::pair<CardKind, LegacyFastingZone>;  // the zone of a trend

std::vector<ShownCard> cardsOf(const StatisticsFeature::State& state) {
  std::vector<ShownCard> cards;
  for (const Card& card : composeScreen(screenInput(state), screenFormatters())) {
    const auto* trend = std::get_if<TrendCard>(&card.content);
    cards.emplace_back(card.kind, trend ? trend->zone : LegacyFastingZone{});
  }
  return cards;
}

struct SwitchRow {
  const char *group, *title;
  ShownCard card;
};

TEST_F(Settings, showAndHideEachCardAlone) {
  show("cards", {390, 1400});
  click("Ketosis", "Trends");
  click("Deep Ketosis", "Trends");
  const auto all = cardsOf(app->statistics());
  using Zone = LegacyFastingZone;
  for (const SwitchRow& one : {
           SwitchRow{"Cards", "Summary", {CardKind::summary, {}}},
           SwitchRow{"Cards", "Donations", {CardKind::donation, {}}},
           SwitchRow{"Cards", "Roadmap", {CardKind::roadmap, {}}},
           SwitchRow{"Cards", "Add weight", {CardKind::addWeight, {}}},
           SwitchRow{"Cards", "Goal weight", {CardKind::goalWeight, {}}},
           SwitchRow{"Cards", "Badges", {CardKind::badges, {}}},
           SwitchRow{"Charts", "Fasting", {CardKind::fastingChart, {}}},
           SwitchRow{"Charts", "Eating", {CardKind::eatingChart, {}}},
           SwitchRow{"Charts", "Weight", {CardKind::weightChart, {}}},
           SwitchRow{"Charts", "Weight & fasting hours", {CardKind::weightFastingChart, {}}},
           SwitchRow{"Trends", "Fasting", {CardKind::trend, Zone::fasting}},
           SwitchRow{"Trends", "Eating", {CardKind::trend, Zone::eating}},
           SwitchRow{"Trends", "Anabolic", {CardKind::trend, Zone::anabolic}},
           SwitchRow{"Trends", "Catabolic", {CardKind::trend, Zone::catabolic}},
           SwitchRow{"Trends", "Fat Burning", {CardKind::trend, Zone::fatBurning}},
           SwitchRow{"Trends", "Ketosis", {CardKind::trend, Zone::ketosis}},
           SwitchRow{"Trends", "Deep Ketosis", {CardKind::trend, Zone::deepKetosis}},
       }) {
    SCOPED_TRACE(std::string{one.group} + ": " + one.title);
    auto others = all;
    ASSERT_EQ(std::erase(others, one.card), 1U);
    // Whoever logs no weights is not asked for health data either.
    if (one.card.first == CardKind::addWeight) std::erase(others, ShownCard{CardKind::healthData, {}});
    click(one.title, one.group);
    EXPECT_EQ(cardsOf(app->statistics()), others);
    EXPECT_FALSE(row(one.title, one.group)->property("on").toBool());
    click(one.title, one.group);
    EXPECT_EQ(cardsOf(app->statistics()), all);
    EXPECT_TRUE(row(one.title, one.group)->property("on").toBool());
  }
}

TEST_F(Settings, emptyTheStatisticsWhichLeadBackToThem) {
  show("cards", {390, 1400});
  for (const char* title : {"Summary", "Donations", "Roadmap", "Add weight", "Goal weight", "Badges"})
    click(title, "Cards");
  for (const char* title : {"Fasting", "Eating", "Weight", "Weight & fasting hours"}) click(title, "Charts");
  for (const char* title : {"Fasting", "Eating", "Anabolic", "Catabolic", "Fat Burning"}) click(title, "Trends");
  click("Back");
  click("Statistics");
  EXPECT_EQ(app->ofType("SummaryCard"), nullptr);
  EXPECT_EQ(app->ofType("DayBarsCard"), nullptr);
  click("Open Settings");
  click("Summary", "Cards");
  click("Back");
  EXPECT_NE(row("About Mivo"), nullptr) << "back on the settings tab";
  click("Statistics");
  EXPECT_NE(app->ofType("SummaryCard"), nullptr);
}

TEST_F(Settings, ruleTheStreaks) {
  show("cards", {390, 1400});
  const auto& settings = app->statistics().streakSettings;
  const auto byDays = *app->statistics().stats.maxStreak;
  EXPECT_EQ(settings, StreakSettings{});
  QQuickItem* count = app->find(
      [](const QQuickItem* item) { return item->property("accessibleName").toString() == QLatin1String{"Count"}; });
  ASSERT_NE(count, nullptr);
  app->click(count, {count->width() * 0.75, count->height() / 2});
  click("Count fasts below their goal");
  QQuickItem* hours = stepper("Longest break");
  ASSERT_NE(hours, nullptr);
  for (int clicked = 0; clicked < 3; ++clicked) app->click(hours, {hours->width() - 10, hours->height() / 2});
  EXPECT_EQ(settings->countingEntity, StreakSettings::CountingEntity::fasts);
  EXPECT_TRUE(settings->ignoreFastGoal);
  EXPECT_EQ(settings->maxBreakHours, 27);
  EXPECT_EQ(hours->property("displayText"), "27h");
  EXPECT_GT(*app->statistics().stats.maxStreak, byDays);
  EXPECT_EQ(*app->statistics().badgeCardState.maxStreak, *app->statistics().stats.maxStreak);
}

TEST_F(Settings, changeTheUnitOfEveryWeight) {
  show("settings");
  click("Weight unit");
  click("Pounds");
  EXPECT_NE(app->text("lb"), nullptr) << "in the row";
  EXPECT_EQ(*app->statistics().goalWeightCardState.weightUnit, WeightUnit::pounds);
  EXPECT_EQ(*app->statistics().addWeightLogState.weightUnit, WeightUnit::pounds);
  EXPECT_EQ(app->model().addWeight->property("unit").toString(), "lb");
}

TEST_F(Settings, beginTheWeeksOfChartsOnTheChosenDay) {
  show("settings");
  app->model().chooseTimeRange(static_cast<int>(TimeRange::month));
  const auto lastWeek = [this] {
    return tests::text(app->statistics().stats.fastingChartState.data->elements().back().dateInterval.start);
  };
  EXPECT_EQ(lastWeek(), "2026-02-22 23:00:00") << "Monday in Berlin";
  click("First weekday");
  click("Sunday");
  EXPECT_EQ(lastWeek(), "2026-02-28 23:00:00");
  EXPECT_NE(app->text("Sunday"), nullptr) << "in the row";
  click("First weekday");
  click("System (Monday)");
  EXPECT_EQ(lastWeek(), "2026-02-22 23:00:00");
}

TEST_F(Settings, changeTheGoalOfFastsToCome) {
  show("settings");
  click("Goal");
  click("20h");
  click("Save");
  EXPECT_NE(app->text("20h"), nullptr);
  app->model().fasting->start();
  ASSERT_TRUE(eventually([&] { return app->state().runningFast() != nullptr; }));
  EXPECT_EQ(app->state().runningFast()->fast.goalSeconds, 20 * 3600);
  click("Goal");
  click("18h");
  click("Save");
  EXPECT_EQ(app->state().runningFast()->fast.goalSeconds, 20 * 3600) << "the running one keeps its own";
}

TEST_F(Settings, changeHowEverythingLooks) {
  show("settings");
  const auto background = [this] { return app->window().color(); };
  const QColor light = background();
  click("Appearance");
  click("Dark");
  EXPECT_LT(background().lightness(), light.lightness());
  const QQuickItem* general = app->text("General");
  ASSERT_NE(general, nullptr);
  const qreal height = general->height();
  QQuickItem* size = stepper("Text size");
  ASSERT_NE(size, nullptr);
  app->click(size, {size->width() - 10, size->height() / 2});
  EXPECT_GT(app->text("General")->height(), height);
  EXPECT_EQ(app->app.appearance().textScale(), 1.05);
}

TEST_F(Settings, keepTheTextSizeUnderThePointer) {
  show("settings", {390, 640});
  const QQuickItem* size = stepper("Text size");
  ASSERT_NE(size, nullptr);
  const QPoint plus = size->mapToScene({size->width() - 10, size->height() / 2}).toPoint();
  for (int pressed = 1; pressed <= 12; ++pressed) {
    QTest::mouseClick(&app->window(), Qt::LeftButton, Qt::NoModifier, plus);
    settle(app->window());
    ASSERT_DOUBLE_EQ(app->app.appearance().textScale(), 1 + 0.05 * pressed);
  }
}

TEST_F(Settings, areReachedByTheKeyboardAlone) {
  show("settings", {360, 640});
  press(Qt::Key_Tab);
  for (int tabs = 0; tabs < 20 && app->window().activeFocusItem() != row("Statistics and Fasting Zones"); ++tabs)
    press(Qt::Key_Tab);
  const QQuickItem* way = app->window().activeFocusItem();
  ASSERT_EQ(way, row("Statistics and Fasting Zones"));
  press(Qt::Key_Return);

  std::vector<const QQuickItem*> stops;
  for (int tabs = 0; tabs < 40; ++tabs) {
    press(Qt::Key_Tab);
    const QQuickItem* stop = app->window().activeFocusItem();
    ASSERT_NE(stop, nullptr);
    if (std::ranges::find(stops, stop) != stops.end()) break;
    stops.push_back(stop);
    const QRectF place = stop->mapRectToScene({0, 0, stop->width(), stop->height()});
    EXPECT_TRUE(QRectF(0, 0, 360, 640).contains(place)) << stop->property("text").toString().toStdString();
  }
  EXPECT_EQ(stops.size(), 21U) << "17 cards, three settings of streaks, and the way back";

  const auto focus = [](QQuickItem* item) { item->forceActiveFocus(Qt::TabFocusReason); };
  focus(row("Badges", "Cards"));
  press(Qt::Key_Space);
  EXPECT_FALSE(*app->statistics().dashboardSettings.showBadges);
  focus(stepper("Longest break"));
  press(Qt::Key_Up, 3);
  EXPECT_EQ(app->statistics().streakSettings->maxBreakHours, 27);
  press(Qt::Key_Left, 2);
  EXPECT_EQ(app->statistics().streakSettings->maxBreakHours, 25);
  press(Qt::Key_Escape);
  EXPECT_EQ(app->window().activeFocusItem(), way) << "the keys come back to the row";

  press(Qt::Key_Tab, 4);
  press(Qt::Key_Return);
  press(Qt::Key_Down, 7);
  press(Qt::Key_Return);
  EXPECT_NE(app->text("Sunday"), nullptr);
  EXPECT_EQ(app->window().activeFocusItem(), row("First weekday"));
}

TEST_F(Settings, chooseWhatToBeToldOf) {
  show("settings", {390, 1000});
  const auto chosen = [&] { return host::reminderSettings(*app->environment.dependencies->userDefaults); };
  EXPECT_EQ(chosen(), host::ReminderSettings{}) << "nothing before it is chosen";
  click("Reminders");
  click("Goal reached");
  EXPECT_EQ(chosen(), host::ReminderSettings{.tellsGoal = true});
  EXPECT_TRUE(row("Goal reached")->property("on").toBool());
  click("Eating window");
  click("Goal reached");
  EXPECT_EQ(chosen(), host::ReminderSettings{.tellsEatingWindow = true});
  EXPECT_NE(app->text("Same as last time"), nullptr);
  click("Length of the eating window");
  click("8h");
  EXPECT_EQ(chosen(), (host::ReminderSettings{.tellsEatingWindow = true, .eatingWindowHours = 8}));
  EXPECT_NE(app->text("8h"), nullptr);
  click("Back");
  EXPECT_NE(row("Reminders"), nullptr) << "back on the settings tab";
}

TEST_F(Settings, startTheAppAnewForAnotherLanguage) {
  show("settings");
  int starts = 0;
  QObject::connect(app->model().settings, &SettingsModel::languageChosen, [&] { ++starts; });
  click("Language");
  click("System");
  EXPECT_EQ(starts, 0) << "it is that already";
  click("Language");
  click("Deutsch");
  EXPECT_EQ(starts, 1);
  using Arguments = std::vector<std::string>;
  EXPECT_EQ(argumentsToStartAnew({"mivo-app", "--locale", "en-GB", "--dark", "--tab=fasting", "--screen"}),
            (Arguments{"mivo-app", "--dark", "--tab", "settings"}));
}

TEST_F(Settings, keepHowTheWindowWas) {
  const tests::TemporaryFolder folder;
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.path.string()));
  Options options = ShownApp::optionsFor("");
  options.database = (folder.path / "mivo.sqlite").string();
  options.picture = "";
  const auto openAgain = [&] {
    app.reset();
    const auto before = makeEnvironment(options).value();
    open(options, openingSize(options, *before.dependencies->userDefaults).value());
  };
  openAgain();
  EXPECT_EQ(app->window().size(), usualSize);
  EXPECT_NE(app->text("Statistics"), nullptr);
  EXPECT_FALSE(app->window().icon().isNull());
  app->window().resize(1000, 700);
  app->key(Qt::Key_3, Qt::ControlModifier);
  openAgain();
  EXPECT_EQ(app->window().size(), QSize(1000, 700));
  EXPECT_NE(app->text("General"), nullptr);
  app->key(Qt::Key_1, Qt::ControlModifier);
  app->click("Start fast");
  ASSERT_TRUE(eventually([&] { return app->state().runningFast() != nullptr; }));
  settle(app->window());
  app->click("Stop fast");
  ASSERT_TRUE(eventually([&] { return app->state().runningFast() == nullptr; }));
  settle(app->window());
  app->key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(eventually([&] { return app->state().runningFast() != nullptr; })) << "undone by the keyboard";
  app->key(Qt::Key_2, Qt::ControlModifier);
  openAgain();
  EXPECT_NE(app->button("Stop fast"), nullptr) << "a fast runs";
}

TEST_F(Settings, areAllKeptOverARestart) {
  const tests::TemporaryFolder folder;
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.path.string()));
  Options options = ShownApp::optionsFor("");
  options.database = (folder.path / "mivo.sqlite").string();
  options.locale = "";
  options.screen = "settings";
  options.picture = "";  // which would be drawn light, and without motion
  qputenv("LC_ALL", "en_GB.UTF-8");
  open(options, {390, 1400});
  click("Reduced motion");
  for (const auto& [setting, choice] : {std::pair{"Weight unit", "Pounds"},
                                        {"First weekday", "Saturday"},
                                        {"Appearance", "Dark"},
                                        {"Language", "Deutsch"}}) {
    click(setting);
    click(choice);
  }
  EXPECT_NE(app->text("Settings"), nullptr) << "the language waits for the next start";
  app->click(stepper("Text size"), {10, 20});
  click("Statistics and Fasting Zones");
  click("Roadmap", "Cards");
  click("Ketosis", "Trends");
  click("Count fasts below their goal");

  open(options);
  EXPECT_NE(app->text("Einstellungen"), nullptr);
  EXPECT_NE(app->text("Samstag"), nullptr);
  EXPECT_NE(app->text("lb"), nullptr);
  EXPECT_EQ(app->app.appearance().present().mode, host::AppearanceMode::dark);
  EXPECT_EQ(app->app.appearance().textScale(), 0.95);
  EXPECT_TRUE(app->app.appearance().reducedMotion());
  EXPECT_EQ(app->environment.calendar->firstWeekday(), 7);
  DashboardSettingsFeature::State cards;
  cards.showRoadmap = false;
  cards.showKetosisHours = true;
  EXPECT_EQ(app->statistics().dashboardSettings, cards);
  EXPECT_TRUE(app->statistics().streakSettings->ignoreFastGoal);
}

TEST_F(Settings, sayWhatTheAppIs) {
  show("about", {390, 1400});
  EXPECT_NE(app->text(MIVO_VERSION), nullptr);
  EXPECT_NE(app->text(QString::fromStdString(app->environment.databaseFile.string())), nullptr);
  EXPECT_NE(app->text("SQLite"), nullptr);
}

}  // namespace
}  // namespace mivo::app
