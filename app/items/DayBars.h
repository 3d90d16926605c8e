// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "app/bridge/DayBarsModel.h"
#include "app/items/ChartItem.h"
#include "drawing/charts/DayBarsLayout.h"

namespace mivo::app {

/// The bars of a chart with lines, labels and popup. Only what is visible is painted.
class DayBars : public mivo::app::ChartItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(mivo::app::DayBarsModel* model READ model WRITE setModel NOTIFY modelChanged REQUIRED)
  /// How far the content is scrolled from its first bar, in points; it comes from a flicking view over this item.
  Q_PROPERTY(qreal scroll READ scroll WRITE setScroll NOTIFY scrollChanged)
  Q_PROPERTY(qreal contentWidth READ contentWidth NOTIFY layoutChanged)
  Q_PROPERTY(qreal plotWidth READ plotWidth NOTIFY layoutChanged)
  Q_PROPERTY(QColor barTop MEMBER barTop NOTIFY appearanceChanged)
  Q_PROPERTY(QColor barFill MEMBER barFill NOTIFY appearanceChanged)
  Q_PROPERTY(QColor barDim MEMBER barDim NOTIFY appearanceChanged)
  /// 0 to 1 while the bars grow to their height.
  Q_PROPERTY(qreal growth MEMBER growth NOTIFY appearanceChanged)

 public:
  explicit DayBars(QQuickItem* parent = nullptr);

  DayBarsModel* model() const { return shown; }
  void setModel(DayBarsModel* model);
  qreal scroll() const { return offset; }
  void setScroll(qreal scroll);
  qreal contentWidth() const;
  qreal plotWidth() const { return layout.plotWidth; }

  /// The position nearest to `scroll` at which whole bars are visible.
  Q_INVOKABLE qreal snapped(qreal scroll) const { return layout.snapped(scroll); }
  Q_INVOKABLE qreal maxScroll() const { return layout.maxScroll(); }
  /// A tap at a point of the item: selects the bar there, or clears its selection.
  Q_INVOKABLE void tap(qreal x);
  /// Moves the selection by so many bars, from the latest one where nothing is selected, and scrolls it into view.
  Q_INVOKABLE void moveSelection(int bars);
  Q_INVOKABLE void selectEnd(bool latest);
  Q_INVOKABLE void clearSelection();
  /// Clears the selection, or selects the latest bar where nothing is.
  Q_INVOKABLE void toggleSelection();

  void paint(QPainter* painter) override;

 Q_SIGNALS:
  void modelChanged();
  void scrollChanged();
  void layoutChanged();
  /// Another kind of bars than before: they may grow from the ground.
  void unitChanged();
  /// The keyboard wants another part of the chart in view.
  void scrollWanted(qreal scroll);

 protected:
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void updatePolish() override;

 private:
  void relayout();
  qreal gutterWidth() const;
  void keepPlace();
  void reportVisibleBars();
  std::optional<std::size_t> selectedBar() const;
  void select(std::size_t bar);

  void paintLines(QPainter* painter) const;
  void paintBars(QPainter* painter) const;
  void paintLabels(QPainter* painter) const;
  void paintPopup(QPainter* painter) const;

  DayBarsModel* shown = nullptr;
  drawing::DayBarsLayout layout;
  qreal offset = 0;
  std::optional<Date> lastSeen;  ///< where the bar at the trailing edge begins, if that is not the latest one
  bool isLayingOut = false;
  QColor barTop, barFill, barDim;
  qreal growth = 1;
};

}  // namespace mivo::app
