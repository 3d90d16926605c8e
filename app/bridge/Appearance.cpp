// SPDX-License-Identifier: MIT
#include "Appearance.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>

#include <utility>

#include "app/bridge/EngineModels.h"

namespace mivo::app {

Appearance::Appearance(const host::Appearance& first) : shown{first} { qGuiApp->installEventFilter(this); }

Appearance* Appearance::create(QQmlEngine* engine, QJSEngine*) { return modelOf<Appearance>(*engine); }

void Appearance::show(const host::Appearance& look) {
  if (std::exchange(shown, look) != look) Q_EMIT changed();
}

bool Appearance::isDark() const {
  if (shown.mode != host::AppearanceMode::system) return shown.mode == host::AppearanceMode::dark;
  return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

// The system went dark or light.
bool Appearance::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) Q_EMIT changed();
  return QObject::eventFilter(watched, event);
}

}  // namespace mivo::app
