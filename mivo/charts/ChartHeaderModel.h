// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "mivo/model/Date.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/EventStream.h"
#include "mivo/platform/Formatters.h"

namespace mivo {

/// The header over a scrolling line chart: which dates are visible. Takes clock and formatter from the dependencies in
/// force when it is made; begins with the empty interval from now to now and no text. Thread: the main one.
class ChartHeaderModel {
 public:
  explicit ChartHeaderModel(TimeRange timeRange);
  ChartHeaderModel(const ChartHeaderModel&) = delete;
  ChartHeaderModel& operator=(const ChartHeaderModel&) = delete;

  TimeRange timeRange() const { return range; }
  const DateInterval& visibleDateInterval() const { return visible; }
  /// "Jul 1 - 8, 2026"; empty where the formatter has no text.
  const std::string& formattedDateInterval() const { return formatted; }

  /// The chart has scrolled to this leading date. The observers are told each time, once all is brought up to date.
  void didUpdateScrollPosition(Date leading);

  Subscription observe(std::function<void()> changed) const { return changes.subscribe(std::move(changed)); }

 private:
  TimeRange range;
  Client<DateIntervalFormatter> dateIntervalFormatter;
  DateInterval visible;
  std::string formatted;
  EventStream<> changes;
};

}  // namespace mivo
