// SPDX-License-Identifier: MIT
#include "PairLineModel.h"

#include <algorithm>

#include "app/bridge/Text.h"
#include "mivo/charts/VisibleSpan.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/statistics/LineCharts.h"

namespace mivo::app {

PairLineModel::PairLineModel(QObject* parent)
    : LineChartModel{parent}, hasHeader{lineChartsHaveHeaders(currentDependencies().platformVersion)} {}

void PairLineModel::follow(const StatisticsFeature::State& state, Date present) {
  const WeightFastingChart next = weightFastingChart(state.stats, state.timeRange);
  const bool isSame = header && next == chart && unit == state.goalWeightCardState.weightUnit;
  range = state.timeRange;
  now = present;
  if (isSame) return;
  chart = next;
  unit = state.goalWeightCardState.weightUnit;
  for (auto& line : series) line.points.clear();
  for (const auto& entry : chart.weightEntries)
    series[0].points.push_back({entry.date, entry.value / kilogramsPer(unit)});
  for (const auto& entry : chart.fastingEntries) series[1].points.push_back({entry.date, entry.hours});
  series[0].scale = chart.weightScale / kilogramsPer(unit);
  series[1].scale = chart.fastingScale / secondsPerHour;
  header = std::make_unique<ChartHeaderModel>(chart.timeRange);
  touched = std::make_unique<InnerChartSelectionModel>(chart.weightEntries, chart.fastingEntries, chart.timeRange);
  headerChanges = header->observe([this] { Q_EMIT headerChanged(); });
  selectionChanges = touched->observe([this] { Q_EMIT selectionChanged(); });
  Q_EMIT changed();
  Q_EMIT tableChanged();
  Q_EMIT headerChanged();
}

DateInterval PairLineModel::domain() const {
  std::optional<Date> first;
  for (const auto& line : series)
    if (!line.points.empty()) first = first ? std::min(*first, line.points[0].date) : line.points[0].date;
  return drawing::timeAxisDomain(range, first, now, *dependency(&Dependencies::calendar));
}

std::vector<drawing::TimeAxisLabel> PairLineModel::labels(DateInterval visible) const {
  return drawing::timeAxisLabels(range, visible, now, *dependency(&Dependencies::calendar),
                                 *dependency(&Dependencies::dateFormatter));
}

double PairLineModel::span() const { return visibleSpan(range); }

std::string PairLineModel::axisText(double value, int fractionDigits) const {
  return dependency(&Dependencies::numberFormatter)->string(value, fractionDigits);
}

QString PairLineModel::valueText(std::size_t line, double value) const {
  if (line == 0) return qString(dependency(&Dependencies::massFormatter)->string(value * kilogramsPer(unit), unit));
  return qString(dependency(&Dependencies::hourDurationUnitFormatter)->string(value * secondsPerHour).value_or(""));
}

void PairLineModel::didScroll(Date leading) {
  if (header) header->didUpdateScrollPosition(leading);
}

void PairLineModel::didTouch(std::optional<Date> date) {
  if (touched) touched->didUpdateRawSelectedDate(date);
}

std::vector<std::optional<drawing::LinePoint>> PairLineModel::selection() const {
  std::vector<std::optional<drawing::LinePoint>> points(2);
  if (!touched || !touched->selectedEntry()) return points;
  const auto& [weight, fasting] = *touched->selectedEntry();
  if (weight) points[0] = {weight->date, weight->value / kilogramsPer(unit)};
  if (fasting) points[1] = {fasting->date, fasting->hours};
  return points;
}

std::optional<drawing::Annotation> PairLineModel::annotation() const {
  if (!touched || !touched->selectedEntry()) return std::nullopt;
  const auto& [weight, fasting] = *touched->selectedEntry();
  const Date date = weight ? weight->date : fasting->date;
  drawing::Annotation texts{dependency(&Dependencies::dateFormatter)->string(date, "EEEdMMM").value_or(""), {{}, {}}};
  if (weight) texts.values[0] = dependency(&Dependencies::massFormatter)->string(weight->value, unit);
  if (fasting) texts.values[1] = valueText(1, fasting->hours).toStdString();
  return texts;
}

QString PairLineModel::visibleDates() const {
  return header && hasHeader ? qString(header->formattedDateInterval()) : QString{};
}

}  // namespace mivo::app
