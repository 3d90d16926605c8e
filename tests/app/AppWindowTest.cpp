// SPDX-License-Identifier: MIT
// The app in its window, driven with clicks and keys.
#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <cmath>
#include <fstream>

#include "app/items/DayBars.h"
#include "tests/app/ShownApp.h"
#include "tests/support/FixedClients.h"
#include "tests/support/Instants.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

constexpr const char* overlappingFasts =
    R"({"version":1,"fasts":[{"start":"2026-02-25T19:00:00Z","end":"2026-02-26T12:00:00Z"},
                             {"start":"2026-02-26T11:00:00Z","end":"2026-02-27T03:00:00Z"}],"weights":[]})";
constexpr const char* somethingForEverySheet =
    R"({"version":1,"fasts":[{"start":"2026-02-25T19:00:00Z","end":"2026-02-26T12:00:00Z"},
                             {"start":"2026-02-26T11:00:00Z","end":"2026-02-27T03:00:00Z"},
                             {"start":"2026-03-01T03:00:00Z","end":null}],
        "weights":[{"date":"2026-02-28T07:00:00Z","weightInKg":72.4}]})";

/// A window high enough for the whole column.
struct Shown : ShownApp {
  explicit Shown(const std::string& sample) : ShownApp{optionsFor(sample)} {
    window().setHeight(window().property("wholeHeight").toInt());
    settle(window());
  }
};

DayBars* dayBars(ShownApp& shown) {
  return dynamic_cast<DayBars*>(
      shown.find([](const QQuickItem* item) { return dynamic_cast<const DayBars*>(item) != nullptr; }));
}

TEST(AppWindow, movesNothingAfterItsFirstFrame) {
  const Options options = ShownApp::optionsFor(threeWeeks);
  for (const QSize size : {QSize{390, 844}, QSize{1280, 800}}) {
    const Environment environment = makeEnvironment(options).value();
    const DependencyScope scope{environment.dependencies};
    AppWindow app{environment, options, size};
    bool isShown = false;
    QObject::connect(app.window(), &QQuickWindow::frameSwapped, app.window(), [&] { isShown = true; });
    ASSERT_TRUE(eventually([&] { return isShown; }));
    const QImage first = app.window()->grabWindow();
    settle(*app.window());
    EXPECT_EQ(first, app.window()->grabWindow()) << size.width() << " points wide";
  }
}

/// The sheet that is open, where all of it can be seen.
const QQuickItem* wholeSheet(ShownApp& shown) {
  const QQuickItem* sheet =
      shown.find([](const QQuickItem* item) { return item->inherits("QQuickPopupItem") && item->height() > 0; });
  const QRectF window{QPointF{}, QSizeF{shown.window().size()}};
  const bool isWhole =
      sheet && sheet->opacity() == 1 && window.contains(sheet->mapRectToScene({QPointF{}, sheet->size()}));
  return isWhole ? sheet : nullptr;
}

TEST(AppWindow, opensEverySheetAsOftenAsItIsWantedWhileThingsMove) {
  const tests::TemporaryFolder folder;
  const std::string sample = (folder.path / "sample.json").string();
  std::ofstream{sample} << somethingForEverySheet;
  Options options = ShownApp::optionsFor(sample);
  options.picture.clear();
  ShownApp shown{options};
  const auto present = [&shown](const char* screen) { shown.model().present(QString::fromLatin1(screen)); };
  for (const char* sheet : {"editFast", "addFast", "fastGoal", "fastStart", "fastMenu", "defaultGoal", "weightUnit",
                            "firstWeekday", "language", "appearance", "eatingWindow", "feedback", "donations",
                            "overlaps", "goalWeight", "editWeight", "date", "table"})
    for (const char* time : {" first", " again"}) {
      present(sheet);
      EXPECT_TRUE(eventually([&] { return wholeSheet(shown) != nullptr; })) << sheet << time;
      present("");
      EXPECT_TRUE(eventually([&] { return shown.ofType("QQuickPopupItem") == nullptr; })) << sheet << time;
    }
}

