// SPDX-License-Identifier: MIT
#include "bench/app/DrivenApp.h"

#include <QtTest/QTest>

namespace mivo::app {
namespace {

constexpr int longestWaitMilliseconds = 5000;

double milliseconds(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

QQuickItem* firstVisible(QQuickItem* item, const char* type) {
  if (!item->isVisible()) return nullptr;
  if (QByteArray{item->metaObject()->className()}.startsWith(type)) return item;
  for (QQuickItem* child : item->childItems())
    if (QQuickItem* found = firstVisible(child, type)) return found;
  return nullptr;
}

QQuickItem* pageOf(QQuickItem* item) {
  for (; item; item = item->parentItem())
    if (item->inherits("QQuickFlickable") && item->property("contentHeight").toReal() > item->height()) return item;
  return nullptr;
}

}  // namespace

DrivenApp::DrivenApp(const Environment& environment, const Options& options, QSize size)
    : app{environment, options, size} {
  if (!app.window()) throw std::runtime_error{"the window could not be made"};
  QObject::connect(&window(), &QQuickWindow::beforeSynchronizing, &window(), [this] { frame.start(); });
  QObject::connect(&window(), &QQuickWindow::afterFrameEnd, &window(),
                   [this] { times.push_back(milliseconds(frame)); });
  QObject::connect(&window(), &QQuickWindow::frameSwapped, &window(), [this] { ++shown; });
}

bool DrivenApp::waitForFrame(int number) {
  QElapsedTimer waited;
  waited.start();
  while (shown < number && waited.elapsed() < longestWaitMilliseconds)
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
  return shown >= number;
}

QQuickItem* DrivenApp::ofType(const char* type) {
  QQuickItem* found = firstVisible(window().contentItem(), type);
  if (!found) throw std::runtime_error{std::string{type} + " is not on the screen"};
  return found;
}

void DrivenApp::bringIntoView(const QQuickItem* item) {
  QQuickItem* page = pageOf(item->parentItem());
  if (!page) throw std::runtime_error{"the page does not scroll"};
  constexpr qreal marginPoints = 80;
  const qreal top = item->mapToItem(page, QPointF{}).y() + page->property("contentY").toReal();
  const qreal lowest = page->property("contentHeight").toReal() - page->height();
  page->setProperty("contentY", std::clamp(top - marginPoints, 0.0, std::max(0.0, lowest)));
  settle(window(), 200);
}

double DrivenApp::click(const QQuickItem* item, QPointF at) {
  const QPoint point = item->mapToScene(at).toPoint();
  QTest::mousePress(&window(), Qt::LeftButton, Qt::NoModifier, point);
  settle(window(), 100);
  QElapsedTimer sinceClick;
  const int before = shown;
  sinceClick.start();
  QTest::mouseRelease(&window(), Qt::LeftButton, Qt::NoModifier, point);
  if (!waitForFrame(before + 1)) throw std::runtime_error{"a click changed nothing"};
  return milliseconds(sinceClick);
}

void DrivenApp::drag(QPoint from, QPoint step, int moves) {
  QTest::mousePress(&window(), Qt::LeftButton, Qt::NoModifier, from);
  for (int i = 1; i <= moves; ++i) {
    const int before = shown;
    QTest::mouseMove(&window(), from + step * i);
    for (int turn = 0; turn < 20 && shown == before; ++turn)
      QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 5);
  }
  QTest::mouseRelease(&window(), Qt::LeftButton, Qt::NoModifier, from + step * moves);
  settle(window(), 100);
}

}  // namespace mivo::app
