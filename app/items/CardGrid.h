// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>

#include <algorithm>

namespace mivo::app {

/// Lays its children out in rows of six columns, in reading order. A child's property `span` says how many of them it
/// takes; the children of a row are as high as the highest of them. Those without height take no place. Where it gets
/// another width, it says where a view has to go so that it goes on showing the same card.
class CardGrid : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(qreal gap MEMBER gap NOTIFY changed)
  /// y of the view's top in the grid. A view that stands above the grid shows no card at its top, and stays.
  Q_PROPERTY(qreal viewTop MEMBER viewTop)
  Q_PROPERTY(bool mirrored MEMBER mirrored NOTIFY changed)

 public:
  explicit CardGrid(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  void changed();
  void viewTopWanted(qreal y);

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void updatePolish() override;

 private Q_SLOTS:
  void layOutSoon() { polish(); }
  void countFrame() { framesToFollow = std::max(0, framesToFollow - 1); }

 private:
  void layOut();
  void chooseCard();
  void followCard();
  qreal layOutRow(const QList<QQuickItem*>& row, qreal y);

  qreal gap = 12, viewTop = 0;
  QPointer<QQuickItem> seenCard;
  qreal seenAt = 0;     ///< y of its top in the view
  qreal wantedTop = 0;  ///< of the view
  int framesToFollow = 0;
  bool mirrored = false;
};

}  // namespace mivo::app
