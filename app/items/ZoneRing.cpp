// SPDX-License-Identifier: MIT
#include "ZoneRing.h"

#include <QtGui/QPainter>

#include <cmath>

namespace mivo::app {
namespace {

using Ring = drawing::ZoneRing;

constexpr qreal quarter = 90;
constexpr int degree = 16;  // as QPainter counts

}  // namespace

ZoneRing::ZoneRing(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setImplicitSize(Ring::box, Ring::box);
  setAntialiasing(true);
  connect(this, &ZoneRing::changed, this, [this] { update(); });
}

Ring ZoneRing::ring() const { return {.seconds = seconds, .spanSeconds = spanSeconds, .isEating = !running}; }

QColor ZoneRing::colorOf(const Ring::Arc& arc) const {
  if (!arc.zone) return arc.isReached ? eatingFill : eatingTint;
  return (arc.isReached ? fills : tints).value(static_cast<qsizetype>(*arc.zone));
}

void ZoneRing::paintMarks(QPainter* painter) const {
  painter->setFont(axisFont);
  painter->setPen(markInk);
  const QFontMetricsF metrics{axisFont};
  for (const RingMarkRecord& mark : marks) {
    const qreal advance = metrics.horizontalAdvance(mark.text);
    const Point at = ring().markPlace(mark.seconds, advance, {width(), height()});
    painter->drawText(QPointF{at.x, at.y + metrics.capHeight() / 2}, mark.text);
  }
}

void ZoneRing::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  const qreal scale = height() / Ring::box;
  painter->translate((width() - Ring::box * scale) / 2, 0);
  painter->scale(scale, scale);
  constexpr qreal edge = Ring::box / 2 - Ring::radius;
  for (const Ring::Arc& arc : ring().arcs()) {
    painter->setPen(QPen{colorOf(arc), Ring::stroke, Qt::SolidLine, Qt::FlatCap});
    painter->drawArc(QRectF{edge, edge, 2 * Ring::radius, 2 * Ring::radius},
                     static_cast<int>(std::lround((quarter - arc.from) * degree)),
                     static_cast<int>(std::lround(-arc.turn * degree)));
  }
  paintMarks(painter);
  const auto [x, y] = ring().head();
  painter->setPen(Qt::NoPen);
  painter->setBrush(card);
  painter->drawEllipse(QPointF{x, y}, Ring::haloRadius, Ring::haloRadius);
  painter->setBrush(ink);
  painter->drawEllipse(QPointF{x, y}, Ring::handleRadius, Ring::handleRadius);
}

}  // namespace mivo::app
