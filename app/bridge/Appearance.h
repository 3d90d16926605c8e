// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>

#include <optional>

#include "host/app/Settings.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/UserDefaults.h"

class QQmlEngine;
class QJSEngine;

namespace mivo::app {

/// How the screens look: as the user's defaults say, or the command line for this run.
class Appearance : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  /// As chosen, or as the system is set.
  Q_PROPERTY(bool dark READ isDark NOTIFY changed)
  Q_PROPERTY(qreal textScale READ textScale NOTIFY changed)
  Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed)

 public:
  /// What holds instead of the settings; of mode and scale until another is chosen.
  struct Override {
    std::optional<host::AppearanceMode> mode;
    std::optional<double> textScale;
    bool still = false;  ///< nothing moves
  };

  /// QML gets the one that the program made.
  explicit Appearance(Client<UserDefaults> defaults);
  static Appearance* create(QQmlEngine*, QJSEngine*);

  host::Appearance present() const;
  bool isDark() const;
  qreal textScale() const { return present().textScale; }
  bool reducedMotion() const { return present().reducesMotion; }

  void choose(host::AppearanceMode mode);
  void changeTextScale(double scale);
  void reduceMotion(bool reduced);

  void setOverride(Override given);
  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void changed();

 private:
  Client<UserDefaults> defaults;
  Override given;
};

}  // namespace mivo::app
