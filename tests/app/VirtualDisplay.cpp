// SPDX-License-Identifier: MIT
#include "tests/app/VirtualDisplay.h"

#include <QtTest/QTest>

#include <stdexcept>

namespace mivo::app {
namespace {

QStringList moveTo(QPoint at) {
  return {QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y())};
}

}  // namespace

// The server writes the number of the display that it has found free. It must not begin anew when its last client goes:
// the next one would be turned away meanwhile.
VirtualDisplay::VirtualDisplay() {
  server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  server.start(
      QStringLiteral("Xvfb"),
      {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
       QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
  if (!server.waitForStarted()) throw std::runtime_error{"Xvfb is not installed"};
  QByteArray number;
  while (!number.endsWith('\n')) {
    if (!server.waitForReadyRead()) throw std::runtime_error{"Xvfb does not start"};
    number += server.readAllStandardOutput();
  }
  qputenv("DISPLAY", ':' + number.trimmed());
  qputenv("QT_QPA_PLATFORM", "xcb");
  act({QStringLiteral("getmouselocation")});
}

VirtualDisplay::~VirtualDisplay() {
  server.terminate();
  server.waitForFinished();
}

void VirtualDisplay::click(QPoint at) const {
  act(moveTo(at) + QStringList{QStringLiteral("click"), QStringLiteral("1")});
}

void VirtualDisplay::drag(QPoint from, QPoint to) const {
  constexpr int steps = 10;
  act(moveTo(from) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")});
  for (int step = 1; step <= steps; ++step) {
    act(moveTo(from + (to - from) * step / steps));
    QTest::qWait(20);  // else the moves come as one, from which nobody can tell a drag
  }
  QTest::qWait(200);  // a stop, so that nothing is thrown
  act({QStringLiteral("mouseup"), QStringLiteral("1")});
}

void VirtualDisplay::scroll(QPoint at, bool down) const {
  act(moveTo(at) + QStringList{QStringLiteral("click"), down ? QStringLiteral("5") : QStringLiteral("4")});
}

void VirtualDisplay::key(const QString& names) const {
  act(QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("1")} +
      names.split(QLatin1Char{' '}));
}

void VirtualDisplay::type(const QString& text) const { act({QStringLiteral("type"), text}); }

QString VirtualDisplay::waitForWindow(qint64 process) const {
  const QString found = act({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                             QStringLiteral("--pid"), QString::number(process)});
  return found.section(QLatin1Char{'\n'}, 0, 0);
}

void VirtualDisplay::move(const QString& window, QPoint to) const {
  act({QStringLiteral("windowmove"), QStringLiteral("--sync"), window, QString::number(to.x()),
       QString::number(to.y())});
}

void VirtualDisplay::focus(const QString& window) const {
  act({QStringLiteral("windowfocus"), QStringLiteral("--sync"), window});
}

void VirtualDisplay::destroy(const QString& window) const { act({QStringLiteral("windowclose"), window}); }

QString VirtualDisplay::act(const QStringList& steps) {
  QProcess tool;
  tool.start(QStringLiteral("xdotool"), steps);
  if (!tool.waitForFinished() || tool.exitCode() != 0)
    throw std::runtime_error{"xdotool fails: " + steps.join(QLatin1Char{' '}).toStdString()};
  return QString::fromUtf8(tool.readAllStandardOutput());
}

}  // namespace mivo::app
