// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "mivo/charts/DatedSeries.h"
#include "mivo/charts/WeightFastingEntry.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/EventStream.h"

namespace mivo {

/// How long a selection rests before the observers of its model are told: a finger moves many times a frame.
inline constexpr Duration selectionDebounce{0.010};

/// What is selected in the chart of weight and fasting hours. One for each chart, as long as the chart is there.
///
/// The observers are told once a burst of changes is over, through the main queue of the dependencies in force when it
/// was made; nobody is told any more once it is gone. Thread: the main one.
class InnerChartSelectionModel {
 public:
  InnerChartSelectionModel(List<WeightAverageEntry> weightEntries, List<FastingAverageEntry> fastingEntries,
                           TimeRange timeRange);
  InnerChartSelectionModel(const InnerChartSelectionModel&) = delete;
  InnerChartSelectionModel& operator=(const InnerChartSelectionModel&) = delete;

  const List<WeightAverageEntry>& weightEntries() const { return weights.entries(); }
  const List<FastingAverageEntry>& fastingEntries() const { return fasts.entries(); }
  TimeRange timeRange() const { return range; }

  /// The date under the user's finger, and the points selected by it; none while no finger is down.
  const std::optional<Date>& rawSelectedDate() const { return touched; }
  const std::optional<WeightFastingEntry>& selectedEntry() const { return selected; }

  void didUpdateRawSelectedDate(std::optional<Date> date);

  Subscription observe(std::function<void()> changed) const { return changes.subscribe(std::move(changed)); }

 private:
  DatedSeries<WeightAverageEntry> weights;
  DatedSeries<FastingAverageEntry> fasts;
  TimeRange range;
  EventStream<> voidSubject, changes;
  Subscription cancellable;
  std::optional<Date> touched;
  std::optional<WeightFastingEntry> selected;
};

}  // namespace mivo
