// SPDX-License-Identifier: MIT
#include "app/program/EndsWithWindow.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QWindow>

namespace mivo::app {
namespace {

/// The head of what the X server says of a window that was destroyed, as the protocol lays it out.
struct DestroyNotify {
  std::uint8_t type, unused;
  std::uint16_t sequence;
  std::uint32_t parent, window;
};

}  // namespace

EndsWithWindow::EndsWithWindow(const QWindow& window) : id{static_cast<std::uint32_t>(window.winId())} {
  QCoreApplication::instance()->installNativeEventFilter(this);
}

EndsWithWindow::~EndsWithWindow() { QCoreApplication::instance()->removeNativeEventFilter(this); }

bool EndsWithWindow::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  constexpr std::uint8_t destroyNotify = 17, sentByAProgram = 0x80;
  const auto* event = static_cast<const DestroyNotify*>(message);
  if ((event->type & ~sentByAProgram) == destroyNotify && event->window == id) QCoreApplication::quit();
  return false;
}

}  // namespace mivo::app
