// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include "mivo/platform/Dependencies.h"

class QQmlEngine;
class QJSEngine;

namespace mivo::app {

/// The message catalogue for QML: `Texts.text("Save")`.
class Texts : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  static Texts* create(QQmlEngine* engine, QJSEngine*);

  /// The user's text for an English one.
  Q_INVOKABLE QString text(const QString& key) const;
  /// A whole number as the locale writes it.
  Q_INVOKABLE QString number(int value) const;
};

}  // namespace mivo::app
