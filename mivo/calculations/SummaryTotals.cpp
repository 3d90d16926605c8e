// SPDX-License-Identifier: MIT
#include "mivo/calculations/SummaryTotals.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace mivo {
namespace {

std::int64_t wholeHours(double seconds) {
  const double hours = std::trunc(seconds / secondsPerHour);
  constexpr double limit = 0x1p63;
  if (hours >= -limit && hours < limit) return static_cast<std::int64_t>(hours);
  std::fprintf(stderr, "The fasts add up to %g hours, more than can be counted.\n", hours);
  std::abort();
}

}  // namespace

SummaryTotals summaryTotals(std::span<const FinishedFastingDataEntry> fasts) {
  const auto [seconds, longest] = durations(fasts);
  return {.totalFasts = std::ssize(fasts),
          .totalHours = wholeHours(seconds),
          .averageFast = fasts.empty() ? 0 : seconds / static_cast<double>(fasts.size()),
          .longestFast = longest};
}

}  // namespace mivo
