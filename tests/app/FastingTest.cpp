// SPDX-License-Identifier: MIT
// The fasting tab, driven with clicks and keys.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QSet>
#include <QtTest/QTest>
#include <fstream>

#include "host/fasting/HistoryChange.h"
#include "tests/app/ShownApp.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

constexpr const char* none = R"({"version":1,"fasts":[],"weights":[]})";
constexpr const char* three = R"({"version":1,"fasts":[
    {"start":"2026-02-25T19:00:00Z","end":"2026-02-26T12:00:00Z"},
    {"start":"2026-02-26T19:00:00Z","end":"2026-02-27T10:00:00Z"},
    {"start":"2026-02-27T19:00:30Z","end":"2026-02-28T12:00:00Z","note":"slept well"}],"weights":[]})";
constexpr const char* overlapping = R"({"version":1,"fasts":[
    {"start":"2026-02-25T19:00:00Z","end":"2026-02-26T12:00:00Z"},
    {"start":"2026-02-26T11:00:00Z","end":"2026-02-27T03:00:00Z"}],"weights":[]})";
constexpr const char* begunTomorrow = R"({"version":1,"fasts":[{"start":"2026-03-02T12:00:00Z","end":null}]})";

/// The app on its fasting tab, high enough to show it whole.
class Fasting : public testing::Test {
 protected:
  void show(const char* snapshot) {
    const std::string sample = (folder.path / "sample.json").string();
    std::ofstream{sample} << snapshot;
    open(ShownApp::optionsFor(sample));
  }

  void open(Options options) {
    options.tab = "fasting";
    app.reset();
    app = std::make_unique<ShownApp>(options, QSize{390, 1400});
  }

  void click(const QString& button) { app->click(button); }

  /// A tile or a line of a sheet, known by its label.
  void clickField(const QString& label) {
    QQuickItem* item = app->find([&label](const QQuickItem* one) {
      return one->property("label").toString() == label && one->inherits("QQuickAbstractButton");
    });
    ASSERT_NE(item, nullptr) << label.toStdString();
    app->click(item);
  }

  void clickRow(int row) {
    QQuickItem* item = rowItem(row);
    ASSERT_NE(item, nullptr);
    app->click(item);
  }

  QQuickItem* rowItem(int row) {
    return app->find([row](const QQuickItem* one) {
      return QByteArray{one->metaObject()->className()}.startsWith("HistoryRow") && one->property("index") == row;
    });
  }

  /// Turns a wheel of the open sheet and takes what it says.
  void turn(const QString& name, int steps) {
    QQuickItem* wheel = app->find([&name](const QQuickItem* one) {
      return QByteArray{one->metaObject()->className()}.startsWith("Wheel_") &&
             one->property("spoken").toString().startsWith(name + ", ");
    });
    ASSERT_NE(wheel, nullptr);
    wheel->forceActiveFocus();
    for (int turned = 0; turned < std::abs(steps); ++turned) app->key(steps < 0 ? Qt::Key_Up : Qt::Key_Down);
    click("Done");
  }

  std::vector<host::FastRecord> onDisk() { return app->environment.history->load().fasts; }
  bool eventuallyHas(std::size_t count) {
    const bool has = eventually([&] { return app->state().fasts->size() == count; });
    settle(app->window());
    return has && onDisk().size() == count;
  }

  tests::TemporaryFolder folder;
  std::unique_ptr<ShownApp> app;
};

TEST_F(Fasting, recordsAFastAndTheFiguresMove) {
  show(none);
  EXPECT_NE(app->text("Your first fast"), nullptr);
  click("Start fast");
  ASSERT_TRUE(eventually([&] { return app->state().runningFast() != nullptr; }));
  settle(app->window());
  EXPECT_EQ(app->fasting("elapsed"), "0:00:00");

  clickField("Started");
  turn("Hour", -3);
  ASSERT_TRUE(eventually([&] { return app->fasting("elapsed") == QLatin1String{"3:00:00"}; }));
  EXPECT_EQ(app->statistics().stats.totalHours, 3);
  clickField("Goal");
  click("18h");
  click("Save");
  EXPECT_TRUE(eventually([&] { return app->state().runningFast()->fast.goalSeconds == 18 * 3600; }));
  EXPECT_EQ(app->fasting("goalText"), "15h 0m to your goal");

  click("Stop fast");
  ASSERT_TRUE(eventually([&] { return app->state().runningFast() == nullptr; }));
  settle(app->window());
  EXPECT_EQ(app->statistics().stats.totalFasts, 1);
  EXPECT_NE(app->text("since your last fast"), nullptr);
  EXPECT_NE(rowItem(0), nullptr);
  ASSERT_EQ(onDisk().size(), 1U);
  EXPECT_EQ(onDisk()[0].fast.finished->duration(), 3 * secondsPerHour);

  click("Undo");
  EXPECT_TRUE(eventually([&] { return app->state().runningFast() != nullptr; })) << "stopped by mistake";
}

