// SPDX-License-Identifier: MIT
// The app in its window, driven with clicks and keys.
#include <gtest/gtest.h>

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>
#include <fstream>

#include "app/items/DayBars.h"
#include "app/program/Environment.h"
#include "app/program/Window.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

constexpr const char* overlappingFasts =
    R"({"version":1,"fasts":[{"start":"2026-02-25T19:00:00Z","end":"2026-02-26T12:00:00Z"},
                             {"start":"2026-02-26T11:00:00Z","end":"2026-02-27T03:00:00Z"}],"weights":[]})";

/// A window high enough for the whole column, on a sample of its own; the clock stands still and nothing moves.
struct Shown {
  explicit Shown(const std::string& sample)
      : options{optionsFor(sample)},
        environment{makeEnvironment(options).value()},
        scope{environment.dependencies},
        app{environment, options, {390, 844}} {
    settle(window());
    window().setHeight(window().property("wholeHeight").toInt());
    settle(window());
  }

  static Options optionsFor(const std::string& sample) {
    Options options;
    options.sample = sample;
    options.now = "2026-03-01T12:00:00Z";
    options.timeZone = "Europe/Berlin";
    options.locale = "en-GB";
    options.tally = "http://127.0.0.1:9";  // nobody listens
    options.picture = "-";
    return options;
  }

  QQuickWindow& window() { return *app.window(); }
  const AppModel::State& state() { return app.model().state(); }
  const StatisticsFeature::State& statistics() { return state().statistics; }

  void click(const QQuickItem* item, QPointF at) {
    QTest::mouseClick(&window(), Qt::LeftButton, Qt::NoModifier, item->mapToScene(at).toPoint());
    settle(window());
  }
  void click(const QQuickItem* item) { click(item, {item->width() / 2, item->height() / 2}); }

  Options options;
  Environment environment;
  DependencyScope scope;
  AppWindow app;
};

const std::string threeWeeks = MIVO_DATA_FOLDER "/three-weeks.json";

// The first visible item below another that a question holds for.
template <class Question>
QQuickItem* find(QQuickItem* item, const Question& question) {
  if (!item->isVisible()) return nullptr;
  if (question(item)) return item;
  for (QQuickItem* child : item->childItems())
    if (QQuickItem* found = find(child, question)) return found;
  return nullptr;
}

QQuickItem* ofType(Shown& shown, const char* type) {
  return find(shown.window().contentItem(),
              [type](const QQuickItem* item) { return QByteArray{item->metaObject()->className()}.startsWith(type); });
}

QQuickItem* button(Shown& shown, const QString& text) {
  return find(shown.window().contentItem(), [&text](const QQuickItem* item) {
    return item->inherits("QQuickAbstractButton") && item->property("text").toString() == text;
  });
}

bool eventually(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, 5000); }

TEST(AppWindow, choosesTheRangeByClickAndByKey) {
  Shown shown{threeWeeks};
  QQuickItem* picker = ofType(shown, "SegmentedControl");
  ASSERT_NE(picker, nullptr);
  shown.click(picker);
  EXPECT_EQ(shown.statistics().timeRange, TimeRange::month);
  EXPECT_EQ(*shown.statistics().stats.fastingChartState.chartTimeUnit, ChartTimeUnit::week);
  picker->forceActiveFocus();
  QTest::keyClick(&shown.window(), Qt::Key_Right);
  EXPECT_EQ(shown.statistics().timeRange, TimeRange::year);
}

TEST(AppWindow, selectsABarAndClearsItByASecondTap) {
  Shown shown{threeWeeks};
  auto* bars = dynamic_cast<DayBars*>(
      find(shown.window().contentItem(), [](QQuickItem* item) { return dynamic_cast<DayBars*>(item) != nullptr; }));
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
  auto* bars = dynamic_cast<DayBars*>(
      find(shown.window().contentItem(), [](QQuickItem* item) { return dynamic_cast<DayBars*>(item) != nullptr; }));
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

TEST(AppWindow, opensTheBadgesAndGoesBackStepByStep) {
  Shown shown{threeWeeks};
  QQuickItem* card = ofType(shown, "BadgesCard");
  ASSERT_NE(card, nullptr);
  shown.click(card);
  EXPECT_EQ(shown.app.model().destination(), "badges");
  QQuickItem* family = ofType(shown, "BadgeFamilyCard");
  ASSERT_NE(family, nullptr);
  shown.click(family);
  EXPECT_EQ(shown.app.model().badges()->list(), "milestones");
  QTest::keyClick(&shown.window(), Qt::Key_Escape);
  EXPECT_EQ(shown.app.model().badges()->list(), "");
  settle(shown.window());
  QTest::keyClick(&shown.window(), Qt::Key_Escape);
  EXPECT_EQ(shown.app.model().destination(), "");
}

TEST(AppWindow, saysThatTheRoadmapCannotBeLoadedAndTriesAgain) {
  Shown shown{threeWeeks};
  shown.app.model().openRoadmap();
  ASSERT_TRUE(eventually([&] { return shown.app.model().roadmap()->hasFailed(); }));
  settle(shown.window());
  QQuickItem* again = button(shown, "Try again");
  ASSERT_NE(again, nullptr);
  shown.click(again);
  EXPECT_TRUE(eventually([&] { return shown.app.model().roadmap()->hasFailed(); }));
}

TEST(AppWindow, logsAWeight) {
  Shown shown{threeWeeks};
  const auto before = shown.state().weights->size();
  QQuickItem* save = button(shown, "Save");
  ASSERT_NE(save, nullptr);
  shown.click(save);
  EXPECT_TRUE(eventually([&] { return shown.state().weights->size() == before + 1; }));
  EXPECT_EQ(shown.environment.history->load().weights.size(), before + 1) << "on disk";
}

TEST(AppWindow, fixesOverlapsOnConfirmationAndUndoesIt) {
  const tests::TemporaryFolder folder;
  const std::string sample = (folder.path / "overlapping.json").string();
  std::ofstream{sample} << overlappingFasts;
  Shown shown{sample};
  EXPECT_TRUE(*shown.statistics().stats.hasOverlappingFasts);
  shown.app.model().fixOverlaps();
  settle(shown.window());
  QQuickItem* fix = button(shown, shown.app.model().repair()->buttonText());
  ASSERT_NE(fix, nullptr);
  shown.click(fix);
  EXPECT_TRUE(eventually([&] { return !*shown.statistics().stats.hasOverlappingFasts; }));
  settle(shown.window());
  QQuickItem* undo = button(shown, "Undo");
  ASSERT_NE(undo, nullptr);
  shown.click(undo);
  EXPECT_TRUE(eventually([&] { return *shown.statistics().stats.hasOverlappingFasts; }));
}

}  // namespace
}  // namespace mivo::app

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  const QGuiApplication application{count, arguments};
  return RUN_ALL_TESTS();
}
