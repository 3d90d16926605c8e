// SPDX-License-Identifier: MIT
#include "ChartItem.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

#include "app/items/TextMetrics.h"

namespace mivo::app {

ChartItem::ChartItem(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setAntialiasing(true);
  connect(this, &ChartItem::appearanceChanged, this, [this] { update(); });
}

QRectF ChartItem::placed(const QRectF& rectangle) const {
  return mirrored ? QRectF{innerWidth() - rectangle.right(), rectangle.y(), rectangle.width(), rectangle.height()}
                  : rectangle;
}

QRectF ChartItem::placed(const Rectangle& rectangle) const {
  return placed(QRectF{rectangle.origin.x, rectangle.origin.y, rectangle.size.width, rectangle.size.height});
}

void ChartItem::drawText(QPainter* painter, std::string_view text, qreal x, qreal baseline, Anchor anchor) const {
  const QString shown = qText(text);
  const qreal advance = QFontMetricsF{painter->font()}.horizontalAdvance(shown);
  const qreal leading = anchor == Anchor::leading ? x : anchor == Anchor::middle ? x - advance / 2 : x - advance;
  painter->drawText(QPointF{mirrored ? innerWidth() - leading - advance : leading, baseline}, shown);
}

void ChartItem::drawNumber(QPainter* painter, std::string_view text, qreal x, qreal baseline, Anchor anchor) const {
  const auto [parts, advance] = drawing::evenDigits(text, faceOf(painter->font()));
  const qreal leading = anchor == Anchor::leading ? x : anchor == Anchor::middle ? x - advance / 2 : x - advance;
  const qreal left = mirrored ? innerWidth() - leading - advance : leading;
  for (const auto& part : parts) painter->drawText(QPointF{left + part.x, baseline}, qText(part.text));
}

void ChartItem::drawHorizontalLine(QPainter* painter, qreal from, qreal to, qreal y, const QColor& color) const {
  painter->fillRect(placed(QRectF{from, y - 0.5, to - from, 1}), color);
}

}  // namespace mivo::app
