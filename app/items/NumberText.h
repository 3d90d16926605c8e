// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtQuick/QQuickPaintedItem>

#include "drawing/text/NumberLayout.h"

namespace mivo::app {

/// A number with units, such as "16h 34m" or "72.4 kg": digits large, units smaller, on one baseline. Digits may be set
/// in cells of one width, for numbers that change in place. It reads left to right in every layout.
class NumberText : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString text MEMBER text NOTIFY textChanged)
  Q_PROPERTY(QFont font MEMBER font NOTIFY fontChanged)
  Q_PROPERTY(qreal unitSize MEMBER unitSize NOTIFY unitSizeChanged)
  Q_PROPERTY(qreal lineHeight MEMBER lineHeight NOTIFY lineHeightChanged)
  Q_PROPERTY(QColor color MEMBER color NOTIFY colorChanged)
  Q_PROPERTY(bool evenDigits MEMBER evenDigits NOTIFY evenDigitsChanged)

 public:
  explicit NumberText(QQuickItem* parent = nullptr);
  void paint(QPainter* painter) override;

 Q_SIGNALS:
  void textChanged();
  void fontChanged();
  void unitSizeChanged();
  void lineHeightChanged();
  void colorChanged();
  void evenDigitsChanged();

 private:
  QFont unitFont() const;
  drawing::NumberLayout layout() const;
  void measure();

  QString text;
  QFont font;
  qreal unitSize = 13;
  qreal lineHeight = 24;
  QColor color;
  bool evenDigits = false;
};

}  // namespace mivo::app
