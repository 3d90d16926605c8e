// SPDX-License-Identifier: MIT
#include "InputMode.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>

namespace mivo::app {
namespace {

// Keys that move through the screen; typing into a field is no sign of it.
bool navigates(int key) {
  switch (key) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      return true;
    default:
      return false;
  }
}

}  // namespace

InputMode::InputMode(QObject* parent) : QObject{parent} { qGuiApp->installEventFilter(this); }

bool InputMode::eventFilter(QObject* watched, QEvent* event) {
  const bool isKey = event->type() == QEvent::KeyPress && navigates(static_cast<QKeyEvent*>(event)->key());
  const bool isPointer = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin;
  if ((isKey || isPointer) && usesKeyboard != isKey) {
    usesKeyboard = isKey;
    Q_EMIT keyboardChanged();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace mivo::app
