// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/model/Averages.h"
#include "mivo/model/TimeRange.h"
#include "mivo/store/List.h"

namespace mivo {

/// The card that lays averaged weight and fasting hours over each other. The two lines share one vertical axis without
/// a unit, on which each is drawn divided by its own scale; a scale is never 0.
struct WeightFastingChart {
  List<WeightAverageEntry> weightEntries;
  List<FastingAverageEntry> fastingEntries;
  TimeRange timeRange = TimeRange::week;
  double weightScale = 1;   ///< kilograms
  double fastingScale = 1;  ///< seconds

  double axisValue(const WeightAverageEntry& entry) const { return entry.value / weightScale; }
  double axisValue(const FastingAverageEntry& entry) const { return entry.value / fastingScale; }

  bool operator==(const WeightFastingChart&) const = default;
};

/// Whether the line charts scroll under a header that says what is visible; older platforms show them without.
constexpr bool lineChartsHaveHeaders(int platformVersion) { return platformVersion >= 17; }

}  // namespace mivo
