// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/calculations/StatsContainer.h"
#include "mivo/charts/WeightFastingChart.h"
#include "mivo/model/TimeRange.h"

namespace mivo {

/// The weighings that the weight chart of a range shows.
const List<BodyWeightSample>& weightLogs(const StatsContainer& stats, TimeRange range);

/// The series and scales of the chart of weight and fasting hours.
WeightFastingChart weightFastingChart(const StatsContainer& stats, TimeRange range);

}  // namespace mivo
