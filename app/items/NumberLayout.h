// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtGui/QFont>

#include <vector>

class QPainter;

namespace mivo::app {

/// One stretch of a number with units: the digits or the letters of "16h 34m", or "72.4 kg".
struct NumberRun {
  QString text;
  bool isUnit = false;
  qreal x = 0;      ///< points from the number's leading edge
  qreal width = 0;  ///< points
};

/// How a finished text of numbers and units is set: digits large, letters smaller, all on one baseline.
struct NumberStyle {
  QFont number, unit;
  /// Every digit stands centred in a cell as wide as the widest one, so that a running number does not jump.
  bool evenDigits = false;
};

struct NumberLayout {
  std::vector<NumberRun> runs;
  qreal width = 0;
};

/// Splits a text into numbers and units and places them; gaps depend on the unit's size: 0.08 of it before a one-letter
/// unit, 0.26 before a word, 0.22 before the next number.
NumberLayout layOut(const QString& text, const NumberStyle& style);

/// The width of a digit's cell: that of the widest digit of the font, plus its letter spacing.
qreal digitCell(const QFont& font, QChar zero);

/// A text whose digits stand in such cells, from a point of the baseline on, with the painter's font.
void drawWithEvenDigits(QPainter* painter, const QString& text, QPointF start);
qreal widthWithEvenDigits(const QString& text, const QFont& font);

/// The zero of the digits that a text is written in: "0" where there are none.
QChar zeroOf(const QString& text);

}  // namespace mivo::app
