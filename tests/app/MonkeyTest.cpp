// SPDX-License-Identifier: MIT
// Hundreds of random clicks, keys, wheels, resizes and clock steps. The same seed does the same again:
//
//     MIVO_MONKEY_SEEDS=1000 app-monkey_test            seeds 1 to 1000
//     MIVO_MONKEY_FIRST=17 MIVO_MONKEY_SEEDS=1 ...      seed 17 alone
#include <gtest/gtest.h>

#include <QtGui/QAccessible>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>

#include <array>
#include <cstdlib>
#include <random>

#include "tests/app/ShownApp.h"

namespace mivo::app {
namespace {

constexpr int actionsASeed = 300;

/// Stands still, until it is set.
struct SteppedClock final : DateGenerator {
  explicit SteppedClock(Date begin) : instant{begin} {}
  Date now() const override { return instant; }
  Date instant;
};

struct Monkey {
  explicit Monkey(unsigned seed)
      : random{seed},
        clock{std::make_shared<SteppedClock>(dateSince1970(1772366400))},
        app{options(seed), size(seed), clock} {}

  static Options options(unsigned seed) {
    constexpr std::array<const char*, 3> samples{"/three-weeks.json", "/one-year.json", "/ten-years.json"};
    Options options = ShownApp::optionsFor(MIVO_DATA_FOLDER + std::string{samples[seed % samples.size()]});
    options.locale = seed % 5 == 0 ? "ar-EG" : seed % 3 == 0 ? "de-DE" : "en-US";
    if (seed % 2 == 1) options.picture = "";  // with motion
    return options;
  }
  static QSize size(unsigned seed) { return seed % 4 < 2 ? usualSize : QSize{1280, 800}; }

  int below(int bound) { return std::uniform_int_distribution<int>{0, bound - 1}(random); }
  QPoint anywhere() { return {below(app.window().width()), below(app.window().height())}; }

  void click(QPoint at) {
    const auto button = below(12) == 0 ? Qt::RightButton : Qt::LeftButton;
    QTest::mouseClick(&app.window(), button, Qt::NoModifier, at);
  }

  /// Most of a window is nothing to click on.
  void clickButton() {
    std::vector<QPoint> buttons;
    app.find([&](const QQuickItem* item) {
      const QPoint middle = item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
      const bool isButton = item->inherits("QQuickAbstractButton") || item->inherits("QQuickTextInput");
      if (isButton && QRect{{}, app.window().size()}.contains(middle)) buttons.push_back(middle);
      return false;
    });
    click(buttons.empty() ? anywhere() : buttons[static_cast<std::size_t>(below(static_cast<int>(buttons.size())))]);
  }

  void pressKey() {
    constexpr std::array keys{Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space,
                              Qt::Key_Up,     Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,  Qt::Key_PageUp,
                              Qt::Key_Delete, Qt::Key_Home,    Qt::Key_End,    Qt::Key_Menu,   Qt::Key_PageDown};
    constexpr std::array withControl{Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_Z, Qt::Key_A, Qt::Key_V};
    if (below(5) == 0)
      return QTest::keyClick(&app.window(), withControl[static_cast<std::size_t>(below(withControl.size()))],
                             Qt::ControlModifier);
    if (below(3) > 0) return QTest::keyClick(&app.window(), keys[static_cast<std::size_t>(below(keys.size()))]);
    constexpr std::string_view letters = "0123456789.,:- abxyz";
    QTest::keyClick(&app.window(), letters[static_cast<std::size_t>(below(letters.size()))]);
  }

  void turnWheel() {
    const QPointF at = anywhere();
    const QPoint turned = below(4) == 0 ? QPoint{120 * (below(5) - 2), 0} : QPoint{0, 120 * (below(7) - 3)};
    QWheelEvent event{at,   app.window().mapToGlobal(at), {}, turned, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false};
    QCoreApplication::sendEvent(&app.window(), &event);
  }

  void drag() {
    const QPoint from = anywhere(), to = anywhere();
    QTest::mousePress(&app.window(), Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= 4; ++step) QTest::mouseMove(&app.window(), from + (to - from) * step / 4);
    QTest::mouseRelease(&app.window(), Qt::LeftButton, Qt::NoModifier, to);
  }

  // Over midnight, over a clock change, into the past, or a few minutes on.
  void stepClock() {
    constexpr std::array<double, 5> steps{60, 3600, 86400, 29 * 86400.0, -1800};
    clock->instant += Duration{steps[static_cast<std::size_t>(below(steps.size()))]};
    app.model().setWatched(false);
    app.model().setWatched(true);
    app.model().send(AppModel::Action::recompute{});
  }

  void act() {
    const int kind = below(100);
    if (kind < 40) return clickButton();
    if (kind < 50) return click(anywhere());
    if (kind < 78) return pressKey();
    if (kind < 86) return turnWheel();
    if (kind < 92) return drag();
    if (kind < 96) return app.window().resize(320 + below(1300), 480 + below(600));
    stepClock();
  }

  static bool isHeading(const QQuickItem* item) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(item));
    return spoken && spoken->role() == QAccessible::Heading;
  }

  /// What is wrong with what is shown; nothing where all is well.
  std::string fault() {
    if (!app.find(isHeading)) return "a page without its heading";
    const QRectF window{-1, -1, app.window().width() + 2.0, app.window().height() + 2.0};
    const QQuickItem* outside = app.find([&](const QQuickItem* item) {
      return item->inherits("QQuickPopupItem") &&
             !window.contains(item->mapRectToScene({0, 0, item->width(), item->height()}));
    });
    return outside ? "a sheet outside the window" : "";
  }

  std::mt19937 random;
  std::shared_ptr<SteppedClock> clock;
  ShownApp app;
};

unsigned numberIn(const char* variable, unsigned fallback) {
  const char* value = std::getenv(variable);
  return value ? static_cast<unsigned>(std::strtoul(value, nullptr, 10)) : fallback;
}

TEST(Monkey, findsNothingWrong) {
  const unsigned first = numberIn("MIVO_MONKEY_FIRST", 1), count = numberIn("MIVO_MONKEY_SEEDS", 10);
  for (unsigned seed = first; seed < first + count; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Monkey monkey{seed};
    for (int action = 1; action <= actionsASeed && !testing::Test::HasFailure(); ++action) {
      SCOPED_TRACE("action " + std::to_string(action));
      monkey.act();
      for (int look = 0; look < 3; ++look) QCoreApplication::processEvents();
      if (action % 50 != 0) continue;
      settle(monkey.app.window());
      EXPECT_TRUE(eventually([&] { return monkey.fault().empty(); })) << monkey.fault();
    }
    const std::string list =
        "'" MIVO_PROGRAM "' list --database '" + monkey.app.environment.databaseFile.string() + "' > /dev/null";
    EXPECT_EQ(std::system(list.c_str()), 0) << "the command line reads the history";
    if (testing::Test::HasFailure()) return;
  }
}

}  // namespace
}  // namespace mivo::app
