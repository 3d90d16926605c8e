// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "mivo/charts/DatedSeries.h"
#include "mivo/model/Averages.h"
#include "mivo/model/Record.h"

namespace mivo {

/// What a touch on the chart of weight and fasting hours selects: a point of one line or of both.
struct WeightFastingEntry {
  std::optional<WeightAverageEntry> weight;
  std::optional<FastingAverageEntry> fasting;
  bool operator==(const WeightFastingEntry&) const = default;
};

template <RecordOf<WeightFastingEntry> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [weight, fasting] = record;
  visit("weight", weight);
  visit("fasting", fasting);
}

/// The points nearest to a date: one of each line where the two are less than a day apart, else only the nearer one,
/// of two equally near the fasting point. Nothing where both lines are empty.
std::optional<WeightFastingEntry> nearestPair(const DatedSeries<WeightAverageEntry>& weights,
                                              const DatedSeries<FastingAverageEntry>& fasts, Date date);

}  // namespace mivo
