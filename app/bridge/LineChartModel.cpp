// SPDX-License-Identifier: MIT
#include "LineChartModel.h"

#include <utility>

#include "app/bridge/Text.h"
#include "mivo/charts/VisibleSpan.h"

namespace mivo::app {

LineChartModel::LineChartModel(drawing::LineChart::Source empty, bool withHeader, std::function<PageClients()> clients,
                               QObject* parent)
    : mivo::app::ChartTable{parent}, hasHeader{withHeader}, present{std::move(clients)}, now{present().now} {
  become(empty, WeightUnit::kilograms);
}

void LineChartModel::become(const drawing::LineChart::Source& source, WeightUnit unit) {
  chart = std::make_unique<drawing::LineChart>(source, unit);
  headerChanges = chart->observeHeader([this] { Q_EMIT headerChanged(); });
  selectionChanges = chart->observeSelection([this] { Q_EMIT selectionChanged(); });
}

void LineChartModel::show(const drawing::LineChart::Source& source, WeightUnit unit, Date date) {
  const DateInterval before = domain();
  now = date;
  if (!chart->shows(source, unit))
    become(source, unit);
  else if (domain() == before)
    return;
  Q_EMIT changed();
  Q_EMIT tableChanged();
  Q_EMIT headerChanged();
}

PageClients LineChartModel::clients() const {
  PageClients shown = present();
  shown.now = now;
  return shown;
}

double LineChartModel::span() const { return visibleSpan(chart->timeRange()); }

std::string LineChartModel::axisText(double value, int fractionDigits) const {
  return clients().numbers.string(value, fractionDigits);
}

QString LineChartModel::visibleDates() const { return hasHeader ? qString(chart->visibleDates()) : QString{}; }

QString LineChartModel::average() const { return qString(chart->average(clients())); }

QString LineChartModel::spokenSelection() const { return qString(chart->spokenSelection(clients())); }

QString LineChartModel::date(int row) const {
  return qString(chart->row(static_cast<std::size_t>(row), clients()).date);
}

QString LineChartModel::value(int row) const {
  return qString(chart->row(static_cast<std::size_t>(row), clients()).value);
}

}  // namespace mivo::app
