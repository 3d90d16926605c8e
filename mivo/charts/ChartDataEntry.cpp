// SPDX-License-Identifier: MIT
#include "mivo/charts/ChartDataEntry.h"

#include "mivo/platform/Dependencies.h"

namespace mivo {

ChartDataEntry::ChartDataEntry(DateInterval interval, double fraction, std::string_view label)
    : ChartDataEntry{interval, fraction, label, dependency(&Dependencies::uuid)->next()} {}

ChartDataEntry::ChartDataEntry(DateInterval interval, double fraction, std::string_view label, UUID identity)
    : dateInterval{interval}, value{fraction}, xAxisLabel{label}, id{identity} {
  const bool isFraction = value >= 0.0 && value <= 1.0;
  if (!isFraction) reportIssue("invalid chart value");
}

}  // namespace mivo

std::size_t std::hash<mivo::ChartDataEntry>::operator()(const mivo::ChartDataEntry& entry) const noexcept {
  std::size_t seed = 0;
  const auto mix = [&seed](std::size_t next) { seed = seed * 0x9E3779B97F4A7C15u + next; };
  mix(std::hash<double>{}(mivo::secondsSince1970(entry.dateInterval.start)));
  mix(std::hash<double>{}(mivo::secondsSince1970(entry.dateInterval.end)));
  mix(std::hash<double>{}(entry.value));
  mix(std::hash<std::string>{}(entry.xAxisLabel));
  mix(std::hash<mivo::UUID>{}(entry.id));
  return seed;
}
