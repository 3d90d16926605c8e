// SPDX-License-Identifier: MIT
#include "FractionRing.h"

#include <QtGui/QPainter>

#include <cmath>

namespace mivo::app {
namespace {

constexpr int degree = 16, top = 90 * degree, turn = 360 * degree;  // as QPainter counts

}  // namespace

FractionRing::FractionRing(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setAntialiasing(true);
  connect(this, &FractionRing::changed, this, [this] { update(); });
}

void FractionRing::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  const QRectF line = boundingRect().adjusted(stroke / 2, stroke / 2, -stroke / 2, -stroke / 2);
  painter->setPen(QPen{rest, stroke});
  painter->drawEllipse(line);
  painter->setPen(QPen{fill, stroke, Qt::SolidLine, roundEnds ? Qt::RoundCap : Qt::FlatCap});
  painter->drawArc(line, top, -static_cast<int>(std::lround(fraction * turn)));
}

}  // namespace mivo::app