TEST_F(Fasting, standsStillWhereAFastBeginsOrEnds) {
  std::string fasts = R"({"start":"2026-03-01T03:00:00Z","end":null})";
  for (const char* day : {"08", "09", "10", "11", "12", "13", "14", "15", "16", "17", "18", "19", "20", "21"})
    fasts += R"(,{"start":"2026-02-)" + std::string{day} + R"(T01:00:00Z","end":"2026-02-)" + day + R"(T17:00:00Z"})";
  show((R"({"version":1,"weights":[],"fasts":[)" + fasts + "]}").c_str());
  Options options = app->options;
  for (const double scrolled : {0.0, 60.0, 1200.0}) {
    app.reset();
    app = std::make_unique<ShownApp>(options, QSize{390, 844});
    QQuickItem* list = app->ofType("HistoryList");
    ASSERT_NE(list, nullptr);
    list->setProperty("contentY", list->property("originY").toReal() + scrolled);
    settle(app->window());
    const bool isHeadSeen = scrolled < 500;
    // The title and the ring, or a row with its date.
    const QString date = isHeadSeen ? QString{} : rowItem(7)->property("date").toString();
    const auto place = [&] {
      const QQuickItem* item = isHeadSeen ? app->ofType("TimerRing") : app->find([&](const QQuickItem* one) {
        return one->property("date").toString() == date && one->property("seconds").isValid();
      });
      return item ? item->mapToScene({0, 0}).y() : NAN;
    };
    const double before = place();
    for (const char* what : {"stops", "begins"}) {
      const bool wasRunning = app->state().runningFast() != nullptr;
      app->model().fasting->press();
      ASSERT_TRUE(eventually([&] { return (app->state().runningFast() != nullptr) != wasRunning; }));
      settle(app->window());
      EXPECT_NEAR(place(), before, 0.5) << what << ", scrolled by " << scrolled;
    }
  }
}

TEST_F(Fasting, editsAFastAndKeepsWhatWasNotTouched) {
  show(three);
  const host::FastRecord before = onDisk()[2];
  clickRow(0);
  EXPECT_NE(app->text("Edit fast"), nullptr);
  clickField("Start");
  click("Done");
  clickField("End");
  turn("Hour", -2);
  click("Custom");
  app->type("17:30");
  click("Save");
  ASSERT_TRUE(eventually([&] { return onDisk()[2] != before; }));
  host::FastRecord expected = before;
  expected.fast =
      finishedFast(before.fast.id, before.fast.start, before.fast.finished->end - Duration{2 * secondsPerHour}, 63000);
  EXPECT_EQ(onDisk()[2], expected) << "the start keeps its seconds";
  settle(app->window());
  EXPECT_EQ(app->text("Edit fast"), nullptr) << "the sheet closes";
  EXPECT_NE(app->text("17h 30m goal"), nullptr);
}

TEST_F(Fasting, takesATypedGoalOverTheOldOneByEnter) {
  show(three);
  clickField("Goal");
  click("Custom");
  app->type("13:30");
  EXPECT_NE(app->text("h"), nullptr) << "its unit stands beside it";
  app->key(Qt::Key_Return);
  EXPECT_EQ(app->text("Custom"), nullptr) << "the sheet closes";
  EXPECT_EQ(*app->state().nextGoalSeconds, 48600);

  clickField("Goal");
  ASSERT_NE(app->ofType("TextField"), nullptr) << "it is none of the usual ones";
  app->type("169");
  app->key(Qt::Key_Return);
  EXPECT_NE(app->text("Type up to 168 hours, such as 17 or 16:30."), nullptr);
  app->key(Qt::Key_Backspace);
  app->key(Qt::Key_Return);
  EXPECT_EQ(*app->state().nextGoalSeconds, 57600) << "what stood there was selected";
}

