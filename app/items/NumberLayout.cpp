// SPDX-License-Identifier: MIT
#include "NumberLayout.h"

#include <QtCore/QStringList>
#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

#include <algorithm>

namespace mivo::app {
namespace {

constexpr qreal gapBeforeOneLetter = 0.08, gapBeforeWord = 0.26, gapBeforeNumber = 0.22;

bool isLetter(QChar character) { return character.isLetter() || character.isMark(); }

// A blank ends a run; the gap that it stands for comes from the type, not from the blank.
std::vector<NumberRun> split(const QString& text) {
  std::vector<NumberRun> runs;
  bool isFresh = true;
  for (const QChar character : text) {
    if (character.isSpace()) {
      isFresh = true;
      continue;
    }
    // A point or comma behind letters is theirs: "16 Std., 38 Min."
    const bool isUnit = isLetter(character) || (!isFresh && character.isPunct() && runs.back().isUnit);
    if (isFresh || runs.back().isUnit != isUnit) runs.push_back({{}, isUnit, 0, 0});
    runs.back().text += character;
    isFresh = false;
  }
  return runs;
}

// Each digit alone, and what stands between digits whole: letters may join.
QStringList digitsAndRest(const QString& text) {
  QStringList parts;
  for (const QChar character : text) {
    if (parts.isEmpty() || character.isDigit() || parts.last()[0].isDigit())
      parts.append(character);
    else
      parts.last() += character;
  }
  return parts;
}

qreal widthOf(const QString& text, const NumberStyle& style) {
  return style.evenDigits ? widthWithEvenDigits(text, style.number)
                          : QFontMetricsF{style.number}.horizontalAdvance(text);
}

qreal gapBefore(const NumberRun& run, qreal unitSize) {
  if (!run.isUnit) return gapBeforeNumber * unitSize;
  return (run.text.size() == 1 ? gapBeforeOneLetter : gapBeforeWord) * unitSize;
}

}  // namespace

QChar zeroOf(const QString& text) {
  const auto digit = std::ranges::find_if(text, [](QChar character) { return character.isDigit(); });
  return digit == text.end() ? QChar{u'0'} : QChar{static_cast<char16_t>(digit->unicode() - digit->digitValue())};
}

qreal digitCell(const QFont& font, QChar zero) {
  const QFontMetricsF metrics{font};
  qreal widest = 0;
  for (char16_t digit = 0; digit < 10; ++digit)
    widest = std::max(widest, metrics.horizontalAdvance(QChar{static_cast<char16_t>(zero.unicode() + digit)}));
  return widest;
}

qreal widthWithEvenDigits(const QString& text, const QFont& font) {
  const QFontMetricsF metrics{font};
  const qreal cell = digitCell(font, zeroOf(text));
  qreal width = 0;
  for (const QString& part : digitsAndRest(text)) width += part[0].isDigit() ? cell : metrics.horizontalAdvance(part);
  return width;
}

void drawWithEvenDigits(QPainter* painter, const QString& text, QPointF start) {
  const QFontMetricsF metrics{painter->font()};
  const qreal cell = digitCell(painter->font(), zeroOf(text));
  qreal x = start.x();
  for (const QString& part : digitsAndRest(text)) {
    const qreal advance = metrics.horizontalAdvance(part);
    const qreal room = part[0].isDigit() ? cell : advance;
    painter->drawText(QPointF{x + (room - advance) / 2, start.y()}, part);
    x += room;
  }
}

NumberLayout layOut(const QString& text, const NumberStyle& style) {
  NumberLayout layout{split(text), 0};
  const QFontMetricsF unitMetrics{style.unit};
  bool isFirst = true;
  for (NumberRun& run : layout.runs) {
    if (!isFirst) layout.width += gapBefore(run, style.unit.pixelSize());
    isFirst = false;
    run.x = layout.width;
    run.width = run.isUnit ? unitMetrics.horizontalAdvance(run.text) : widthOf(run.text, style);
    layout.width += run.width;
  }
  return layout;
}

}  // namespace mivo::app
