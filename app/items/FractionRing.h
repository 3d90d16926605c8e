// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtGui/QColor>
#include <QtQuick/QQuickPaintedItem>

namespace mivo::app {

/// A ring filled from its top clockwise, in every layout, as far as `fraction` of it.
class FractionRing : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  /// 0 to 1.
  Q_PROPERTY(qreal fraction MEMBER fraction NOTIFY changed)
  /// The width of the line in points; it lies inside the item.
  Q_PROPERTY(qreal stroke MEMBER stroke NOTIFY changed)
  Q_PROPERTY(bool roundEnds MEMBER roundEnds NOTIFY changed)
  Q_PROPERTY(QColor fill MEMBER fill NOTIFY changed)
  Q_PROPERTY(QColor rest MEMBER rest NOTIFY changed)

 public:
  explicit FractionRing(QQuickItem* parent = nullptr);
  void paint(QPainter* painter) override;

 Q_SIGNALS:
  void changed();

 private:
  qreal fraction = 0, stroke = 2;
  bool roundEnds = false;
  QColor fill, rest;
};

}  // namespace mivo::app
