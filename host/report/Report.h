// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/history/History.h"
#include "mivo/calculations/StatsContainer.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/statistics/Cards.h"
#include "mivo/statistics/DashboardSettingsFeature.h"
#include "mivo/trends/ZoneTrendDisplay.h"

namespace mivo::host {

/// What a report is made for.
struct ReportSettings {
  TimeRange range = TimeRange::week;
  Date now;
  Client<Calendar> calendar;
  StreakSettings streaks;
  WeightUnit weightUnit = WeightUnit::kilograms;  ///< of texts
};

/// Every figure of a history.
struct Report {
  Date now;
  TimeRange range;
  StatsContainer stats;
};

/// Puts in what a report needs but for texts and formatters: a calendar, a clock that stands still, and identifiers
/// that are the same in every run, so that the same history gives the same report to the last byte.
void fillReportClients(Dependencies& clients, const ReportSettings& settings);

/// With the current dependencies.
Report makeReport(const History& history, const ReportSettings& settings);

/// The screen that a user sees who has these cards switched on; with the current dependencies.
std::vector<Card> screen(const Report& report, const ReportSettings& settings,
                         const DashboardSettingsFeature::State& flags);

/// The seven trend rows in zone order; with the current dependencies.
std::vector<ZoneTrendDisplay> trends(const Report& report);

}  // namespace mivo::host
