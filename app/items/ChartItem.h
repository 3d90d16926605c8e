// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtQuick/QQuickPaintedItem>

#include <algorithm>
#include <string_view>

#include "drawing/text/NumberLayout.h"
#include "mivo/charts/Geometry.h"

namespace mivo::app {

/// What all charts take from the theme, and how they mirror. Geometry runs from the leading edge; a right-to-left
/// layout mirrors it as a whole, texts excepted.
/// Who derives from it names it with its namespace: Qt describes types to QML by their base's name as it is written.
class ChartItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_ANONYMOUS
  Q_PROPERTY(QColor ink MEMBER ink NOTIFY appearanceChanged)
  Q_PROPERTY(QColor inkSecondary MEMBER inkSecondary NOTIFY appearanceChanged)
  Q_PROPERTY(QColor inkTertiary MEMBER inkTertiary NOTIFY appearanceChanged)
  Q_PROPERTY(QColor gridline MEMBER gridline NOTIFY appearanceChanged)
  Q_PROPERTY(QColor gridlineStrong MEMBER gridlineStrong NOTIFY appearanceChanged)
  Q_PROPERTY(QColor card MEMBER card NOTIFY appearanceChanged)
  Q_PROPERTY(QColor inverse MEMBER inverse NOTIFY appearanceChanged)
  Q_PROPERTY(QColor textOnInverse MEMBER textOnInverse NOTIFY appearanceChanged)
  Q_PROPERTY(QColor textOnInverseSecondary MEMBER textOnInverseSecondary NOTIFY appearanceChanged)
  Q_PROPERTY(QFont axisFont MEMBER axisFont NOTIFY appearanceChanged)
  Q_PROPERTY(QFont axisStrongFont MEMBER axisStrongFont NOTIFY appearanceChanged)
  Q_PROPERTY(QFont captionFont MEMBER captionFont NOTIFY appearanceChanged)
  Q_PROPERTY(QFont valueFont MEMBER valueFont NOTIFY appearanceChanged)
  Q_PROPERTY(bool mirrored MEMBER mirrored NOTIFY appearanceChanged)
  /// From the item's sides to those of its card, in points: popups may reach into it.
  Q_PROPERTY(qreal roomAtTheSides MEMBER roomAtTheSides NOTIFY appearanceChanged)

 public:
  explicit ChartItem(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  void appearanceChanged();

 protected:
  enum class Anchor { leading, middle, trailing };

  /// What charts paint begins `roomAtTheSides` inside the item and is so wide; popups reach over its edges.
  qreal innerWidth() const { return std::max(0.0, width() - 2 * roomAtTheSides); }
  /// The x of a place measured from the leading edge.
  qreal fromLeading(qreal x) const { return mirrored ? innerWidth() - x : x; }
  /// A rectangle measured from the leading edge.
  QRectF placed(const QRectF& rectangle) const;
  QRectF placed(const Rectangle& rectangle) const;
  /// Text on one line whose `anchor` side stands at `x`, measured from the leading edge.
  void drawText(QPainter* painter, std::string_view text, qreal x, qreal baseline, Anchor anchor) const;
  /// The same with every digit in a cell of one width, for texts that change in place.
  void drawNumber(QPainter* painter, std::string_view text, qreal x, qreal baseline, Anchor anchor) const;
  void drawHorizontalLine(QPainter* painter, qreal from, qreal to, qreal y, const QColor& color) const;

  QColor ink, inkSecondary, inkTertiary, gridline, gridlineStrong, card;
  QColor inverse, textOnInverse, textOnInverseSecondary;
  QFont axisFont, axisStrongFont, captionFont, valueFont;
  bool mirrored = false;
  qreal roomAtTheSides = 16;
};

}  // namespace mivo::app
