// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtGui/QColor>
#include <QtQuick/QQuickPaintedItem>

namespace mivo::app {

/// A line icon of the set under icons/, drawn in one colour; 24 points unless given another size.
class Icon : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString name MEMBER name NOTIFY nameChanged)
  Q_PROPERTY(QColor color MEMBER color NOTIFY colorChanged)
  /// For icons that point somewhere: drawn the other way round in right-to-left layouts.
  Q_PROPERTY(bool mirrored MEMBER mirrored NOTIFY mirroredChanged)

 public:
  explicit Icon(QQuickItem* parent = nullptr);
  void paint(QPainter* painter) override;

 Q_SIGNALS:
  void nameChanged();
  void colorChanged();
  void mirroredChanged();

 private:
  QString name;
  QColor color;
  bool mirrored = false;
};

}  // namespace mivo::app
