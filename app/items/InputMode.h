// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>

namespace mivo::app {

/// Whether the user drives the app with the keyboard just now: only then is the focus shown.
class InputMode : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool keyboard READ keyboard NOTIFY keyboardChanged)

 public:
  explicit InputMode(QObject* parent = nullptr);
  bool keyboard() const { return usesKeyboard; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void keyboardChanged();

 private:
  bool usesKeyboard = false;
};

}  // namespace mivo::app
