// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "mivo/model/Averages.h"
#include "mivo/model/BodyWeightSample.h"
#include "mivo/model/Date.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo {

/// The y scale of a weight chart without points, in kilograms.
inline constexpr double emptyWeightChartScale = 75;

/// How far back a sample may lie that an average is of.
inline constexpr Duration averagedSpan{7 * secondsPerDay};

/// One point a sample: the average weight of the sample and of all earlier ones at most seven days older; a sample
/// exactly seven days older is in. Not a number where one of these weights is not finite.
///
/// samples  ascending by date. Cost: O(n) however dense they are; the sum slides along with its rounding error kept, so
/// an average is off by less than a unit in its last place. Thread: any.
std::vector<WeightAverageEntry> weeklyAverages(std::span<const BodyWeightSample> samples, const UUIDGenerator& ids);

/// From the first of the samples to the last one; none where there is only one, or where first and last are the same in
/// every field. Ends the program with a sentence where the first is later than the last: samples come in order.
std::optional<ClosedDateRange> trendTimeRange(std::span<const BodyWeightSample> trendSamples);

/// What the fitted line gains over the range, in kilograms; negative is a loss. None for fewer than two samples, and
/// where they follow no clear line (a correlation below 0.7 either way).
std::optional<double> weightTrendInKg(std::span<const BodyWeightSample> trendSamples, const ClosedDateRange& range);

}  // namespace mivo