TEST(AppWindow, movesAllChartsToTheNewDayAtMidnight) {
  const auto clock = std::make_shared<tests::FixedClock>(tests::utc("2026-03-01 22:59:50"));
  Options options = ShownApp::optionsFor(threeWeeks);
  options.locale = "en-DE";  // kilograms
  ShownApp shown{options, {390, 844}, clock};
  AppModel& app = shown.model();
  const auto heads = [&] {
    return QStringList{app.fastingChart->visibleDates(), app.eatingChart->visibleDates(),
                       app.weightChart->visibleDates(), app.weightFastingChart->visibleDates()}
        .join(QLatin1Char{','})
        .simplified()
        .toStdString();
  };
  shown.window().setHeight(shown.window().property("wholeHeight").toInt());
  settle(shown.window());
  const std::string before = "23 Feb – 1 Mar 2026", after = "24 Feb – 2 Mar 2026";
  EXPECT_EQ(heads(), before + "," + before + "," + before + "," + before);
  const std::string average = app.weightChart->average().toStdString();
  clock->date = tests::utc("2026-03-01 23:00:10");
  app.send(AppModel::Action::recompute{});
  EXPECT_EQ(heads(), after + "," + after + "," + after + "," + after);
  EXPECT_NE(app.weightChart->average().toStdString(), average) << "without the weight of 23 February";
}

/// Goes over midnight as soon as the statistics were computed for the day's last moment.
struct ClockAtMidnight final : DateGenerator {
  Date now() const override { return isComputed && isComputed() ? lastMoment + Duration{0.1} : lastMoment; }
  Date lastMoment = tests::utc("2026-03-01 22:59:59") + Duration{0.9};
  std::function<bool()> isComputed;
};

TEST(AppWindow, missesNoMidnightThatComesWhileTheStatisticsAreComputed) {
  const auto clock = std::make_shared<ClockAtMidnight>();
  clock->lastMoment -= Duration{0.1};
  ShownApp shown{ShownApp::optionsFor(threeWeeks), {390, 844}, clock};
  clock->lastMoment += Duration{0.1};
  clock->isComputed = [&] { return *shown.state().now >= clock->lastMoment; };
  EXPECT_TRUE(eventually([&] { return shown.text(QStringLiteral("Today, 00:00")) != nullptr; }));
}

TEST(AppWindow, choosesTheRangeByClickAndByKey) {
  Shown shown{threeWeeks};
  QQuickItem* picker = shown.ofType("SegmentedControl");
  ASSERT_NE(picker, nullptr);
  shown.click(picker);
  EXPECT_EQ(shown.statistics().timeRange, TimeRange::month);
  EXPECT_EQ(*shown.statistics().stats.fastingChartState.chartTimeUnit, ChartTimeUnit::week);
  picker->forceActiveFocus();
  QTest::keyClick(&shown.window(), Qt::Key_Right);
  EXPECT_EQ(shown.statistics().timeRange, TimeRange::year);
}

TEST(AppWindow, tellsTheChartOfItsBarsWhereAnotherRangeHasAsMany) {
  const tests::TemporaryFolder folder;
  const std::string sample = (folder.path / "today.json").string();
  std::ofstream{sample} << R"({"version":1,"fasts":[{"start":"2026-03-01T01:00:00Z","end":"2026-03-01T09:00:00Z"}],
                               "weights":[]})";
  ShownApp shown{ShownApp::optionsFor(sample), {1280, 800}};  // so wide that a bar of a day is as wide as one of a week
  const auto& chart = shown.statistics().stats.fastingChartState;
  for (const TimeRange range : {TimeRange::week, TimeRange::month, TimeRange::year, TimeRange::week}) {
    shown.model().chooseTimeRange(static_cast<int>(range));
    settle(shown.window());
    ASSERT_EQ(chart.data->size(), 1u);
    EXPECT_EQ(chart.visibleDays->begin()->first, chart.data->front().dateInterval.start) << rawValue(range);
  }
}

TEST(AppWindow, selectsABarAndClearsItByASecondTap) {
  Shown shown{threeWeeks};
  DayBars* bars = dayBars(shown);
  ASSERT_NE(bars, nullptr);
  const QPointF lastBar{16 + bars->plotWidth() - 10, bars->height() / 2};
  const auto& chart = shown.statistics().stats.fastingChartState;
  shown.click(bars, lastBar);
  EXPECT_EQ(*chart.selectedUUID, chart.data->elements().back().id);
  EXPECT_TRUE(chart.popupViewState().has_value());
  shown.click(bars, lastBar);
  EXPECT_EQ(*chart.selectedUUID, std::nullopt);
}

