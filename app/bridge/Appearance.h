// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>

#include <optional>

#include "mivo/platform/UserDefaults.h"

class QQmlEngine;
class QJSEngine;

namespace mivo::app {

/// How the user wants the screens to look: light or dark, how large texts are, whether things move. Kept in the user's
/// defaults.
class Appearance : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(Mode mode READ mode WRITE setMode NOTIFY changed)
  /// The mode, or what the system is set to.
  Q_PROPERTY(bool dark READ isDark NOTIFY changed)
  Q_PROPERTY(qreal textScale READ textScale WRITE setTextScale NOTIFY changed)
  Q_PROPERTY(bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY changed)

 public:
  enum class Mode { System, Light, Dark };
  Q_ENUM(Mode)

  /// What the command line says instead of the settings, for this run.
  struct Override {
    std::optional<Mode> mode;
    std::optional<qreal> textScale;
    bool still = false;  ///< nothing moves
  };

  /// QML gets the one that the program made; a constructor without arguments would be taken before `create`.
  explicit Appearance(QObject* parent);
  static Appearance* create(QQmlEngine*, QJSEngine*);

  Mode mode() const;
  void setMode(Mode mode);
  bool isDark() const;
  qreal textScale() const;
  void setTextScale(qreal scale);
  bool reducedMotion() const;
  void setReducedMotion(bool reduced);

  void setOverride(Override given);
  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void changed();

 private:
  void keep(std::string_view key, UserDefaults::Value value);

  Override given;
};

}  // namespace mivo::app
