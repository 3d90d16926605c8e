// SPDX-License-Identifier: MIT
// The list of weights, driven with clicks and keys.
#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <fstream>

#include "tests/app/ShownApp.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

constexpr const char* threeWeights = R"({"version":1,"fasts":[],"weights":[
    {"date":"2026-02-26T07:00:00Z","weightInKg":72.4},
    {"date":"2026-02-27T07:00:30Z","weightInKg":712},
    {"date":"2026-02-28T07:00:00Z","weightInKg":71.9}]})";

/// The app with its statistics, high enough to show them whole.
class Weights : public testing::Test {
 protected:
  Weights() {
    const std::string sample = (folder.path / "sample.json").string();
    std::ofstream{sample} << threeWeights;
    Options options = ShownApp::optionsFor(sample);
    options.locale = "en-AU";  // in kilograms
    app = std::make_unique<ShownApp>(options);
    app->window().setHeight(app->window().property("wholeHeight").toInt());
    settle(app->window());
  }

  void openFrom(const char* card) {
    QQuickItem* item = app->ofType(card);
    ASSERT_NE(item, nullptr) << card;
    QQuickItem* link = app->find([&](const QQuickItem* one) {
      return item->isAncestorOf(one) && one->property("text") == "All weights" && one->inherits("QQuickAbstractButton");
    });
    ASSERT_NE(link, nullptr) << card;
    app->click(link);
    ASSERT_NE(row(0), nullptr) << card;
  }

  QQuickItem* row(int place) {
    return app->find([place](const QQuickItem* one) {
      return QByteArray{one->metaObject()->className()}.startsWith("WeightRow") && one->property("index") == place;
    });
  }

  std::vector<double> onDisk() {
    std::vector<double> all;
    for (const BodyWeightSample& sample : app->environment.history->load().weights) all.push_back(sample.weightInKg);
    return all;
  }
  bool eventuallyAre(const std::vector<double>& weights) {
    const bool are = eventually([&] { return onDisk() == weights && app->state().weights->size() == weights.size(); });
    settle(app->window());
    return are;
  }

  tests::TemporaryFolder folder;
  std::unique_ptr<ShownApp> app;
};

TEST_F(Weights, areOpenedFromTheirChartAndFromTheGoal) {
  for (const char* card : {"WeightChartCard", "GoalWeightCard"}) {
    openFrom(card);
    EXPECT_EQ(row(1)->property("weight").toString(), "712.0 kg") << "the latest first";
    EXPECT_EQ(row(1)->mapToScene({0, 0}).x(), app->ofType("RowList")->property("rowX").toDouble()) << "at the margin";
    app->key(Qt::Key_Escape);
    EXPECT_EQ(row(0), nullptr) << "Escape goes back";
  }
  EXPECT_EQ(app->ofType("QQuickPopupItem"), nullptr) << "the link is not the card";
}

TEST_F(Weights, arePutRightInPlace) {
  openFrom("WeightChartCard");
  app->click(row(1));
  QQuickItem* sheet = app->ofType("QQuickPopupItem");
  ASSERT_NE(sheet, nullptr);
  QQuickItem* field = app->find([&](const QQuickItem* one) {
    return sheet->isAncestorOf(one) && QByteArray{one->metaObject()->className()}.startsWith("NumberField");
  });
  ASSERT_NE(field, nullptr);
  app->click(field);
  app->type("7120");
  app->key(Qt::Key_Return);
  EXPECT_NE(app->text("Type up to 700 kg or 1543 lb, such as 81.4."), nullptr);
  app->key(Qt::Key_A, Qt::ControlModifier);
  app->type("71.2");
  app->key(Qt::Key_Return);
  ASSERT_TRUE(eventuallyAre({72.4, 71.2, 71.9}));
  EXPECT_EQ(app->ofType("QQuickPopupItem"), nullptr) << "the sheet closes";
  EXPECT_EQ(row(1)->property("weight").toString(), "71.2 kg");
  EXPECT_NE(app->text("Weight changed"), nullptr);
  app->click("Undo");
  EXPECT_TRUE(eventuallyAre({72.4, 712, 71.9}));
}

TEST_F(Weights, goByTheSheetTheMenuASwipeAndTheKeysAndComeBack) {
  openFrom("GoalWeightCard");
  const auto comeBack = [this] {
    app->click("Undo");
    EXPECT_TRUE(eventuallyAre({72.4, 712, 71.9}));
  };
  app->click(row(1));
  app->click("Delete weight");
  ASSERT_TRUE(eventuallyAre({72.4, 71.9}));
  EXPECT_EQ(app->ofType("QQuickPopupItem"), nullptr) << "the sheet closes";
  comeBack();

  QTest::mouseClick(&app->window(), Qt::RightButton, Qt::NoModifier, row(2)->mapToScene({100, 20}).toPoint());
  settle(app->window());
  app->click("Delete weight");
  ASSERT_TRUE(eventuallyAre({712, 71.9}));
  comeBack();

  const QPoint from = row(0)->mapToScene({300, 20}).toPoint();
  QTest::mousePress(&app->window(), Qt::LeftButton, Qt::NoModifier, from);
  for (int moved = 20; moved <= 260; moved += 20) QTest::mouseMove(&app->window(), from - QPoint{moved, 0}, 5);
  QTest::mouseRelease(&app->window(), Qt::LeftButton, Qt::NoModifier, from - QPoint{260, 0});
  ASSERT_TRUE(eventuallyAre({72.4, 712}));
  comeBack();

  QQuickItem* list = app->ofType("RowList");
  ASSERT_NE(list, nullptr);
  for (int tabs = 0; tabs < 5 && !list->property("keyed").toBool(); ++tabs) app->key(Qt::Key_Tab);
  ASSERT_TRUE(list->property("keyed").toBool());
  app->key(Qt::Key_End);
  app->key(Qt::Key_Delete);
  ASSERT_TRUE(eventuallyAre({712, 71.9}));
  app->key(Qt::Key_Delete);
  ASSERT_TRUE(eventuallyAre({71.9}));
  app->key(Qt::Key_Delete);
  ASSERT_TRUE(eventuallyAre({}));
  EXPECT_NE(app->text("The weights that you save are listed here."), nullptr);
}

}  // namespace
}  // namespace mivo::app
