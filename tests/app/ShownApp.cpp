// SPDX-License-Identifier: MIT
#include "tests/app/ShownApp.h"

#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace mivo::app {
namespace {

constexpr int longestWait = 5000;

QQuickItem* findBelow(QQuickItem* item, const std::function<bool(const QQuickItem*)>& question) {
  if (!item->isVisible()) return nullptr;
  if (question(item)) return item;
  for (QQuickItem* child : item->childItems())
    if (QQuickItem* found = findBelow(child, question)) return found;
  return nullptr;
}

Environment environmentWith(const Options& options, const Client<DateGenerator>& clock) {
  Environment made = makeEnvironment(options).value();
  if (!clock) return made;
  const auto clients = std::make_shared<Dependencies>(*made.dependencies);
  clients->date = clock;
  made.dependencies = clients;
  return made;
}

}  // namespace

ShownApp::ShownApp(const Options& wanted, QSize size, const Client<DateGenerator>& clock)
    : options{wanted},
      environment{environmentWith(options, clock)},
      scope{environment.dependencies},
      app{environment, options, size} {
  settle(window());
}

Options ShownApp::optionsFor(const std::string& sample) {
  Options options;
  options.sample = sample;
  options.now = "2026-03-01T12:00:00Z";
  options.timeZone = "Europe/Berlin";
  options.locale = "en-GB";
  options.tally = "http://127.0.0.1:9";  // nobody listens
  options.picture = "-";
  return options;
}

void ShownApp::click(const QQuickItem* item, QPointF at) {
  QTest::mouseClick(&window(), Qt::LeftButton, Qt::NoModifier, item->mapToScene(at).toPoint());
  settle(window());
}

void ShownApp::click(const QString& name) {
  if (eventually([&] { return button(name) != nullptr; }))
    click(button(name));
  else
    ADD_FAILURE() << "no button " << name.toStdString();
}

void ShownApp::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&window(), key, modifiers);
  settle(window());
}

void ShownApp::type(const QString& text) {
  for (const QChar letter : text) QTest::keyClick(&window(), letter.toLatin1());
  settle(window());
}

QQuickItem* ShownApp::find(const std::function<bool(const QQuickItem*)>& question) {
  return findBelow(window().contentItem(), question);
}

QQuickItem* ShownApp::ofType(const char* type) {
  return find([type](const QQuickItem* item) { return QByteArray{item->metaObject()->className()}.startsWith(type); });
}

QQuickItem* ShownApp::button(const QString& text) {
  return find([&text](const QQuickItem* item) {
    return item->inherits("QQuickAbstractButton") && item->property("text").toString() == text;
  });
}

QQuickItem* ShownApp::text(const QString& text) {
  return find([&text](const QQuickItem* item) {
    return item->inherits("QQuickText") && item->property("text").toString() == text;
  });
}

bool eventually(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, longestWait); }

}  // namespace mivo::app
