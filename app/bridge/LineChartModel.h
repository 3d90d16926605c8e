// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/bridge/ChartTable.h"
#include "drawing/charts/LineChart.h"

namespace mivo::app {

/// A `drawing::LineChart` as the screen reads and drives it.
class LineChartModel final : public mivo::app::ChartTable {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a chart belongs to the statistics")
  /// The dates on screen, for the card's head; empty in the older presentation, which does not scroll.
  Q_PROPERTY(QString visibleDates READ visibleDates NOTIFY headerChanged)
  Q_PROPERTY(QString average READ average NOTIFY headerChanged)
  Q_PROPERTY(QString spokenSelection READ spokenSelection NOTIFY selectionChanged)
  Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
  Q_PROPERTY(bool hasTwoLines READ hasTwoLines CONSTANT)
  Q_PROPERTY(bool scrolls READ scrolls CONSTANT)

 public:
  /// Without points, it says which chart it is.
  LineChartModel(drawing::LineChart::Source empty, bool hasHeader, std::function<PageClients()> clients,
                 QObject* parent);

  /// Takes over what is other than before.
  void show(const drawing::LineChart::Source& source, WeightUnit unit, Date now);

  const std::vector<drawing::LineSeries>& lines() const { return chart->lines(); }
  DateInterval domain() const { return chart->domain(clients()); }
  TimeRange timeRange() const { return chart->timeRange(); }
  double span() const;  ///< seconds on screen at once
  std::vector<drawing::TimeAxisLabel> labels(DateInterval visible) const { return chart->labels(visible, clients()); }
  std::string axisText(double value, int fractionDigits) const;
  std::string gutterText(std::size_t line, double value) const { return chart->gutterText(line, value, clients()); }
  std::vector<std::string> gutterTexts() const { return chart->gutterTexts(clients()); }
  std::string note(DateInterval visible) const { return chart->note(visible, clients()); }
  void didScroll(Date leading) { chart->didScroll(leading); }
  void didTouch(std::optional<Date> date) { chart->didTouch(date); }
  std::vector<std::optional<drawing::LinePoint>> selection() const { return chart->selection(); }
  std::optional<drawing::Annotation> annotation() const { return chart->annotation(clients()); }

  QString visibleDates() const;
  QString average() const;
  QString spokenSelection() const;
  bool isEmpty() const { return chart->isEmpty(); }
  bool hasTwoLines() const { return lines().size() == 2; }
  bool scrolls() const { return hasHeader; }
  int rowCount() const override { return static_cast<int>(chart->rowCount()); }
  QString date(int row) const override;
  QString value(int row) const override;

 Q_SIGNALS:
  void changed();  ///< other points, or another day
  void selectionChanged();
  void headerChanged();

 private:
  PageClients clients() const;
  void become(const drawing::LineChart::Source& source, WeightUnit unit);

  bool hasHeader;
  std::function<PageClients()> present;
  Date now;  ///< of what is shown
  std::unique_ptr<drawing::LineChart> chart;
  Subscription headerChanges, selectionChanges;
};

}  // namespace mivo::app
