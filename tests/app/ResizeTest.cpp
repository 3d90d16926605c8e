// SPDX-License-Identifier: MIT
// The window at every width: nothing lies over anything, and whoever looks at something keeps looking at it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtTest/QTest>

#include "app/gallery/Faults.h"
#include "app/items/DayBars.h"
#include "app/items/LineChart.h"
#include "tests/app/ShownApp.h"

namespace mivo::app {
namespace {

const std::string tenYears = MIVO_DATA_FOLDER "/ten-years.json";
constexpr int narrowest = 320, widest = 1920;

class Resize : public testing::Test {
 protected:
  void show(const char* tab, const std::string& sample = tenYears, QSize size = {390, 844}) {
    Options options = ShownApp::optionsFor(sample);
    options.tab = tab;
    app.reset();
    app = std::make_unique<ShownApp>(options, size);
    ASSERT_TRUE(eventually([&] { return faultsOf(app->window()).filter("missing").isEmpty(); })) << "all cards";
  }

  void become(int width) {
    app->window().setWidth(width);
    ASSERT_TRUE(eventually([&] { return qRound(app->window().contentItem()->width()) == width; }));
    for (int frame = 0; frame < 3; ++frame) app->window().grabWindow();  // what one frame lays out, the next may move
    QCoreApplication::processEvents();
  }

  template <class Item>
  std::vector<Item*> all() {
    std::vector<Item*> found;
    app->find([&found](const QQuickItem* item) {
      if (auto* one = dynamic_cast<const Item*>(item)) found.push_back(const_cast<Item*>(one));
      return false;
    });
    return found;
  }

  static QQuickItem* layerOver(const QQuickItem* chart) {
    for (QQuickItem* sibling : chart->parentItem()->childItems())
      if (sibling->inherits("QQuickFlickable")) return sibling;
    return nullptr;
  }

  double top(const char* type) {
    const QQuickItem* item = app->ofType(type);
    return item ? item->mapToScene({0, 0}).y() : NAN;
  }

  std::unique_ptr<ShownApp> app;
};

TEST_F(Resize, laysNothingOverAnythingAtAnyWidth) {
  for (const char* tab : {"statistics", "fasting", "settings"}) {
    show(tab);
    int faulty = 0;
    for (int width = narrowest; width <= widest && faulty < 3; width += 10) {
      become(width);
      const QStringList overlaps = overlapsOf(app->window());
      EXPECT_TRUE(overlaps.isEmpty()) << tab << ", " << width << " points wide: " << overlaps.join("; ").toStdString();
      faulty += overlaps.isEmpty() ? 0 : 1;
    }
  }
}

TEST_F(Resize, keepsTheLatestInSight) {
  show("statistics");
  for (const TimeRange range : {TimeRange::week, TimeRange::month, TimeRange::year}) {
    app->model().chooseTimeRange(static_cast<int>(range));
    settle(app->window());
    for (const int width : {1280, 390, 950, 1598, 320, 700, 1920, 900, 390}) {
      become(width);
      ASSERT_EQ(all<DayBars>().size(), 2U);
      ASSERT_EQ(all<LineChart>().size(), 2U);
      for (const DayBars* bars : all<DayBars>())
        EXPECT_NEAR(bars->scroll(), bars->maxScroll(), 0.01) << rawValue(range) << ", " << width << " points wide";
      for (const LineChart* line : all<LineChart>())
        EXPECT_NEAR(line->scroll(), line->maxScroll(), 0.01) << rawValue(range) << ", " << width << " points wide";
      for (const DayBarsModel* chart : {app->model().fastingChart, app->model().eatingChart}) {
        const auto& days = *chart->state().visibleDays;
        EXPECT_EQ(days.rbegin()->first, chart->state().data->elements().back().dateInterval.start);
        EXPECT_GE(days.size(), 5U) << "no column is blank";
      }
    }
  }
}

TEST_F(Resize, keepsTheDatesThatAreLookedAt) {
  show("statistics");
  for (const TimeRange range : {TimeRange::week, TimeRange::year}) {
    app->model().chooseTimeRange(static_cast<int>(range));
    settle(app->window());
    DayBars* bars = all<DayBars>().front();
    layerOver(bars)->setProperty("contentX", bars->snapped(bars->maxScroll() - 300));
    LineChart* line = all<LineChart>().front();
    layerOver(line)->setProperty("contentX", line->maxScroll() - 300);
    settle(app->window());
    const auto lastBar = [&] { return app->model().eatingChart->state().visibleDays->rbegin()->first; };
    const Date bar = lastBar();
    const QString dates = app->model().weightChart->visibleDates();
    for (const int width : {1280, 950, 1598, 320, 700, 1920, 390}) {
      become(width);
      EXPECT_EQ(lastBar(), bar) << rawValue(range) << ", " << width << " points wide";
      EXPECT_EQ(app->model().weightChart->visibleDates(), dates) << rawValue(range) << ", " << width;
    }
  }
}

TEST_F(Resize, keepsTheCardThatIsLookedAt) {
  show("statistics");
  QQuickItem* page = app->ofType("StatisticsPage");
  ASSERT_NE(page, nullptr);
  QQuickItem* flick = app->find(
      [page](const QQuickItem* item) { return item->inherits("QQuickFlickable") && item->parentItem() == page; });
  ASSERT_NE(flick, nullptr);
  const double before = top("WeightChartCard");
  flick->setProperty("contentY", flick->property("contentY").toReal() + before - 100);
  settle(app->window());
  for (const int width : {640, 1280, 950, 390}) {
    become(width);
    EXPECT_GT(top("WeightChartCard"), -20) << width;
    EXPECT_LT(top("WeightChartCard"), 500) << width;
  }
  flick->setProperty("contentY", 0);
  for (const int width : {1280, 390}) {
    become(width);
    EXPECT_EQ(flick->property("contentY").toReal(), 0) << "the top of the page stays";
  }
}

TEST_F(Resize, keepsTheHistoryAndItsHeading) {
  for (const bool beginsWide : {false, true}) {
    show("fasting", tenYears, {beginsWide ? 1280 : 390, 844});
    for (const int width : {1280, 390, 690, 710, 899, 901, 920, 320, 1598, 390}) {
      become(width);
      EXPECT_GE(top("PageTitle"), 0) << width;
      EXPECT_GE(top("TimerRing"), 0) << width;
      EXPECT_LT(top("TimerRing"), 200) << width;
      EXPECT_GE(top("HistoryTitle"), 0) << "its heading, " << width;
    }
    QQuickItem* list = app->ofType("HistoryList");
    ASSERT_NE(list, nullptr);
    QMetaObject::invokeMethod(list, "positionViewAtIndex", Q_ARG(int, 100), Q_ARG(int, 0));
    settle(app->window());
    const auto rowAtTop = [&] {
      int row = -1;
      QMetaObject::invokeMethod(list, "indexAt", Q_RETURN_ARG(int, row),
                                Q_ARG(double, list->property("rowX").toReal() + 50),
                                Q_ARG(double, list->property("contentY").toReal() + 20));
      return row;
    };
    ASSERT_EQ(rowAtTop(), 100);
    for (const int width : {1280, 390, 690, 710, 901, 320, 1598, 390}) {
      become(width);
      EXPECT_EQ(rowAtTop(), 100) << width;
    }
  }
}

}  // namespace
}  // namespace mivo::app
