// SPDX-License-Identifier: MIT
// The controls that are Mivo's own, with wheel, pointer and keys.
#include <gtest/gtest.h>

#include <QtGui/QWheelEvent>
#include <QtTest/QTest>

#include <algorithm>
#include <map>
#include <random>
#include <vector>

#include "host/app/Settings.h"
#include "tests/app/ShownApp.h"

namespace mivo::app {
namespace {

/// The sheet that chooses the date of a weight: 1 March 2026, 13:00.
struct DateSheet {
  explicit DateSheet(const std::string& locale = "en-GB") : app{optionsIn(locale)} {}

  static Options optionsIn(const std::string& locale) {
    Options options = ShownApp::optionsFor(threeWeeks);
    options.locale = locale;
    options.screen = "date";
    return options;
  }

  QQuickItem* wheel(const char* name) {
    return app.find([name](const QQuickItem* item) {
      return QByteArray{item->metaObject()->className()}.startsWith("Wheel_") &&
             item->property("spoken").toString().startsWith(QLatin1String{name});
    });
  }
  int value(const char* name) { return wheel(name)->property("value").toInt(); }
  QPointF middle(const char* name) {
    const QQuickItem* item = wheel(name);
    return item->mapToScene({item->width() / 2, item->height() / 2});
  }

  void turn(const char* name, int eighthsOfDegrees) {
    const QPointF at = middle(name);
    QWheelEvent event{
        at,   app.window().mapToGlobal(at), {}, {0, eighthsOfDegrees}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
        false};
    QCoreApplication::sendEvent(&app.window(), &event);
    settle(app.window());
  }

  /// A row of a wheel, so many below the middle.
  void click(const char* name, int rows) {
    const QQuickItem* item = wheel(name);
    app.click(item, {item->width() / 2, item->height() / 2 + rows * 36.0});
  }

