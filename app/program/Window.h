// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QSize>
#include <QtQml/QQmlApplicationEngine>

#include <optional>
#include <string>

#include "app/bridge/AppModel.h"
#include "app/bridge/Appearance.h"
#include "app/program/Environment.h"

class QQuickWindow;

namespace mivo::app {

/// "390x844"; nothing for any other text.
std::optional<QSize> sizeOf(const std::string& text);

/// The app in its window. Made where the environment's dependencies are in force; needs a QGuiApplication.
class AppWindow {
 public:
  AppWindow(const Environment& environment, const Options& options, QSize size);
  ~AppWindow();

  /// Nothing where the window could not be made; Qt has then said why.
  QQuickWindow* window() const;
  AppModel& model() { return app; }
  Appearance& appearance() { return look; }

 private:
  Appearance look;
  AppModel app;
  QQmlApplicationEngine engine;
};

/// Runs events until no frame was asked for in so long.
void settle(QQuickWindow& window, int stillMilliseconds = 60);

/// Draws the window, once it stands still, into a file. Returns a sentence where that fails.
std::optional<std::string> drawInto(AppWindow& shown, const Options& options);

}  // namespace mivo::app
