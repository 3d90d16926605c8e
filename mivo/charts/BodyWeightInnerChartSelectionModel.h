// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "mivo/charts/DatedSeries.h"
#include "mivo/model/BodyWeightSample.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/EventStream.h"

namespace mivo {

/// What is selected in the chart of body weights: the weighing nearest to the user's finger, of several equally near
/// the one listed first. Lives and tells its observers as InnerChartSelectionModel does. Thread: the main one.
class BodyWeightInnerChartSelectionModel {
 public:
  BodyWeightInnerChartSelectionModel(List<BodyWeightSample> entries, TimeRange timeRange);
  BodyWeightInnerChartSelectionModel(const BodyWeightInnerChartSelectionModel&) = delete;
  BodyWeightInnerChartSelectionModel& operator=(const BodyWeightInnerChartSelectionModel&) = delete;

  const List<BodyWeightSample>& entries() const { return samples.entries(); }
  TimeRange timeRange() const { return range; }

  /// The date under the user's finger, and the weighing selected by it; none while no finger is down.
  const std::optional<Date>& rawSelectedDate() const { return touched; }
  const std::optional<BodyWeightSample>& selectedEntry() const { return selected; }

  void didUpdateRawSelectedDate(std::optional<Date> date);

  Subscription observe(std::function<void()> changed) const { return changes.subscribe(std::move(changed)); }

 private:
  DatedSeries<BodyWeightSample> samples;
  TimeRange range;
  EventStream<> voidSubject, changes;
  Subscription cancellable;
  std::optional<Date> touched;
  std::optional<BodyWeightSample> selected;
};

}  // namespace mivo
