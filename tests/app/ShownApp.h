// SPDX-License-Identifier: MIT
#pragma once

#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <functional>
#include <string>

#include "app/program/Environment.h"
#include "app/program/Window.h"

namespace mivo::app {

/// The app in a window that nobody sees, to be driven with clicks and keys. Nothing in it moves where the options ask
/// for a picture. A clock goes before that of the options.
class ShownApp {
 public:
  explicit ShownApp(const Options& wanted, QSize size = {390, 844}, const Client<DateGenerator>& clock = nullptr);

  /// A sample at noon of 1 March 2026 in Berlin, in British English; the clock stands still.
  static Options optionsFor(const std::string& sample);

  QQuickWindow& window() { return *app.window(); }
  AppModel& model() { return app.model(); }
  const AppModel::State& state() { return model().state(); }
  /// A text of the fasting page, by the name of its field.
  QString fasting(const char* field) { return model().fasting->property(field).toString(); }
  const StatisticsFeature::State& statistics() { return state().statistics; }

  void click(const QQuickItem* item, QPointF at);
  void click(const QQuickItem* item) { click(item, {item->width() / 2, item->height() / 2}); }
  /// The button with that text; a failure of the test where there is none.
  void click(const QString& button);
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void type(const QString& text);

  /// The first visible item that a question holds for; nothing where there is none.
  QQuickItem* find(const std::function<bool(const QQuickItem*)>& question);
  QQuickItem* ofType(const char* type);
  QQuickItem* button(const QString& text);
  /// A text that is shown somewhere.
  QQuickItem* text(const QString& text);

  Options options;
  Environment environment;
  DependencyScope scope;
  AppWindow app;
};

/// Waits for what a task brings about.
bool eventually(const std::function<bool()>& holds);

inline const std::string threeWeeks = MIVO_DATA_FOLDER "/three-weeks.json";

}  // namespace mivo::app
