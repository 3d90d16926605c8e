// SPDX-License-Identifier: MIT
#include "mivo/charts/WeightFastingEntry.h"

#include <cmath>

namespace mivo {
namespace {

double distance(Date one, Date other) { return std::abs(secondsBetween(one, other)); }

}  // namespace

std::optional<WeightFastingEntry> nearestPair(const DatedSeries<WeightAverageEntry>& weights,
                                              const DatedSeries<FastingAverageEntry>& fasts, Date date) {
  const WeightAverageEntry* weight = weights.nearest(date);
  const FastingAverageEntry* fasting = fasts.nearest(date);
  if (!weight && !fasting) return std::nullopt;
  if (!fasting) return WeightFastingEntry{*weight, std::nullopt};
  if (!weight) return WeightFastingEntry{std::nullopt, *fasting};
  if (distance(weight->date, fasting->date) < secondsPerDay) return WeightFastingEntry{*weight, *fasting};
  if (distance(weight->date, date) < distance(fasting->date, date)) return WeightFastingEntry{*weight, std::nullopt};
  return WeightFastingEntry{std::nullopt, *fasting};
}

}  // namespace mivo