TEST(AppWindow, scrollsBothDayBarChartsTogether) {
  Shown shown{threeWeeks};
  DayBars* bars = dayBars(shown);
  ASSERT_NE(bars, nullptr);
  EXPECT_EQ(bars->scroll(), bars->maxScroll()) << "the latest day";
  bars->selectEnd(false);
  settle(shown.window());
  EXPECT_EQ(bars->scroll(), 0);
  const auto& stats = shown.statistics().stats;
  EXPECT_EQ(*stats.fastingChartState.scrollViewMidX, bars->plotWidth() / 2);
  EXPECT_EQ(*stats.eatingChartState.scrollViewMidX, *stats.fastingChartState.scrollViewMidX);
  EXPECT_FALSE(
      stats.eatingChartState.visibleDays->contains(stats.eatingChartState.data->elements().back().dateInterval.start));
}

/// Sends a turn of a sideways wheel, in eighths of a degree, a moment after the pointer's last event: one from before
/// it is left out.
void turnSideways(QQuickWindow& window, QPointF place, int angle) {
  QWheelEvent event{place,          window.mapToGlobal(place), {},   {angle, 0}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase,         false};
  event.setTimestamp(static_cast<quint64>(QTest::lastMouseTimestamp += 100));
  QCoreApplication::sendEvent(&window, &event);
}

void drag(QQuickWindow& window, QPoint from, int distance) {
  QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, from);
  for (int moved = 0; moved != distance; moved += distance / 10)
    QTest::mouseMove(&window, from + QPoint{moved + distance / 10, 0}, 10);
  QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, from + QPoint{distance, 0}, 400);
}

TEST(AppWindow, snapsItsBarsAndNamesThoseThatAreSeen) {
  Options options = ShownApp::optionsFor(threeWeeks);
  options.picture.clear();  // things move
  ShownApp shown{options, {390, 2600}};
  DayBars* bars = dayBars(shown);
  ASSERT_NE(bars, nullptr);
  const auto& data = *shown.statistics().stats.fastingChartState.data;
  const QPointF middle = bars->mapToScene({bars->width() / 2, bars->height() / 2});
  const QQuickItem* layer = shown.find([bars](const QQuickItem* item) {
    return item->inherits("QQuickFlickable") && item->parentItem() == bars->parentItem();
  });
  ASSERT_NE(layer, nullptr);
  const std::pair<const char*, std::function<void()>> gestures[] = {
      {"drag", [&] { drag(shown.window(), middle.toPoint(), 150); }},
      {"sideways wheel", [&] { turnSideways(shown.window(), middle, -120); }},
  };
  for (const auto& [name, make] : gestures) {
    const qreal before = bars->scroll();
    make();
    EXPECT_TRUE(eventually([&] { return bars->scroll() != before; })) << name << " moves";
    EXPECT_TRUE(eventually([&] {
      return !layer->property("underway").toBool() && std::abs(bars->scroll() - bars->snapped(bars->scroll())) < 0.01;
    })) << name
        << ": stands at " << bars->scroll() << ", not at " << bars->snapped(bars->scroll());
    const auto first = static_cast<std::size_t>(std::lround(bars->scroll() / (bars->plotWidth() / 7)));
    const auto dates = dependency(&Dependencies::dateIntervalFormatter)
                           ->string({data[first].dateInterval.start, data[first + 6].dateInterval.end});
    EXPECT_EQ(shown.model().fastingChart->visibleDates().toStdString(), dates) << name;
    EXPECT_EQ(shown.model().eatingChart->visibleDates().toStdString(), dates) << name;
  }
}

TEST(AppWindow, opensTheBadgesAndGoesBackStepByStep) {
  Shown shown{threeWeeks};
  QQuickItem* card = shown.ofType("BadgesCard");
  ASSERT_NE(card, nullptr);
  shown.click(card);
  EXPECT_EQ(openScreen(shown.state()), host::Screen::badges);
  QQuickItem* family = shown.ofType("BadgeFamilyCard");
  ASSERT_NE(family, nullptr);
  shown.click(family);
  EXPECT_EQ(openScreen(shown.state()), host::Screen::milestones);
  QTest::keyClick(&shown.window(), Qt::Key_Escape);
  EXPECT_EQ(openScreen(shown.state()), host::Screen::badges);
  settle(shown.window());
  QTest::keyClick(&shown.window(), Qt::Key_Escape);
  EXPECT_EQ(openScreen(shown.state()), host::Screen::statistics);
}

