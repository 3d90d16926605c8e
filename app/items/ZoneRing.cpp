// SPDX-License-Identifier: MIT
#include "ZoneRing.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "mivo/model/LegacyFastingZone.h"

namespace mivo::app {
namespace {

constexpr qreal box = 300, radius = 118, stroke = 20, gap = 2.2, labelRadius = 140, usualLabel = 20;
constexpr qreal handleRadius = 9, haloRadius = 14;

}  // namespace

ZoneRing::ZoneRing(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setImplicitSize(box, box);
  setAntialiasing(true);
  connect(this, &ZoneRing::changed, this, [this] { update(); });
}

QList<ZoneRing::Segment> ZoneRing::segments() const {
  if (!running) return {{0, spanSeconds, eatingFill, eatingTint}};
  QList<Segment> all;
  for (std::size_t zone = 0; zone < zoneBounds.size(); ++zone) {
    const qreal from = zoneBounds[zone];
    const qreal to = zone + 1 < zoneBounds.size() ? std::min(zoneBounds[zone + 1], spanSeconds) : spanSeconds;
    const auto place = static_cast<qsizetype>(zone);
    if (from < to) all.append({from, to, fills.value(place), tints.value(place)});
  }
  return all;
}

// From the top clockwise, in every layout.
QPointF ZoneRing::onRing(qreal at, qreal distance) const {
  const qreal angle = at / spanSeconds * 2 * std::numbers::pi;
  return {box / 2 + distance * std::sin(angle), box / 2 - distance * std::cos(angle)};
}

void ZoneRing::paintArc(QPainter* painter, qreal from, qreal to, const QColor& color) const {
  if (to <= from) return;
  const qreal degrees = 360 / spanSeconds;
  painter->setPen(QPen{color, stroke, Qt::SolidLine, Qt::FlatCap});
  painter->drawArc(QRectF{box / 2 - radius, box / 2 - radius, 2 * radius, 2 * radius},
                   static_cast<int>(std::lround((90 - from * degrees) * 16)),
                   static_cast<int>(std::lround(-(to - from) * degrees * 16)));
}

void ZoneRing::paintMarks(QPainter* painter) const {
  painter->setFont(axisFont);
  painter->setPen(markInk);
  const QFontMetricsF metrics{axisFont};
  for (qsizetype index = 0; index < std::min(marks.size(), markTexts.size()); ++index) {
    const qreal advance = metrics.horizontalAdvance(markTexts[index]);
    const QPointF at = onRing(marks[index], labelRadius);
    // Wide ones move outwards where they stand beside the ring, as far as there is room.
    const qreal aside = (at.x() - box / 2) / labelRadius * std::max(0.0, advance - usualLabel) / 2;
    const qreal room = (width() * box / height() - box) / 2;
    const qreal x = std::clamp(at.x() + aside - advance / 2, -room, std::max(-room, box + room - advance));
    painter->drawText(QPointF{x, at.y() + metrics.capHeight() / 2}, markTexts[index]);
  }
}

void ZoneRing::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  const qreal scale = height() / box;
  painter->translate((width() - box * scale) / 2, 0);
  painter->scale(scale, scale);
  const auto all = segments();
  const qreal gapSeconds = all.size() > 1 ? gap / (2 * std::numbers::pi * radius) * spanSeconds : 0;
  const qreal present = std::clamp(seconds, 0.0, spanSeconds);
  for (const auto& [from, to, fill, tint] : all) {
    const qreal first = from + gapSeconds, last = to - gapSeconds;
    paintArc(painter, std::max(first, present), last, tint);
    paintArc(painter, first, std::min(last, present), fill);
  }
  paintMarks(painter);
  const QPointF head = onRing(present, radius);
  painter->setPen(Qt::NoPen);
  painter->setBrush(card);
  painter->drawEllipse(head, haloRadius, haloRadius);
  painter->setBrush(ink);
  painter->drawEllipse(head, handleRadius, handleRadius);
}

}  // namespace mivo::app
