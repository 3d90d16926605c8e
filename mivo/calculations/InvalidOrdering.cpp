// SPDX-License-Identifier: MIT
#include "mivo/calculations/InvalidOrdering.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "mivo/calculations/ChartPeriods.h"
#include "mivo/store/Print.h"

namespace mivo {
namespace {

constexpr std::size_t mostFasts = 8;

std::string spelt(Date start, Date end) { return printed(start) + '-' + printed(end); }

std::string spelt(const std::optional<DateInterval>& period) {
  return period ? spelt(period->start, period->end) : "none";
}

}  // namespace

std::string invalidOrdering(std::span<const FinishedFastingDataEntry> backwardFasts, TimeRange range,
                            const Calendar& calendar) {
  const auto& first = backwardFasts.front();
  const auto period = spelt(chartPeriod(first.start, range, calendar));
  std::string fasts;
  for (const auto& fast : backwardFasts.first(std::min(backwardFasts.size(), mostFasts)))
    fasts += (fasts.empty() ? "" : ", ") + spelt(fast.start, fast.end);
  if (backwardFasts.size() > mostFasts) fasts += ", " + std::to_string(backwardFasts.size() - mostFasts) + " more";
  return "invalid ordering F: " + spelt(first.start, first.end) + " DI:" + period + " [" + period + ", " +
         spelt(chartPeriod(first.end, range, calendar)) + "] [" + fasts + ']';
}

}  // namespace mivo
