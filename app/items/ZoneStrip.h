// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtGui/QColor>
#include <QtQuick/QQuickPaintedItem>

namespace mivo::app {

/// A fast as a strip of the zones that it went through, on a scale of `spanSeconds`.
class ZoneStrip : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(qreal seconds MEMBER seconds NOTIFY changed)
  Q_PROPERTY(qreal spanSeconds MEMBER spanSeconds NOTIFY changed)
  Q_PROPERTY(QList<QColor> fills MEMBER fills NOTIFY changed)
  /// What lies behind the part that is not reached; transparent for none.
  Q_PROPERTY(QColor rest MEMBER rest NOTIFY changed)
  Q_PROPERTY(bool mirrored MEMBER mirrored NOTIFY changed)

 public:
  explicit ZoneStrip(QQuickItem* parent = nullptr);
  void paint(QPainter* painter) override;

 Q_SIGNALS:
  void changed();

 private:
  qreal seconds = 0, spanSeconds = 86400;
  QList<QColor> fills;
  QColor rest = Qt::transparent;
  bool mirrored = false;
};

}  // namespace mivo::app