TEST_F(Fasting, savesAFastByEnterInItsGoal) {
  show(three);
  clickRow(0);
  click("Custom");
  app->type("17");
  app->key(Qt::Key_Enter);
  ASSERT_TRUE(eventually([&] { return onDisk()[2].fast.goalSeconds == 61200; }));
  settle(app->window());
  EXPECT_EQ(app->text("Edit fast"), nullptr) << "the sheet closes";
  click("Undo");
  EXPECT_TRUE(eventually([&] { return onDisk()[2].fast.goalSeconds == 57600; }));
}

TEST_F(Fasting, keepsANoteAndTakesItBack) {
  show(three);
  const auto writeNote = [this](const QString& note) {
    app->click(app->ofType("TextArea"));
    app->key(Qt::Key_A, Qt::ControlModifier);
    app->type(note);
    click("Save");
  };
  ASSERT_NE(app->text("slept well"), nullptr) << "in its row";
  clickRow(0);
  EXPECT_EQ(app->ofType("TextArea")->property("text"), "slept well");
  writeNote("slept badly");
  ASSERT_TRUE(eventually([&] { return onDisk()[2].note == "slept badly"; }));
  settle(app->window());
  EXPECT_NE(app->text("slept badly"), nullptr);
  click("Undo");
  ASSERT_TRUE(eventually([&] { return onDisk()[2].note == "slept well"; }));

  click("Add fast");
  EXPECT_EQ(app->ofType("TextArea")->property("text"), "") << "not the one before";
  writeNote("tea");
  ASSERT_TRUE(eventuallyHas(4));
  EXPECT_EQ(onDisk()[3].note, "tea");
  click("Undo");
  EXPECT_TRUE(eventuallyHas(3));
}

TEST_F(Fasting, removesAtOnceAndBringsBack) {
  show(three);
  const auto before = onDisk();
  clickRow(1);
  click("Delete fast");
  ASSERT_TRUE(eventuallyHas(2));
  click("Undo");
  ASSERT_TRUE(eventuallyHas(3));

  const QQuickItem* row = rowItem(0);
  const QPoint from = row->mapToScene({300, 40}).toPoint();
  QTest::mousePress(&app->window(), Qt::LeftButton, Qt::NoModifier, from);
  for (int moved = 20; moved <= 260; moved += 20) QTest::mouseMove(&app->window(), from - QPoint{moved, 0}, 5);
  QTest::mouseRelease(&app->window(), Qt::LeftButton, Qt::NoModifier, from - QPoint{260, 0});
  ASSERT_TRUE(eventuallyHas(2));
  EXPECT_EQ(onDisk()[1], before[1]);
  click("Undo");
  ASSERT_TRUE(eventuallyHas(3));
  EXPECT_EQ(onDisk(), before);

  QTest::mouseClick(&app->window(), Qt::RightButton, Qt::NoModifier, rowItem(2)->mapToScene({100, 40}).toPoint());
  settle(app->window());
  click("Delete fast");
  ASSERT_TRUE(eventuallyHas(2));
  EXPECT_EQ(onDisk()[0], before[1]);
}

TEST_F(Fasting, addsAPastFastAndRefusesAFutureOne) {
  show(none);
  click("Add fast");
  clickField("End");
  turn("Hour", 1);
  EXPECT_NE(app->text("The end is in the future. Is the clock right?"), nullptr);
  click("Save");
  EXPECT_TRUE(onDisk().empty());

  clickField("End");
  turn("Day", -1);
  EXPECT_NE(app->text("The end is before the start."), nullptr);
  click("Save");
  EXPECT_TRUE(onDisk().empty());

  clickField("Start");
  turn("Day", -1);
  click("Save");
  ASSERT_TRUE(eventuallyHas(1));
  EXPECT_LT(onDisk()[0].fast.start, onDisk()[0].fast.finished->end);
  EXPECT_EQ(app->statistics().stats.totalFasts, 1);
}

TEST_F(Fasting, marksFastsThatOverlap) {
  show(overlapping);
  const auto overlapsOf = [this](int row) { return rowItem(row)->property("overlap").toString(); };
  const QString overlapsEarlier = overlapsOf(0), overlapsLater = overlapsOf(1);
  // the rest of a date is the locale data's, and changes with it
  EXPECT_THAT(overlapsEarlier.toStdString(),
              testing::AllOf(testing::StartsWith("Overlaps the fast of "), testing::HasSubstr("25")));
  EXPECT_THAT(overlapsLater.toStdString(),
              testing::AllOf(testing::StartsWith("Overlaps the fast of "), testing::HasSubstr("26")));
  EXPECT_NE(app->text(overlapsEarlier), nullptr);
  EXPECT_NE(app->text(overlapsLater), nullptr);
  clickRow(0);
  click("Delete fast");
  ASSERT_TRUE(eventuallyHas(1));
  EXPECT_EQ(app->text(overlapsEarlier), nullptr);
  EXPECT_EQ(app->text(overlapsLater), nullptr);
}

