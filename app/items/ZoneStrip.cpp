// SPDX-License-Identifier: MIT
#include "ZoneStrip.h"

#include <QtGui/QPainter>

#include <algorithm>

#include "mivo/model/LegacyFastingZone.h"

namespace mivo::app {
namespace {

constexpr qreal usualHeight = 6, gap = 2;

}  // namespace

ZoneStrip::ZoneStrip(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setImplicitHeight(usualHeight);
  setAntialiasing(true);
  connect(this, &ZoneStrip::changed, this, [this] { update(); });
}

void ZoneStrip::paint(QPainter* painter) {
  if (spanSeconds <= 0) return;
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  if (mirrored) {
    painter->translate(width(), 0);
    painter->scale(-1, 1);
  }
  const qreal perSecond = width() / spanSeconds, radius = height() / 2;
  qreal from = 0;
  for (std::size_t zone = 0; zone < zoneBounds.size() && from < seconds; ++zone) {
    const qreal until = std::min(seconds, zone + 1 < zoneBounds.size() ? zoneBounds[zone + 1] : seconds);
    const qreal x = from * perSecond + (zone > 0 ? gap / 2 : 0);
    const qreal end = std::min(width(), until * perSecond - (until < seconds ? gap / 2 : 0));
    painter->setBrush(fills.value(static_cast<qsizetype>(zone)));
    painter->drawRoundedRect(QRectF{x, 0, std::max(end - x, 2.0), height()}, radius / 1.5, radius / 1.5);
    from = until;
  }
  const qreal restX = std::min(seconds, spanSeconds) * perSecond + gap;
  painter->setBrush(rest);
  if (restX < width())
    painter->drawRoundedRect(QRectF{restX, 0, width() - restX, height()}, radius / 1.5, radius / 1.5);
}

}  // namespace mivo::app
