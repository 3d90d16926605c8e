// SPDX-License-Identifier: MIT
#include "Appearance.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>

#include <utility>

#include "app/bridge/EngineModels.h"

namespace mivo::app {

Appearance::Appearance(Client<UserDefaults> kept) : defaults{std::move(kept)} { qGuiApp->installEventFilter(this); }

Appearance* Appearance::create(QQmlEngine* engine, QJSEngine*) { return modelOf<Appearance>(*engine); }

host::Appearance Appearance::present() const {
  host::Appearance look = host::appearance(*defaults);
  look.mode = given.mode.value_or(look.mode);
  look.textScale = host::withinTextScales(given.textScale.value_or(look.textScale));
  look.reducesMotion = look.reducesMotion || given.still;
  return look;
}

bool Appearance::isDark() const {
  const auto mode = present().mode;
  if (mode != host::AppearanceMode::system) return mode == host::AppearanceMode::dark;
  return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

void Appearance::choose(host::AppearanceMode mode) {
  given.mode.reset();
  host::setAppearanceMode(*defaults, mode);
  Q_EMIT changed();
}

void Appearance::changeTextScale(double scale) {
  given.textScale.reset();
  host::setTextScale(*defaults, scale);
  Q_EMIT changed();
}

void Appearance::reduceMotion(bool reduced) {
  host::setReducedMotion(*defaults, reduced);
  Q_EMIT changed();
}

void Appearance::setOverride(Override wanted) {
  given = wanted;
  Q_EMIT changed();
}

// The system went dark or light.
bool Appearance::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) Q_EMIT changed();
  return QObject::eventFilter(watched, event);
}

}  // namespace mivo::app
