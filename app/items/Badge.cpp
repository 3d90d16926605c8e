// SPDX-License-Identifier: MIT
#include "Badge.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include "BadgeArt.h"

namespace mivo::app {
namespace {

constexpr qreal grid = 96, smallestWithNumber = 48;

BadgeArt art(Badge::Family family, int threshold, int count, const QString& number, bool dark) {
  const int rank = badgeRank(threshold);
  const double grayscale = count >= threshold ? 0 : 1;
  if (family == Badge::Family::Milestone)
    return badgeArt(
        MilestoneBadge{
            .fastCount = threshold, .grayscale = grayscale, .starCount = badgeMarkCount(rank), .labelText = {}},
        number, dark);
  return badgeArt(streakBadge(threshold, count, grid, false), number, dark);
}

}  // namespace

Badge::Badge(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setImplicitSize(grid, grid);
  setAntialiasing(true);
  connect(this, &Badge::changed, this, [this] { update(); });
}

void Badge::paint(QPainter* painter) {
  const BadgeArt drawn = art(family, threshold, count, number, dark);
  painter->setRenderHint(QPainter::Antialiasing);
  QSvgRenderer{drawn.svg}.render(painter, boundingRect());
  if (width() < smallestWithNumber) return;
  const qreal scale = width() / grid;
  QFont font{QStringLiteral("Inter Display")};
  font.setPixelSize(std::max(1, qRound(drawn.number.size * scale)));
  font.setWeight(QFont::Bold);
  painter->setFont(font);
  painter->setPen(QColor{drawn.number.color});
  const QFontMetricsF metrics{font};
  const QPointF start{(width() - metrics.horizontalAdvance(drawn.number.text)) / 2,
                      drawn.number.middle * scale + metrics.capHeight() / 2};
  painter->drawText(start, drawn.number.text);
}

}  // namespace mivo::app
