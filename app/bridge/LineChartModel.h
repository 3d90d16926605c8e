// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <optional>
#include <vector>

#include "app/bridge/ChartTable.h"
#include "drawing/charts/LineSelection.h"

namespace mivo::app {

/// A line chart as the screen reads and drives it: one line or two that share an axis without a unit.
/// Who derives from it names it with its namespace: Qt describes types to QML by their base's name as it is written.
class LineChartModel : public mivo::app::ChartTable {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a chart belongs to the statistics")
  /// The dates on screen, for the card's head; empty in the older presentation, which does not scroll.
  Q_PROPERTY(QString visibleDates READ visibleDates NOTIFY headerChanged)
  /// The average of what is on screen as text; a dash where nothing is. Empty for a chart that has none.
  Q_PROPERTY(QString average READ average NOTIFY headerChanged)
  Q_PROPERTY(QString spokenSelection READ spokenSelection NOTIFY selectionChanged)
  Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
  Q_PROPERTY(bool hasTwoLines READ hasTwoLines CONSTANT)
  Q_PROPERTY(bool scrolls READ scrolls CONSTANT)

 public:
  using Lines = std::vector<drawing::LineSeries>;

  using ChartTable::ChartTable;

  virtual const Lines& lines() const = 0;
  virtual DateInterval domain() const = 0;
  virtual double span() const = 0;  ///< seconds on screen at once
  virtual std::vector<drawing::TimeAxisLabel> labels(DateInterval visible) const = 0;
  virtual std::string axisText(double value, int fractionDigits) const = 0;

  virtual void didScroll(Date leading) = 0;
  virtual void didTouch(std::optional<Date> date) = 0;
  /// The points chosen by the last touch, one a line.
  virtual std::vector<std::optional<drawing::LinePoint>> selection() const = 0;
  virtual std::optional<drawing::Annotation> annotation() const = 0;

  virtual QString visibleDates() const = 0;
  virtual QString average() const = 0;
  virtual bool scrolls() const = 0;
  bool isEmpty() const;
  int rowCount() const override;
  QString date(int row) const override;
  QString value(int row) const override;
  /// A value of a line in words.
  virtual QString valueText(std::size_t line, double value) const = 0;
  /// What is selected, in words.
  QString spokenSelection() const;
  bool hasTwoLines() const { return lines().size() == 2; }

 private:
  struct Row {
    std::size_t line;
    drawing::LinePoint point;
  };
  Row rowOf(int row) const;

 Q_SIGNALS:
  void changed();  ///< other points
  void selectionChanged();
  void headerChanged();
};

}  // namespace mivo::app
