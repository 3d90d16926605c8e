// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtQuick/QQuickPaintedItem>

#include "app/records/Records.h"
#include "drawing/zones/ZoneRing.h"

namespace mivo::app {

/// The ring of a running fast: one segment a zone, filled as far as the fast has come. Without a fast, one ring of the
/// eating window. It is as large as its height; what is wider is room for the hours beside it.
class ZoneRing : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(qreal seconds MEMBER seconds NOTIFY changed)
  Q_PROPERTY(qreal spanSeconds MEMBER spanSeconds NOTIFY changed)
  /// The hours that it names.
  Q_PROPERTY(QList<mivo::app::RingMarkRecord> marks MEMBER marks NOTIFY changed)
  Q_PROPERTY(bool running MEMBER running NOTIFY changed)
  Q_PROPERTY(QList<QColor> fills MEMBER fills NOTIFY changed)
  Q_PROPERTY(QList<QColor> tints MEMBER tints NOTIFY changed)
  Q_PROPERTY(QColor eatingFill MEMBER eatingFill NOTIFY changed)
  Q_PROPERTY(QColor eatingTint MEMBER eatingTint NOTIFY changed)
  Q_PROPERTY(QColor ink MEMBER ink NOTIFY changed)
  Q_PROPERTY(QColor markInk MEMBER markInk NOTIFY changed)
  Q_PROPERTY(QColor card MEMBER card NOTIFY changed)
  Q_PROPERTY(QFont axisFont MEMBER axisFont NOTIFY changed)

 public:
  explicit ZoneRing(QQuickItem* parent = nullptr);
  void paint(QPainter* painter) override;

 Q_SIGNALS:
  void changed();

 private:
  drawing::ZoneRing ring() const;
  QColor colorOf(const drawing::ZoneRing::Arc& arc) const;
  void paintMarks(QPainter* painter) const;

  qreal seconds = 0, spanSeconds = 57600;
  bool running = false;
  QList<RingMarkRecord> marks;
  QList<QColor> fills, tints;
  QColor eatingFill, eatingTint, ink, markInk, card;
  QFont axisFont;
};

}  // namespace mivo::app
