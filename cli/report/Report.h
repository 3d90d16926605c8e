// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "cli/report/RunSettings.h"
#include "host/history/History.h"
#include "mivo/calculations/StatsContainer.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/statistics/Cards.h"
#include "mivo/statistics/DashboardSettingsFeature.h"
#include "mivo/trends/ZoneTrendDisplay.h"

namespace mivo::cli {

/// Every figure of a history.
struct Report {
  Date now;
  TimeRange range;
  StatsContainer stats;
};

/// The clients of one run: its clock stands still, and its identifiers are the same in every run, so that the same
/// history gives the same report to the last byte.
std::shared_ptr<const Dependencies> runDependencies(const RunSettings& settings);

/// With the current dependencies.
Report makeReport(const host::History& history, const RunSettings& settings);

/// The screen that a user sees who has these cards switched on; with the current dependencies.
std::vector<Card> screen(const Report& report, const RunSettings& settings,
                         const DashboardSettingsFeature::State& flags);

/// The seven trend rows in zone order; with the current dependencies.
std::vector<ZoneTrendDisplay> trends(const Report& report);

}  // namespace mivo::cli
