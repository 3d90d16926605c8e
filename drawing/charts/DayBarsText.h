// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "mivo/charts/ScrollChartFeature.h"
#include "mivo/platform/Formatters.h"

namespace mivo::drawing {

/// What puts day bars into words.
struct DayBarsClients {
  const DateIntervalFormatter& dates;
  const DurationFormatter &hourMin, &hour;
};

/// The chart as a table: the dates and the time of a bar, counted from the latest one. Composed when it is asked for.
std::string barDates(const ScrollChartFeature::State& chart, std::size_t place, const DayBarsClients& clients);
std::string barTime(const ScrollChartFeature::State& chart, std::size_t place, const DayBarsClients& clients);

/// "Jul 1 - 7, 2026: 16h 30m", of the selected bar; empty without one.
std::string spokenBar(const ScrollChartFeature::State& chart, const DayBarsClients& clients);

}  // namespace mivo::drawing