TEST(AppWindow, saysThatTheRoadmapCannotBeLoadedAndTriesAgain) {
  Shown shown{threeWeeks};
  shown.app.model().present("roadmap");
  ASSERT_TRUE(eventually([&] { return shown.app.model().roadmap()->page().notice.hasFailed; }));
  settle(shown.window());
  QQuickItem* again = shown.button("Try again");
  ASSERT_NE(again, nullptr);
  shown.click(again);
  EXPECT_TRUE(eventually([&] { return shown.app.model().roadmap()->page().notice.hasFailed; }));
}

TEST(AppWindow, logsAWeightOnceAndTakesItBack) {
  Shown shown{threeWeeks};
  const auto before = shown.state().weights->size();
  QQuickItem* save = shown.button("Save");
  ASSERT_NE(save, nullptr);
  shown.click(save);
  EXPECT_TRUE(eventually([&] { return shown.state().weights->size() == before + 1; }));
  EXPECT_EQ(shown.environment.history->load().weights.size(), before + 1) << "on disk";
  settle(shown.window());
  EXPECT_NE(shown.text("Weight saved"), nullptr);
  shown.click("Save");
  EXPECT_NE(shown.text("This weight is saved already."), nullptr);
  shown.click("OK");
  shown.click("Undo");
  EXPECT_TRUE(eventually([&] { return shown.state().weights->size() == before; }));
  EXPECT_EQ(shown.environment.history->load().weights.size(), before) << "on disk";
}

TEST(AppWindow, typesAWeightOverTheOneThatIsClicked) {
  Shown shown{threeWeeks};
  QQuickItem* field = shown.ofType("NumberField");
  ASSERT_NE(field, nullptr);
  shown.click(field);
  shown.type("1804");
  shown.key(Qt::Key_Return);
  EXPECT_NE(shown.text("Type up to 700 kg or 1543 lb, such as 81.4."), nullptr);
  shown.click(field, {field->width() / 2 - 60, field->height() / 2});
  shown.key(Qt::Key_Backspace);
  EXPECT_EQ(field->property("text").toString().size(), 3) << "a second click only moves the caret";
  field->parentItem()->forceActiveFocus();
  shown.click(field, {60, field->height() / 2});
  shown.type("80.4kg");
  shown.key(Qt::Key_Return);
  EXPECT_TRUE(eventually([&] { return *shown.statistics().stats.currentWeightInKg == 80.4; }));
}

TEST(AppWindow, opensTheGoalWeightFromItsCard) {
  Shown shown{threeWeeks};
  const auto& goal = shown.statistics().goalWeightCardState.goalInKg;
  const auto typeGoal = [&](const char* typed) {
    QQuickItem* card = shown.ofType("GoalWeightCard");
    shown.click(card, {card->width() / 3, 24});
    shown.type(QString::fromLatin1(typed));
    shown.key(Qt::Key_Return);
  };
  typeGoal("68kg");
  EXPECT_EQ(*goal, 68);
  typeGoal("67.5kg");
  EXPECT_EQ(*goal, 67.5) << "what stood there was selected";
  QQuickItem* card = shown.ofType("GoalWeightCard");
  card->forceActiveFocus();
  shown.key(Qt::Key_Space);
  shown.type("66kg");
  shown.key(Qt::Key_Return);
  EXPECT_EQ(*goal, 66) << "by keys alone";
}

TEST(AppWindow, fixesOverlapsOnConfirmationAndUndoesIt) {
  const tests::TemporaryFolder folder;
  const std::string sample = (folder.path / "overlapping.json").string();
  std::ofstream{sample} << overlappingFasts;
  Shown shown{sample};
  EXPECT_TRUE(*shown.statistics().stats.hasOverlappingFasts);
  shown.app.model().present("overlaps");
  settle(shown.window());
  QQuickItem* fix = shown.button(shown.app.model().repair->property("button").toString());
  ASSERT_NE(fix, nullptr);
  shown.click(fix);
  EXPECT_TRUE(eventually([&] { return !*shown.statistics().stats.hasOverlappingFasts; }));
  settle(shown.window());
  QQuickItem* undo = shown.button("Undo");
  ASSERT_NE(undo, nullptr);
  shown.click(undo);
  EXPECT_TRUE(eventually([&] { return *shown.statistics().stats.hasOverlappingFasts; }));
}

}  // namespace
}  // namespace mivo::app
