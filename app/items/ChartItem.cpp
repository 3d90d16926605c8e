// SPDX-License-Identifier: MIT
#include "ChartItem.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

#include "app/items/NumberLayout.h"

namespace mivo::app {

ChartItem::ChartItem(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setAntialiasing(true);
  connect(this, &ChartItem::appearanceChanged, this, [this] { update(); });
}

QRectF ChartItem::placed(const QRectF& rectangle) const {
  return mirrored ? QRectF{innerWidth() - rectangle.right(), rectangle.y(), rectangle.width(), rectangle.height()}
                  : rectangle;
}

void ChartItem::drawText(QPainter* painter, const QString& text, qreal x, qreal baseline, Anchor anchor) const {
  const qreal advance = QFontMetricsF{painter->font()}.horizontalAdvance(text);
  const qreal leading = anchor == Anchor::leading ? x : anchor == Anchor::middle ? x - advance / 2 : x - advance;
  painter->drawText(QPointF{mirrored ? innerWidth() - leading - advance : leading, baseline}, text);
}

void ChartItem::drawNumber(QPainter* painter, const QString& text, qreal x, qreal baseline, Anchor anchor) const {
  const QFont font = painter->font();
  const qreal advance = numberWidth(text, font);
  const qreal leading = anchor == Anchor::leading ? x : anchor == Anchor::middle ? x - advance / 2 : x - advance;
  drawWithEvenDigits(painter, text, {mirrored ? innerWidth() - leading - advance : leading, baseline});
}

qreal ChartItem::numberWidth(const QString& text, const QFont& font) { return widthWithEvenDigits(text, font); }

void ChartItem::drawHorizontalLine(QPainter* painter, qreal from, qreal to, qreal y, const QColor& color) const {
  painter->fillRect(placed({from, y - 0.5, to - from, 1}), color);
}

}  // namespace mivo::app
