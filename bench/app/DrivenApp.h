// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <functional>
#include <vector>

#include "app/program/Environment.h"
#include "app/program/Window.h"

namespace mivo::app {

/// The app in its window, with the motion that people see, and the times of its frames. Clicks and drags are events of
/// the mouse, as the window system would send them.
class DrivenApp {
 public:
  DrivenApp(const Environment& environment, const Options& options, QSize size);

  QQuickWindow& window() { return *app.window(); }
  AppModel& model() { return app.model(); }

  /// Runs events until so many frames have been shown since the start; false where that takes seconds.
  bool waitForFrame(int number);
  int framesShown() const { return shown; }
  /// Milliseconds from `beforeSynchronizing` to `afterFrameEnd` of each frame since the last call.
  std::vector<double> takeFrameTimes() { return std::exchange(times, {}); }

  /// The first visible item of a type, as QML names it.
  QQuickItem* ofType(const char* type);
  /// Scrolls the page so that an item is seen whole.
  void bringIntoView(const QQuickItem* item);
  /// Milliseconds from a released click on a point of an item to the frame that follows.
  double click(const QQuickItem* item, QPointF at);
  /// Holds the mouse down on a point of the window and moves it by `step` so many times, a frame each.
  void drag(QPoint from, QPoint step, int times);

 private:
  AppWindow app;
  QElapsedTimer frame;
  int shown = 0;
  std::vector<double> times;
};

}  // namespace mivo::app
