// SPDX-License-Identifier: MIT
#include "QtMainQueue.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <cmath>

namespace mivo::app {

void QtMainQueue::post(std::function<void()> work) const {
  QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(work), Qt::QueuedConnection);
}

void QtMainQueue::postAfter(Duration delay, std::function<void()> work) const {
  const auto milliseconds = std::chrono::milliseconds{std::lround(delay.count() * 1000)};
  post(
      [milliseconds, work = std::move(work)] { QTimer::singleShot(milliseconds, QCoreApplication::instance(), work); });
}

}  // namespace mivo::app
