// SPDX-License-Identifier: MIT
#include "CardGrid.h"

#include <QtQuick/QQuickWindow>

#include <algorithm>

namespace mivo::app {
namespace {

constexpr int columns = 6;
// The heights of cards follow their widths by a frame or two, and the view is moved until they have.
constexpr int framesUntilStill = 2;

int spanOf(const QQuickItem* card) {
  const int span = card->property("span").toInt();
  return span > 0 ? std::min(span, columns) : columns;
}

}  // namespace

CardGrid::CardGrid(QQuickItem* parent) : QQuickItem{parent} {
  connect(this, &CardGrid::changed, this, &CardGrid::layOutSoon);
}

void CardGrid::itemChange(ItemChange change, const ItemChangeData& data) {
  if (change == ItemChildAddedChange) {
    connect(data.item, &QQuickItem::implicitHeightChanged, this, &CardGrid::layOutSoon);
    if (data.item->metaObject()->indexOfSignal("spanChanged()") >= 0)
      connect(data.item, SIGNAL(spanChanged()), this, SLOT(layOutSoon()));
  }
  if (change == ItemSceneChange && data.window)
    connect(data.window, &QQuickWindow::frameSwapped, this, &CardGrid::countFrame, Qt::UniqueConnection);
  if (change == ItemChildRemovedChange) data.item->disconnect(this);
  if (change == ItemChildAddedChange || change == ItemChildRemovedChange) polish();
  QQuickItem::itemChange(change, data);
}

void CardGrid::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickItem::geometryChange(newGeometry, oldGeometry);
  if (newGeometry.width() == oldGeometry.width()) return;
  if (!seenCard || viewTop != wantedTop) chooseCard();
  framesToFollow = framesUntilStill;
  polish();
}

void CardGrid::updatePolish() {
  layOut();
  if (framesToFollow > 0) followCard();
}

// The first one of which at least half is seen.
void CardGrid::chooseCard() {
  seenCard = nullptr;
  if (viewTop <= 0) return;
  for (QQuickItem* card : childItems()) {
    if (card->height() <= 0 || card->y() + card->height() / 2 < viewTop) continue;
    seenCard = card;
    seenAt = card->y() - viewTop;
    return;
  }
}

void CardGrid::followCard() {
  if (!seenCard) return;
  const auto cards = childItems();
  const auto hasPlace = [](const QQuickItem* card) { return card->implicitHeight() > 0; };
  const auto card = std::find_if(std::ranges::find(cards, seenCard.data()), cards.end(), hasPlace);
  if (card == cards.end()) return;
  framesToFollow = framesUntilStill;
  wantedTop = (*card)->y() - seenAt;
  if (wantedTop != viewTop) Q_EMIT viewTopWanted(wantedTop);
}

void CardGrid::layOut() {
  qreal y = 0;
  QList<QQuickItem*> row;
  int used = 0;
  const auto finishRow = [&] {
    if (!row.isEmpty()) y += layOutRow(row, y) + gap;
    row.clear();
    used = 0;
  };
  for (QQuickItem* card : childItems()) {
    if (card->implicitHeight() <= 0) continue;
    if (used + spanOf(card) > columns) finishRow();
    row.append(card);
    used += spanOf(card);
  }
  finishRow();
  setImplicitHeight(std::max(0.0, y - gap));
}

// Widths first: a text wraps in them, and only then is a card's height known.
qreal CardGrid::layOutRow(const QList<QQuickItem*>& row, qreal y) {
  const qreal column = (width() - (columns - 1) * gap) / columns;
  qreal x = 0, height = 0;
  for (QQuickItem* card : row) {
    const qreal wide = spanOf(card) * (column + gap) - gap;
    card->setPosition({mirrored ? width() - x - wide : x, y});
    card->setWidth(wide);
    height = std::max(height, card->implicitHeight());
    x += wide + gap;
  }
  for (QQuickItem* card : row) card->setHeight(height);
  return height;
}

}  // namespace mivo::app