  ShownApp app;
};

TEST(Wheel, turnsOneRowANotch) {
  DateSheet sheet;
  EXPECT_EQ(sheet.value("Hour"), 13);
  sheet.turn("Hour", -120);
  EXPECT_EQ(sheet.value("Hour"), 14);
  sheet.turn("Hour", 240);
  EXPECT_EQ(sheet.value("Hour"), 12);
  for (int quarter = 0; quarter < 4; ++quarter) sheet.turn("Hour", -30);
  EXPECT_EQ(sheet.value("Hour"), 13) << "wheels that turn finer";
  EXPECT_NE(sheet.app.text("Today, 13:00"), nullptr);
}

TEST(Wheel, choosesTheRowThatIsClicked) {
  DateSheet sheet;
  sheet.click("Hour", 2);
  EXPECT_EQ(sheet.value("Hour"), 15);
  sheet.click("Minute", -1);
  EXPECT_EQ(sheet.value("Minute"), 59) << "before the first one comes the last";
  EXPECT_NE(sheet.app.text("Today, 15:59"), nullptr);
}

TEST(Wheel, obeysTheKeys) {
  DateSheet sheet;
  const int today = sheet.value("Day");
  sheet.click("Day", -1);
  sheet.app.key(Qt::Key_PageUp);
  EXPECT_EQ(sheet.value("Day"), today - 8);
  sheet.app.key(Qt::Key_Home);
  EXPECT_EQ(sheet.value("Day"), today);
  sheet.click("Hour", 0);
  const std::pair<Qt::Key, int> hours[] = {{Qt::Key_Down, 14}, {Qt::Key_PageDown, 20}, {Qt::Key_PageUp, 14},
                                           {Qt::Key_Up, 13},   {Qt::Key_Home, 0},      {Qt::Key_End, 23}};
  for (const auto& [key, hour] : hours) {
    sheet.app.key(key);
    EXPECT_EQ(sheet.value("Hour"), hour) << key;
  }
  sheet.app.type("09");
  EXPECT_EQ(sheet.value("Hour"), 9);
  sheet.app.key(Qt::Key_Tab);
  sheet.app.type("47");
  EXPECT_EQ(sheet.value("Minute"), 47);
  EXPECT_NE(sheet.app.text("Today, 09:47"), nullptr);
  sheet.app.type("7");
  EXPECT_EQ(sheet.value("Minute"), 7) << "477 is no minute";
  EXPECT_EQ(sheet.value("Day"), today);
}

TEST(Wheel, standsInItsColumnWithoutMotion) {
  DateSheet sheet;
  const QQuickItem* hours = sheet.wheel("Hour");
  int rows = 0;
  sheet.app.find([&](const QQuickItem* item) {
    if (!item->inherits("QQuickText") || !hours->isAncestorOf(item)) return false;
    ++rows;
    EXPECT_EQ(item->mapRectToItem(hours, {0, 0, item->width(), item->height()}).center().x(), hours->width() / 2);
    return false;
  });
  EXPECT_GE(rows, 5);
}

TEST(DateTimeSheet, readsADateThatIsTyped) {
  DateSheet sheet;
  sheet.click("Day", 0);
  sheet.app.type("2026-02-3");
  sheet.app.key(Qt::Key_Return);
  EXPECT_NE(sheet.app.text("Type a day up to tomorrow and a time, such as 2026-03-01 13:00."), nullptr);
  sheet.app.key(Qt::Key_Backspace);
  sheet.app.type("28 06:45");
  sheet.app.key(Qt::Key_Return);
  EXPECT_NE(sheet.app.text("Yesterday, 06:45"), nullptr);
  EXPECT_EQ(sheet.value("Minute"), 45);
  sheet.app.click("Type the date");
  sheet.app.type("18:30");
  sheet.app.key(Qt::Key_Return);
  EXPECT_NE(sheet.app.text("Yesterday, 18:30"), nullptr);
  sheet.app.click("Type the date");
  sheet.app.type("never");
  sheet.app.click("Done");
  EXPECT_NE(sheet.app.button("Done"), nullptr) << "the sheet stays open over what is no date";
  sheet.app.key(Qt::Key_Escape);
  EXPECT_NE(sheet.app.text("Yesterday, 18:30"), nullptr) << "Escape leaves the field, not the sheet";
  sheet.app.click("Done");
  EXPECT_NE(sheet.app.find([](const QQuickItem* item) {
    return item->inherits("QQuickAbstractButton") && item->property("text").toString().endsWith(QLatin1String{"18:30"});
  }),
            nullptr);
}

TEST(DateTimeSheet, hasTheRegionsClock) {
  DateSheet sheet{"en-US"};
  for (const char* hour : {"11\u202fAM", "1\u202fPM"})
    EXPECT_NE(sheet.app.text(QString::fromUtf8(hour)), nullptr) << hour;
}

qreal scrolled(ShownApp& app) {
  const QQuickItem* page = app.find([](const QQuickItem* item) {
    return item->inherits("QQuickFlickable") && item->property("contentHeight").toReal() > item->height() &&
           item->height() > 300;
  });
  return page ? page->property("contentY").toReal() : -1;
}

TEST(Pages, scrollByTheKeys) {
  for (const char* screen : {"statistics", "settings", "cards", "about"}) {
    SCOPED_TRACE(screen);
    Options options = ShownApp::optionsFor(threeWeeks);
    options.screen = screen;
    ShownApp app{options, {390, 480}};
    ASSERT_EQ(scrolled(app), 0);
    app.key(Qt::Key_Down);
    EXPECT_EQ(scrolled(app), 48);
    app.key(Qt::Key_PageDown);
    const qreal paged = scrolled(app);
    EXPECT_GT(paged, 48);
    app.key(Qt::Key_End);
    const qreal end = scrolled(app);
    EXPECT_GE(end, paged);
    app.key(Qt::Key_PageDown);
    EXPECT_EQ(scrolled(app), end);
    app.key(Qt::Key_Home);
    EXPECT_EQ(scrolled(app), 0);
  }
}

TEST(Pages, goToAMonthOfTheHistory) {
  Options options = ShownApp::optionsFor(MIVO_DATA_FOLDER "/ten-years.json");
  options.tab = "fasting";
  ShownApp app{options};
  app.click("Go to a month");
  app.click("June 2025");
  const QQuickItem* row = app.find([](const QQuickItem* item) {
    return QByteArray{item->metaObject()->className()}.startsWith("HistoryRow") &&
           item->property("date").toString().contains(QLatin1String{"Jun 2025"});
  });
  ASSERT_NE(row, nullptr);
  EXPECT_NEAR(row->mapToScene({0, 0}).y(), 0, 1) << "the latest fast of the month is the first that is seen";
}

/// Nothing where none is open.
const QQuickItem* openSheet(ShownApp& app) {
  return app.find([](const QQuickItem* item) { return item->inherits("QQuickPopupItem"); });
}

/// Of the window; none is, too.
bool isOpenSheetInside(ShownApp& app) {
  const QRectF window{0, 0, app.window().width() + 1.0, app.window().height() + 1.0};
  const QQuickItem* sheet = openSheet(app);
  return !sheet || window.contains(sheet->mapRectToScene({0, 0, sheet->width(), sheet->height()}));
}

/// The texts of the sheet that is open; of the page where none is.
QStringList seenTexts(ShownApp& app) {
  QStringList texts;
  const QQuickItem* sheet = openSheet(app);
  app.find([&](const QQuickItem* item) {
    const bool isIn = !sheet || sheet->isAncestorOf(item);
    if (isIn && item->inherits("QQuickText")) texts.append(item->property("text").toString());
    return false;
  });
  return texts;
}

// With motion: a sheet that was moved away has to come back. A window that changes its size does not hold it up.
TEST(Screens, openAgainAndAfterEachOther) {
  Options options = ShownApp::optionsFor(threeWeeks);
  options.picture = "";
  options.tab = "statistics";
  ShownApp app{options};
  const auto present = [&](const std::string& screen) {
    app.model().present(QString::fromStdString(screen));
    settle(app.window());
  };
  std::map<std::string, QStringList> first;
  const auto all = host::allScreens();
  std::vector<host::Screen> screens{all.begin(), all.end()};
  for (const bool isShuffled : {false, true}) {
    if (isShuffled) std::ranges::shuffle(screens, std::mt19937{5});
    for (const host::Screen one : screens) {
      const std::string screen{rawValue(one)};
      SCOPED_TRACE(screen);
      if (isShuffled) app.window().resize(900, 700);
      present(screen);
      if (isShuffled) app.window().resize(390, 844);
      settle(app.window());
      EXPECT_TRUE(isOpenSheetInside(app));
      const auto [known, isNew] = first.emplace(screen, seenTexts(app));
      EXPECT_EQ(seenTexts(app).size(), known->second.size()) << "it shows what it showed the first time";
    }
  }
}

// A loop that QML warns of fails it, too.
TEST(Screens, growWithTheTextSizeWhileTheyAreOpen) {
  ShownApp app{ShownApp::optionsFor(threeWeeks)};
  const auto scaleTo = [&](double scale) {
    app.app.overrideAppearance({.mode = host::AppearanceMode::light, .textScale = scale, .still = true});
    settle(app.window());
  };
  for (const host::Screen one : host::allScreens()) {
    const std::string screen{rawValue(one)};
    SCOPED_TRACE(screen);
    app.model().present(QString::fromStdString(screen));
    settle(app.window());
    for (const double scale : {2.0, 1.0}) {
      scaleTo(scale);
      EXPECT_TRUE(isOpenSheetInside(app)) << scale;
    }
  }
}

TEST(Fields, takeWhateverIsTypedAndSaveNothingWrong) {
  for (const char* screen :
       {"statistics", "goalWeight", "fastGoal", "defaultGoal", "editFast", "addFast", "feedback"}) {
    SCOPED_TRACE(screen);
    Options options = ShownApp::optionsFor(threeWeeks);
    options.screen = screen;
    ShownApp app{options, {390, 1400}};
    const auto before = app.environment.history->load();
    const double goal = host::goalWeight(*app.environment.dependencies->userDefaults).value_or(0);
    std::vector<QQuickItem*> fields;
    app.find([&](const QQuickItem* item) {
      if (item->inherits("QQuickTextInput")) fields.push_back(const_cast<QQuickItem*>(item));
      return false;
    });
    for (QQuickItem* field : fields)
      for (const QString& text : {QStringLiteral("abc"), QStringLiteral("-1"), QString{60, QLatin1Char{'9'}},
                                  QStringLiteral("7.2.4"), QStringLiteral("0:60")}) {
        field->forceActiveFocus();
        app.key(Qt::Key_A, Qt::ControlModifier);
        app.type(text);
        app.key(Qt::Key_Return);
      }
    const auto after = app.environment.history->load();
    EXPECT_EQ(after.fasts, before.fasts);
    EXPECT_EQ(after.weights, before.weights);
    EXPECT_EQ(host::goalWeight(*app.environment.dependencies->userDefaults).value_or(0), goal);
  }
}

}  // namespace
}  // namespace mivo::app
