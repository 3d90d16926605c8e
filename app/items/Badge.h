// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

namespace mivo::app {

/// A milestone or streak badge, drawn at any size. The number is left out below 48 points.
class Badge : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(Family family MEMBER family NOTIFY changed)
  Q_PROPERTY(int threshold MEMBER threshold NOTIFY changed)
  /// The user's fasts, or the longest streak.
  Q_PROPERTY(int count MEMBER count NOTIFY changed)
  /// The threshold as the user's locale writes it.
  Q_PROPERTY(QString number MEMBER number NOTIFY changed)
  Q_PROPERTY(bool dark MEMBER dark NOTIFY changed)

 public:
  enum class Family { Milestone, Streak };
  Q_ENUM(Family)

  explicit Badge(QQuickItem* parent = nullptr);
  void paint(QPainter* painter) override;

 Q_SIGNALS:
  void changed();

 private:
  Family family = Family::Milestone;
  int threshold = 1;
  int count = 0;
  QString number;
  bool dark = false;
};

}  // namespace mivo::app
