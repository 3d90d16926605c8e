// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtQml/QQmlApplicationEngine>

#include <functional>
#include <optional>
#include <string>

#include "app/bridge/AppModel.h"
#include "app/bridge/Appearance.h"
#include "app/bridge/Words.h"
#include "app/program/EndsWithWindow.h"
#include "app/program/Environment.h"

class QQuickWindow;

namespace mivo::app {

/// Where nothing else is asked for or known.
inline constexpr QSize usualSize{390, 844};

/// "390x844"; nothing for any other text.
std::optional<QSize> sizeOf(const std::string& text);

/// Says how windows will be painted, before there is a QGuiApplication. It is the processor that paints: the app starts
/// faster so and takes a third of the memory, and every frame is done in a few milliseconds.
void choosePainting(const Options& options);

/// What the options ask for, or else what the window was when it last closed. Nothing for options that are no size.
std::optional<QSize> openingSize(const Options& options, const UserDefaults& defaults);

/// The app in its window, which knows next time how it was when it goes. Made where the environment's dependencies are
/// in force; needs a QGuiApplication.
class AppWindow {
 public:
  AppWindow(const Environment& environment, const Options& options, QSize size);
  ~AppWindow();

  /// Nothing where the window could not be made; Qt has then said why.
  QQuickWindow* window() const;
  AppModel& model() { return app; }
  const Appearance& appearance() const { return look; }
  void overrideAppearance(host::AppearanceOverride given);

 private:
  void keepState() const;

  bool isPicture;
  std::shared_ptr<const UserDefaults> defaults;
  Appearance look;
  Words words;
  AppModel app;
  Subscription faults;
  QQmlApplicationEngine engine;
  std::optional<EndsWithWindow> end;
};

/// What stands in the way of the app.
struct Obstacle {
  std::string sentence;    ///< nothing where nothing stands in the way any more
  bool isDamaged = false;  ///< the history is, and a backup can take its place
};

/// Says why the app cannot start, and lets the user try again, or go on from a backup or with a new history where it is
/// damaged, until it can start or they close the window. Made where dependencies are in force.
class FaultWindow : public QObject {
  Q_OBJECT

 public:
  /// Each answers what still stands in the way.
  struct Attempts {
    std::function<Obstacle()> again = {}, restore = {}, beginAnew = {};
  };
  FaultWindow(const Obstacle& obstacle, Attempts attempts);

  QQuickWindow* window() const;
  Appearance& appearance() { return look; }

 private:
  Q_SLOT void tryAgain() { show(attempts.again()); }
  Q_SLOT void restore() { show(attempts.restore()); }
  Q_SLOT void beginAnew() { show(attempts.beginAnew()); }
  void show(const Obstacle& obstacle);

  Appearance look;
  Words words;
  Attempts attempts;
  QQmlApplicationEngine engine;
};

/// Runs events until no frame was asked for in so long.
void settle(QQuickWindow& window, int stillMilliseconds = 60);

/// Draws the window, once it stands still, into a file. Returns a sentence where that fails.
std::optional<std::string> drawInto(AppWindow& shown, const Options& options);

}  // namespace mivo::app
