// SPDX-License-Identifier: MIT
#include "NumberText.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

#include <cmath>

#include "NumberLayout.h"

namespace mivo::app {

NumberText::NumberText(QQuickItem* parent) : QQuickPaintedItem{parent} {
  setAntialiasing(true);
  for (const auto changed : {&NumberText::textChanged, &NumberText::fontChanged, &NumberText::unitSizeChanged,
                             &NumberText::lineHeightChanged, &NumberText::evenDigitsChanged})
    connect(this, changed, this, &NumberText::measure);
  connect(this, &NumberText::colorChanged, this, [this] { update(); });
}

QFont NumberText::unitFont() const {
  QFont unit = font;
  unit.setPixelSize(std::max(1, static_cast<int>(std::lround(unitSize))));
  unit.setWeight(QFont::Medium);
  unit.setLetterSpacing(QFont::AbsoluteSpacing, 0);
  return unit;
}

void NumberText::measure() {
  setImplicitSize(std::ceil(layOut(text, {font, unitFont(), evenDigits}).width), lineHeight);
  setBaselineOffset((lineHeight + QFontMetricsF{font}.capHeight()) / 2);
  update();
}

void NumberText::paint(QPainter* painter) {
  const NumberStyle style{font, unitFont(), evenDigits};
  const NumberLayout layout = layOut(text, style);
  painter->setPen(color);
  for (const NumberRun& run : layout.runs) {
    painter->setFont(run.isUnit ? style.unit : style.number);
    const QPointF start{run.x, baselineOffset()};
    if (evenDigits && !run.isUnit)
      drawWithEvenDigits(painter, run.text, start);
    else
      painter->drawText(start, run.text);
  }
}

}  // namespace mivo::app