TEST_F(Fasting, isDrivenByTheKeyboardAlone) {
  show(three);
  const auto before = onDisk();
  QQuickItem* list =
      app->find([](const QQuickItem* one) { return QByteArray{one->metaObject()->className()}.startsWith("History"); });
  ASSERT_NE(list, nullptr);
  for (int tabs = 0; tabs < 20 && !list->property("keyed").toBool(); ++tabs) app->key(Qt::Key_Tab);
  ASSERT_TRUE(list->property("keyed").toBool());
  EXPECT_EQ(list->property("keyedRow"), 0);

  app->key(Qt::Key_Down);
  app->key(Qt::Key_Return);
  EXPECT_NE(app->text("Edit fast"), nullptr);
  app->key(Qt::Key_Escape);
  EXPECT_EQ(app->text("Edit fast"), nullptr);
  ASSERT_TRUE(list->property("keyed").toBool()) << "the keys come back to the rows";
  app->key(Qt::Key_Delete);
  ASSERT_TRUE(eventuallyHas(2));
  EXPECT_EQ(onDisk()[1], before[2]);
  app->key(Qt::Key_End);
  app->key(Qt::Key_Delete);
  ASSERT_TRUE(eventuallyHas(1));
  EXPECT_EQ(onDisk()[0], before[2]);
}

TEST_F(Fasting, scrollsToWhatTheKeyboardReaches) {
  open(ShownApp::optionsFor(threeWeeks));
  app->window().resize(390, 480);
  settle(app->window());
  QSet<QString> reached;
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_End, Qt::Key_Backtab,
                            Qt::Key_Backtab, Qt::Key_Backtab}) {
    app->key(key);
    const QQuickItem* item = app->window().activeFocusItem();
    const QRectF seen = item->mapRectToScene({0, 0, item->width(), item->height()});
    const QString name = item->property("text").toString();
    EXPECT_TRUE(item->height() == 0 || (seen.top() > 0 && seen.bottom() < 416)) << name.toStdString();
    if (key == Qt::Key_Backtab) reached << name;
  }
  EXPECT_EQ(reached, (QSet<QString>{"Add fast", "Start fast", "Goal, 16h"})) << "after the last row";
}

TEST_F(Fasting, saysWhatFailedUntilItIsDismissed) {
  show(none);
  app->environment.history->apply(host::adding({mivo::ongoingFast({7, 9}, dateSince1970(0), 57600), ""}));
  click("Start fast");
  ASSERT_TRUE(eventually([&] { return !app->model().failure().isEmpty(); }));
  settle(app->window());
  EXPECT_EQ(app->model().failure(), "A fast is running already.");
  EXPECT_NE(app->text(app->model().failure()), nullptr);
  click("OK");
  EXPECT_EQ(app->model().failure(), "");
}

TEST_F(Fasting, losesNothingWhenTheClockWasSetBack) {
  show(begunTomorrow);
  EXPECT_EQ(app->fasting("elapsed"), "0:00:00");
  EXPECT_NE(app->text("This fast begins in the future. Check the clock, or change when it started."), nullptr);
  click("Stop fast");
  EXPECT_NE(app->text("The start is in the future. Is the clock right?"), nullptr);
  EXPECT_EQ(onDisk().size(), 1U);
  EXPECT_FALSE(onDisk()[0].fast.finished);
}

TEST_F(Fasting, findsEverythingAfterARestart) {
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.path.string()));
  Options options = ShownApp::optionsFor("");
  options.database = (folder.path / "mivo.sqlite").string();
  open(options);
  clickField("Goal");
  click("20h");
  click("Save");
  click("Start fast");
  ASSERT_TRUE(eventually([&] { return app->state().runningFast() != nullptr; }));
  options.now = "2026-03-01T15:30:05Z";
  open(options);
  EXPECT_EQ(app->fasting("elapsed"), "3:30:05");
  EXPECT_EQ(app->state().runningFast()->fast.goalSeconds, 20 * 3600);
  EXPECT_EQ(app->statistics().stats.totalHours, 3);
}

}  // namespace
}  // namespace mivo::app
