// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QPoint>
#include <QtCore/QProcess>
#include <QtCore/QStringList>

namespace mivo::app {

/// A display that nobody sees, with a pointer and a keyboard whose events come to a program through the X server, as
/// those of a person do.
class VirtualDisplay {
 public:
  /// Starts an X server and makes this process's next windows its own. Throws where there is no Xvfb or xdotool.
  VirtualDisplay();
  ~VirtualDisplay();
  VirtualDisplay(const VirtualDisplay&) = delete;
  VirtualDisplay& operator=(const VirtualDisplay&) = delete;

  // Places in pixels of the screen.
  void click(QPoint at) const;
  void drag(QPoint from, QPoint to) const;
  /// A notch of the wheel.
  void scroll(QPoint at, bool down) const;
  /// Names as X has them: "Return", "Escape", "ctrl+a"; several at once, so that nothing happens between them.
  void key(const QString& names) const;
  void type(const QString& text) const;

  /// The window of another process, once it is there. Throws where none comes.
  QString waitForWindow(qint64 process) const;
  void move(const QString& window, QPoint to) const;
  /// As a window manager does: keys go there from now on.
  void focus(const QString& window) const;
  /// Takes a window away without asking its program.
  void destroy(const QString& window) const;

 private:
  static QString act(const QStringList& steps);

  QProcess server;
};

}  // namespace mivo::app
