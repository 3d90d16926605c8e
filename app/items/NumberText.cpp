// SPDX-License-Identifier: MIT
#include "NumberText.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

#include <cmath>

#include "app/items/TextMetrics.h"

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

drawing::NumberLayout NumberText::layout() const {
  const QFont units = unitFont();
  return drawing::layOut(text.toStdString(), {.number = faceOf(font),
                                              .unit = widthIn(units),
                                              .unitSize = static_cast<double>(units.pixelSize()),
                                              .hasEvenDigits = evenDigits});
}

void NumberText::measure() {
  setImplicitSize(std::ceil(layout().width), lineHeight);
  setBaselineOffset((lineHeight + QFontMetricsF{font}.capHeight()) / 2);
  update();
}

void NumberText::paint(QPainter* painter) {
  const QFont units = unitFont();
  painter->setPen(color);
  for (const drawing::NumberRun& run : layout().runs) {
    painter->setFont(run.isUnit ? units : font);
    const QPointF start{run.x, baselineOffset()};
    if (!evenDigits || run.isUnit) {
      painter->drawText(start, qText(run.text));
      continue;
    }
    for (const drawing::PlacedText& part : drawing::evenDigits(run.text, faceOf(font)).parts)
      painter->drawText(start + QPointF{part.x, 0}, qText(part.text));
  }
}

}  // namespace mivo::app
