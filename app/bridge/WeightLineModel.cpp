// SPDX-License-Identifier: MIT
#include "WeightLineModel.h"

#include "app/bridge/Text.h"
#include "mivo/charts/VisibleSpan.h"
#include "mivo/charts/WeightFastingChart.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/statistics/LineCharts.h"

namespace mivo::app {

WeightLineModel::WeightLineModel(QObject* parent)
    : LineChartModel{parent}, hasHeader{lineChartsHaveHeaders(currentDependencies().platformVersion)} {}

void WeightLineModel::follow(const StatisticsFeature::State& state, Date present) {
  const auto& logs = weightLogs(state.stats, state.timeRange);
  const bool isSame =
      header && logs == samples && range == state.timeRange && unit == state.goalWeightCardState.weightUnit;
  range = state.timeRange;
  now = present;
  if (isSame) return;
  samples = logs;
  unit = state.goalWeightCardState.weightUnit;
  series[0].points.clear();
  for (const auto& sample : samples) series[0].points.push_back({sample.date, sample.weightInKg / kilogramsPer(unit)});
  header = std::make_unique<BodyWeightChartHeaderModel>(samples, range);
  touched = std::make_unique<BodyWeightInnerChartSelectionModel>(samples, range);
  headerChanges = header->observe([this] { Q_EMIT headerChanged(); });
  selectionChanges = touched->observe([this] { Q_EMIT selectionChanged(); });
  Q_EMIT changed();
  Q_EMIT tableChanged();
  Q_EMIT headerChanged();
}

DateInterval WeightLineModel::domain() const {
  const auto first = samples.empty() ? std::nullopt : std::optional{samples.front().date};
  return drawing::timeAxisDomain(range, first, now, *dependency(&Dependencies::calendar));
}

std::vector<drawing::TimeAxisLabel> WeightLineModel::labels(DateInterval visible) const {
  return drawing::timeAxisLabels(range, visible, now, *dependency(&Dependencies::calendar),
                                 *dependency(&Dependencies::dateFormatter));
}

double WeightLineModel::span() const { return visibleSpan(range); }

std::string WeightLineModel::axisText(double value, int fractionDigits) const {
  return dependency(&Dependencies::numberFormatter)->string(value, fractionDigits);
}

QString WeightLineModel::valueText(std::size_t, double value) const {
  return qString(dependency(&Dependencies::massFormatter)->string(value * kilogramsPer(unit), unit));
}

void WeightLineModel::didScroll(Date leading) {
  if (header) header->didUpdateScrollPosition(leading);
}

void WeightLineModel::didTouch(std::optional<Date> date) {
  if (touched) touched->didUpdateRawSelectedDate(date);
}

std::vector<std::optional<drawing::LinePoint>> WeightLineModel::selection() const {
  if (!touched || !touched->selectedEntry()) return {std::nullopt};
  const auto& sample = *touched->selectedEntry();
  return {drawing::LinePoint{sample.date, sample.weightInKg / kilogramsPer(unit)}};
}

std::optional<drawing::Annotation> WeightLineModel::annotation() const {
  if (!touched || !touched->selectedEntry()) return std::nullopt;
  const auto& sample = *touched->selectedEntry();
  return drawing::Annotation{dependency(&Dependencies::dateFormatter)->string(sample.date, "EEEdMMM").value_or(""),
                             {dependency(&Dependencies::massFormatter)->string(sample.weightInKg, unit)}};
}

QString WeightLineModel::visibleDates() const {
  return header && hasHeader ? qString(header->formattedDateInterval()) : QString{};
}

QString WeightLineModel::average() const {
  if (!header || !(header->average().kilograms > 0)) return QStringLiteral("–");
  return qString(dependency(&Dependencies::massFormatter)->string(header->average().kilograms, unit));
}

}  // namespace mivo::app
