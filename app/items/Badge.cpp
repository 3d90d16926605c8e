// SPDX-License-Identifier: MIT
#include "Badge.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include "drawing/badges/BadgeArt.h"

namespace mivo::app {
Badge::Badge(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setImplicitSize(drawing::badgeGrid, drawing::badgeGrid);
  setAntialiasing(true);
  connect(this, &Badge::changed, this, [this] { update(); });
}

void Badge::paint(QPainter* painter) {
  const auto shape = family == Family::Milestone ? drawing::BadgeShape::milestone : drawing::BadgeShape::streak;
  const drawing::BadgeArt drawn = drawing::badgeArt(shape, threshold, count, number.toStdString(), dark);
  painter->setRenderHint(QPainter::Antialiasing);
  QSvgRenderer{QByteArray::fromStdString(drawn.svg)}.render(painter, boundingRect());
  if (width() < drawing::smallestBadgeWithNumber) return;
  const qreal scale = width() / drawing::badgeGrid;
  QFont font{QStringLiteral("Inter Display")};
  font.setPixelSize(std::max(1, qRound(drawn.number.size * scale)));
  font.setWeight(QFont::Bold);
  painter->setFont(font);
  painter->setPen(QColor{QString::fromStdString(drawn.number.color)});
  const QFontMetricsF metrics{font};
  const QPointF start{(width() - metrics.horizontalAdvance(number)) / 2,
                      drawn.number.middle * scale + metrics.capHeight() / 2};
  painter->drawText(start, number);
}

}  // namespace mivo::app
