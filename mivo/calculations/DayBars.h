// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

#include "mivo/charts/ScrollChartFeature.h"
#include "mivo/model/Date.h"
#include "mivo/model/Fasts.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Calendar.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo {

/// The seconds that each bar of the two scroll charts stands for.
struct BarSeconds {
  std::vector<double> fasting, eating;
  bool operator==(const BarSeconds&) const = default;
};

/// Sums the stretches into periods: fasted time is the part of the stretches in a period and before `now`, eating time
/// the rest of the period from the first stretch's start up to `now`.
///
/// stretches  ascending, apart from each other (see `unionOfFasts`)
/// periods    ascending, apart from each other (see `chartPeriods`)
/// Cost       O(stretches + periods), no calendar. Thread: any.
BarSeconds barSeconds(std::span<const FinishedFastingDataEntry> stretches, std::span<const DateInterval> periods,
                      Date now);

/// The text under each bar, in the user's locale; empty where the formatter has none. The seven weekdays are formatted
/// once each, weeks and months once a bar.
std::vector<std::string> barLabels(std::span<const DateInterval> periods, TimeRange range, const Calendar& calendar,
                                   const DateFormatter& dates);

/// The fasting and the eating chart of a history, freshly built: nothing selected, nothing laid out.
struct DayBars {
  ScrollChartFeature::State fasting, eating;
};

/// One bar a period without gaps, from the period in which the first stretch begins to that of `now`; no bars where
/// there are no stretches, or all of them begin after `now`. The highest bar of each chart has the value 1.
DayBars dayBars(std::span<const FinishedFastingDataEntry> stretches, TimeRange range, Date now,
                const Calendar& calendar, const DateFormatter& dates, const UUIDGenerator& ids);

/// Puts the bars of `fresh` into `shown`, and keeps what the user has done there: a bar of the same period keeps its
/// id, so a selection survives, and so do the places that the views have reported.
void updateScrollChart(ScrollChartFeature::State& shown, const ScrollChartFeature::State& fresh);

}  // namespace mivo
