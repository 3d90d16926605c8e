// SPDX-License-Identifier: MIT
#include "QtMainQueue.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <cmath>
#include <deque>
#include <mutex>
#include <utility>

namespace mivo::app {

// The work waits here, not in Qt's events: it changes threads under a lock that the thread sanitizer sees, which those
// of Debian's Qt are not.
class QtMainQueue::Inbox final : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  void put(std::function<void()> work) {
    {
      const std::lock_guard lock{mutex};
      waiting.push_back(std::move(work));
    }
    QMetaObject::invokeMethod(this, "runNext", Qt::QueuedConnection);
  }

  Q_INVOKABLE void runNext() {
    std::unique_lock lock{mutex};
    const auto work = std::move(waiting.front());
    waiting.pop_front();
    lock.unlock();
    work();
  }

 private:
  std::mutex mutex;
  std::deque<std::function<void()>> waiting;
};

QtMainQueue::QtMainQueue() : inbox{new Inbox{QCoreApplication::instance()}} {}

QtMainQueue::~QtMainQueue() { inbox->deleteLater(); }

void QtMainQueue::post(std::function<void()> work) const { inbox->put(std::move(work)); }

void QtMainQueue::postAfter(Duration delay, std::function<void()> work) const {
  const auto milliseconds = std::chrono::milliseconds{std::lround(delay.count() * 1000)};
  post([milliseconds, context = inbox, work = std::move(work)] { QTimer::singleShot(milliseconds, context, work); });
}

}  // namespace mivo::app

#include "QtMainQueue.moc"
