// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QPainterPath>

#include <optional>

#include "app/bridge/LineChartModel.h"
#include "app/items/ChartItem.h"
#include "drawing/charts/LineSelection.h"

namespace mivo::app {

/// One line with an area under it, or two with marks of their own. Only what is visible is painted.
class LineChart : public mivo::app::ChartItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(mivo::app::LineChartModel* model READ model WRITE setModel NOTIFY modelChanged REQUIRED)
  Q_PROPERTY(qreal scroll READ scroll WRITE setScroll NOTIFY scrollChanged)
  Q_PROPERTY(qreal contentWidth READ contentWidth NOTIFY layoutChanged)
  Q_PROPERTY(qreal plotWidth READ plotWidth NOTIFY layoutChanged)
  /// y of the middle of the plot.
  Q_PROPERTY(qreal plotMargins READ plotMargins NOTIFY modelChanged)
  Q_PROPERTY(qreal plotMiddle READ plotMiddle NOTIFY heightChanged)
  /// The colours of the lines, first to last: fill, text, and the mark on the other theme's surface.
  Q_PROPERTY(QList<QColor> fills MEMBER fills NOTIFY appearanceChanged)
  Q_PROPERTY(QList<QColor> textColors MEMBER textColors NOTIFY appearanceChanged)
  Q_PROPERTY(QList<QColor> inverseFills MEMBER inverseFills NOTIFY appearanceChanged)
  /// A sentence for the middle of a plot into which no line comes; otherwise empty.
  Q_PROPERTY(QString note READ note NOTIFY noteChanged)
  /// 0 to 1: from the axis before the last scroll to the present one.
  Q_PROPERTY(qreal axisShift READ axisShift WRITE setAxisShift NOTIFY axisShiftChanged)

 public:
  explicit LineChart(QQuickItem* parent = nullptr);

  LineChartModel* model() const { return shown; }
  void setModel(LineChartModel* model);
  qreal scroll() const { return offset; }
  void setScroll(qreal scroll);
  qreal contentWidth() const;
  qreal plotWidth() const;
  qreal plotMiddle() const;
  qreal plotMargins() const { return drawing::LineChartLayout::plotMargins(shown && shown->hasTwoLines()); }
  QString note() const { return sentence; }
  qreal axisShift() const { return shift; }
  void setAxisShift(qreal value);

  Q_INVOKABLE qreal maxScroll() const { return contentWidth() - plotWidth(); }
  /// Selects what is nearest to a point of the item.
  Q_INVOKABLE void touch(qreal x);
  Q_INVOKABLE void clearSelection();
  /// Steps through the points, from the latest one where none is selected, and scrolls it into view.
  Q_INVOKABLE void moveSelection(int points);
  Q_INVOKABLE void selectEnd(bool latest);

  void paint(QPainter* painter) override;

 Q_SIGNALS:
  void modelChanged();
  void scrollChanged();
  void layoutChanged();
  void noteChanged();
  void axisShiftChanged();
  /// The axis has another range than before: animate axisShift from 0 to 1.
  void axisMoved();
  void scrollWanted(qreal scroll);

 protected:
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

 private:
  using Layout = drawing::LineChartLayout;

  void dataChanged();
  const QFont& gutterFont() const;
  qreal wantedGutter() const;
  void lookAtVisible(bool animated);
  void updateAxis(bool animated);
  void selectDate(std::optional<Date> date);
  Layout layout() const;
  drawing::LinePlot plot() const;
  DateInterval visible() const { return layout().visible(offset); }
  QPointF at(const drawing::LinePlot& plot, const drawing::LineSeries& line, const drawing::LinePoint& point) const;

  void paintLines(QPainter* painter, const drawing::LinePlot& plot) const;
  void paintLabels(QPainter* painter, const drawing::LinePlot& plot) const;
  void paintLine(QPainter* painter, const drawing::LinePlot& plot, std::size_t index) const;
  void paintArea(QPainter* painter, const QPainterPath& path, qreal bottom, QColor tint) const;
  void paintGutter(QPainter* painter, const drawing::LinePlot& plot) const;
  void paintSelection(QPainter* painter, const drawing::LinePlot& plot) const;
  void paintAnnotation(QPainter* painter, const drawing::Annotation& annotation,
                       const drawing::AnnotationBox& box) const;
  void paintMark(QPainter* painter, QPointF at, std::size_t line, qreal radius, bool isFilled, qreal stroke,
                 const QColor& color, const QColor& surface) const;

  LineChartModel* shown = nullptr;
  qreal offset = 0;
  /// Not asked for: a binding that reads a width would come to depend on the height too, which may follow that width.
  qreal layoutHeight = 0;
  qreal gutter = Layout::usualGutter;
  TimeRange range = TimeRange::week;
  std::optional<Date> endKept;  ///< of what is seen, where that is not the latest
  bool isLayingOut = false;
  QString sentence;
  qreal shift = 1;
  drawing::ValueAxis axis, axisBefore;
  QList<QColor> fills, textColors, inverseFills;
};

}  // namespace mivo::app
