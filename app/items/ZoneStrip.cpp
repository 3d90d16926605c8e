// SPDX-License-Identifier: MIT
#include "ZoneStrip.h"

#include <QtGui/QPainter>

#include "drawing/zones/ZoneStrip.h"

namespace mivo::app {
namespace {

constexpr qreal usualHeight = 6;

}  // namespace

ZoneStrip::ZoneStrip(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setImplicitHeight(usualHeight);
  setAntialiasing(true);
  connect(this, &ZoneStrip::changed, this, [this] { update(); });
}

void ZoneStrip::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  if (mirrored) {
    painter->translate(width(), 0);
    painter->scale(-1, 1);
  }
  const qreal radius = drawing::stripRadius(height());
  for (const drawing::StripPart& part : drawing::zoneStrip(seconds, spanSeconds, width())) {
    painter->setBrush(part.zone ? fills.value(static_cast<qsizetype>(*part.zone)) : rest);
    painter->drawRoundedRect(QRectF{part.x, 0, part.width, height()}, radius, radius);
  }
}

}  // namespace mivo::app
