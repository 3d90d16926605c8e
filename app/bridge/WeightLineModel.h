// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/bridge/LineChartModel.h"
#include "mivo/charts/BodyWeightChartHeaderModel.h"
#include "mivo/charts/BodyWeightInnerChartSelectionModel.h"
#include "mivo/statistics/StatisticsFeature.h"

namespace mivo::app {

/// The chart of weights, in the user's unit.
class WeightLineModel final : public mivo::app::LineChartModel {
  Q_OBJECT

 public:
  explicit WeightLineModel(QObject* parent = nullptr);

  /// Takes the samples of the shown range over where they, the range or the unit are others than before.
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
  QString average() const override;
  bool scrolls() const override { return hasHeader; }

 private:
  List<BodyWeightSample> samples;
  Lines series{1};
  TimeRange range = TimeRange::week;
  Date now;
  WeightUnit unit = WeightUnit::kilograms;
  bool hasHeader;
  std::unique_ptr<BodyWeightChartHeaderModel> header;
  std::unique_ptr<BodyWeightInnerChartSelectionModel> touched;
  Subscription headerChanges, selectionChanges;
};

}  // namespace mivo::app
