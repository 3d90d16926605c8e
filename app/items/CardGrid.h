// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace mivo::app {

/// Lays its children out in rows of six columns, in reading order. A child's property `span` says how many of them it
/// takes; the children of a row are as high as the highest of them. Those without height take no place.
class CardGrid : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(qreal gap MEMBER gap NOTIFY changed)
  Q_PROPERTY(bool mirrored MEMBER mirrored NOTIFY changed)

 public:
  explicit CardGrid(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  void changed();

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void updatePolish() override;

 private Q_SLOTS:
  void layOutSoon() { polish(); }

 private:
  qreal layOutRow(const QList<QQuickItem*>& row, qreal y);

  qreal gap = 12;
  bool mirrored = false;
};

}  // namespace mivo::app
