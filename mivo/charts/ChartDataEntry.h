// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "mivo/model/Date.h"
#include "mivo/model/Record.h"
#include "mivo/model/UUID.h"

namespace mivo {

/// One bar of a day-bar chart. Two bars that differ only in their id are two.
///
/// A value outside 0 to 1, or one that is not a number, is reported as "invalid chart value" and kept as it is.
struct ChartDataEntry {
  DateInterval dateInterval;  ///< the period that the bar covers
  double value = 0;           ///< height as a fraction of the chart's `maxTime`, 0 to 1
  std::string xAxisLabel;     ///< the text under the bar
  UUID id;

  /// A bar with a fresh id from the current dependencies.
  ChartDataEntry(DateInterval dateInterval, double value, std::string_view xAxisLabel);

  /// A bar with a given id: for whole charts, whose ids are made in one go, and for bars that keep theirs.
  ChartDataEntry(DateInterval dateInterval, double value, std::string_view xAxisLabel, UUID id);

  bool operator==(const ChartDataEntry&) const = default;
};

template <RecordOf<ChartDataEntry> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [dateInterval, value, xAxisLabel, id] = record;
  visit("dateInterval", dateInterval);
  visit("value", value);
  visit("xAxisLabel", xAxisLabel);
  visit("id", id);
}

}  // namespace mivo

template <>
struct std::hash<mivo::ChartDataEntry> {
  std::size_t operator()(const mivo::ChartDataEntry& entry) const noexcept;
};
