// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>

#include "host/app/Settings.h"

class QQmlEngine;
class QJSEngine;

namespace mivo::app {

/// How the screens look.
class Appearance : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  /// As chosen, or as the system is set.
  Q_PROPERTY(bool dark READ isDark NOTIFY changed)
  Q_PROPERTY(qreal textScale READ textScale NOTIFY changed)
  Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed)

 public:
  /// QML gets the one that the program made.
  explicit Appearance(const host::Appearance& first);
  static Appearance* create(QQmlEngine*, QJSEngine*);

  void show(const host::Appearance& look);
  const host::Appearance& present() const { return shown; }
  bool isDark() const;
  qreal textScale() const { return shown.textScale; }
  bool reducedMotion() const { return shown.reducesMotion; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void changed();

 private:
  host::Appearance shown;
};

}  // namespace mivo::app
