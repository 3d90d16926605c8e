// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "mivo/charts/ChartHeaderModel.h"
#include "mivo/charts/VisibleWeights.h"
#include "mivo/model/Record.h"
#include "mivo/model/TimeRange.h"

namespace mivo {

/// A mass, to be shown in whatever unit the user has chosen.
struct Mass {
  double kilograms = 0;
  bool operator==(const Mass&) const = default;
};

template <RecordOf<Mass> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [kilograms] = record;
  visit("kilograms", kilograms);
}

/// The header over the chart of body weights: which dates are visible, and the average of the weighings among them.
/// Begins and tells its observers as ChartHeaderModel does. Thread: the main one.
class BodyWeightChartHeaderModel {
 public:
  BodyWeightChartHeaderModel(List<BodyWeightSample> entries, TimeRange timeRange);
  const List<BodyWeightSample>& entries() const { return weights.samples(); }
  TimeRange timeRange() const { return header.timeRange(); }
  const DateInterval& visibleDateInterval() const { return header.visibleDateInterval(); }
  /// Both ends of the visible interval count; 0 kilograms where no weighing is visible.
  const Mass& average() const { return visibleAverage; }
  /// "Jul 1 - 8, 2026"; empty where the formatter has no text.
  const std::string& formattedDateInterval() const { return header.formattedDateInterval(); }

  /// The chart has scrolled to this leading date.
  void didUpdateScrollPosition(Date leading);

  Subscription observe(std::function<void()> changed) const { return header.observe(std::move(changed)); }

 private:
  VisibleWeights weights;
  ChartHeaderModel header;
  Mass visibleAverage;
};

}  // namespace mivo
