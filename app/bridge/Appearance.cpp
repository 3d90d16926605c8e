// SPDX-License-Identifier: MIT
#include "Appearance.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>
#include <QtQml/QJSEngine>

#include <algorithm>
#include <array>

#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

constexpr std::string_view modeKey = "appearance", textScaleKey = "textScale", reducedMotionKey = "reducedMotion";
constexpr std::array<std::string_view, 3> modeNames{"system", "light", "dark"};
constexpr double smallestText = 0.85, largestText = 2;

const UserDefaults& defaults() { return *dependency(&Dependencies::userDefaults); }

Appearance* theAppearance = nullptr;

}  // namespace

Appearance::Appearance(QObject* parent) : QObject{parent} {
  theAppearance = this;
  qGuiApp->installEventFilter(this);
}

Appearance* Appearance::create(QQmlEngine*, QJSEngine*) {
  QJSEngine::setObjectOwnership(theAppearance, QJSEngine::CppOwnership);
  return theAppearance;
}

Appearance::Mode Appearance::mode() const {
  if (given.mode) return *given.mode;
  const auto name = std::ranges::find(modeNames, defaults().text(modeKey, modeNames[0]));
  return name == modeNames.end() ? Mode::System : static_cast<Mode>(name - modeNames.begin());
}

void Appearance::setMode(Mode mode) {
  given.mode.reset();
  keep(modeKey, std::string{modeNames[static_cast<std::size_t>(mode)]});
}

bool Appearance::isDark() const {
  if (mode() != Mode::System) return mode() == Mode::Dark;
  return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

qreal Appearance::textScale() const {
  return std::clamp(given.textScale.value_or(defaults().number(textScaleKey, 1)), smallestText, largestText);
}

void Appearance::setTextScale(qreal scale) {
  given.textScale.reset();
  keep(textScaleKey, double{scale});
}

bool Appearance::reducedMotion() const { return given.still || defaults().boolean(reducedMotionKey, false); }

void Appearance::setReducedMotion(bool reduced) { keep(reducedMotionKey, reduced); }

void Appearance::keep(std::string_view key, UserDefaults::Value value) {
  defaults().setValue(key, std::move(value));
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
