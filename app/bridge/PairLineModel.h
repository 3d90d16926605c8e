// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/bridge/LineChartModel.h"
#include "mivo/charts/ChartHeaderModel.h"
#include "mivo/charts/InnerChartSelectionModel.h"
#include "mivo/charts/WeightFastingChart.h"
#include "mivo/statistics/StatisticsFeature.h"

namespace mivo::app {

/// The chart of averaged weight and fasting hours.
class PairLineModel final : public mivo::app::LineChartModel {
  Q_OBJECT

 public:
  explicit PairLineModel(QObject* parent = nullptr);

  /// Takes the series of the shown range over where they, the range or the unit are others than before.
  void follow(const StatisticsFeature::State& state, Date now);

  const Lines& lines() const override { return series; }
  DateInterval domain() const override;
  double span() const override;
  std::vector<drawing::TimeAxisLabel> labels(DateInterval visible) const override;
  std::string axisText(double value, int fractionDigits) const override;
  QString valueText(std::size_t line, double value) const override;
  void didScroll(Date leading) override;
  void didTouch(std::optional<Date> date) override;
  std::vector<std::optional<drawing::LinePoint>> selection() const override;
  std::optional<drawing::Annotation> annotation() const override;
  QString visibleDates() const override;
  QString average() const override { return {}; }
  bool scrolls() const override { return hasHeader; }

 private:
  WeightFastingChart chart;
  Lines series{2};
  TimeRange range = TimeRange::week;
  Date now;
  WeightUnit unit = WeightUnit::kilograms;
  bool hasHeader;
  std::unique_ptr<ChartHeaderModel> header;
  std::unique_ptr<InnerChartSelectionModel> touched;
  Subscription headerChanges, selectionChanges;
};

}  // namespace mivo::app
