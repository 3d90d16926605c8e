// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "mivo/charts/ScrollChartFeature.h"
#include "mivo/model/Averages.h"
#include "mivo/model/BodyWeightSample.h"
#include "mivo/model/Date.h"
#include "mivo/model/Fasts.h"
#include "mivo/model/Record.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Calendar.h"
#include "mivo/store/List.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// Every number of the statistics screen. Seconds and kilograms, unless a field says otherwise; ranges are this week,
/// month or year against the whole one before.
///
/// The owner recomputes a copy away from the screen and folds back the half that changed:
///
///     StatsContainer fresh = stats.copy();
///     fresh.update(fasts, ongoingFast, streakSettings, timeRange);
///     stats.updateFastingChart(fresh);
///     stats.updateWeightChart(StatsContainer::update(samples));
///
/// The operations that read the clock, the calendars, the formatter and fresh ids take them from the current
/// dependencies. One thread at a time.
struct StatsContainer {
  Observed<std::int64_t> totalFasts;                ///< the one that is still running included
  Observed<std::int64_t> totalHours;                ///< whole hours, truncated
  Observed<double> averageFast;                     ///< 0 without fasts
  Observed<double> longestFast;                     ///< 0 without fasts
  Observed<std::int64_t> currentStreak, maxStreak;  ///< days or fasts, as the streak settings say

  Observed<AverageThisLastTimeRange> fastingAverages, eatingAverages, anabolicAverages, catabolicAverages,
      fatBurningAverages, ketosisAverages, deepKetosisAverages;

  Observed<List<BodyWeightSample>> weightLogsForWeek, weightLogsForMonth, weightLogsForYear;
  Observed<List<WeightAverageEntry>> weightAvgLogsForWeek, weightAvgLogsForMonth, weightAvgLogsForYear;
  Observed<double> weightChartScaleForWeek, weightChartScaleForMonth, weightChartScaleForYear;

  Observed<List<FastingAverageEntry>> fastingAvgLogsForWeek, fastingAvgLogsForMonth, fastingAvgLogsForYear;
  Observed<double> fastingChartScaleForWeek, fastingChartScaleForMonth, fastingChartScaleForYear;

  ScrollChartFeature::State fastingChartState, eatingChartState;
  Observed<bool> hasOverlappingFasts;

  Observed<std::optional<double>> currentWeightInKg;
  Observed<std::optional<double>> weightTrendInKg;  ///< gained over `trendTimeRange`; negative is a loss
  Observed<std::optional<ClosedDateRange>> trendTimeRange;

  /// Zeros, empty lists and nothing: what an owner starts from.
  static StatsContainer empty();

  /// The same values, which an observer takes for new ones.
  StatsContainer copy() const;

  /// Recomputes everything about fasts: `updateNumbers`, then `updateChartData` and `updateFastingAverages`. Weights
  /// stay as they are. Where the calendar cannot form the ranges, averages and charts stay as they were.
  ///
  /// fasts        in any order; those without `finished` do not count
  /// ongoingFast  counts as a fast that ends now
  ///
  /// Ends the program with a sentence where the hours are more than 64 bits can count.
  void update(std::span<const FastingDataEntry> fasts, const std::optional<FastingDataEntry>& ongoingFast,
              const StreakSettings& streakSettings, TimeRange timeRange);

  /// The totals, streaks and averages, from `totalFasts` to `deepKetosisAverages`; false where the calendar could not
  /// form the ranges and the averages stayed as they were. Leaves the fasts in the order of their starts, and needs no
  /// memory where they are in that order or exactly newest first. Streak days are counted on `streakDays`.
  bool updateNumbers(std::vector<FinishedFastingDataEntry>& completedFasts, const StreakSettings& streakSettings,
                     TimeRange timeRange, Date now, const Calendar& calendar, const Calendar& streakDays,
                     const Calendar& currentCalendar);

  /// Rebuilds both scroll charts, with fresh ids and nothing selected, and `hasOverlappingFasts`.
  ///
  /// A fast that ends before it starts is left out and reported, all of them in one issue: "invalid ordering F: ...".
  void updateChartData(std::span<const FinishedFastingDataEntry> completedFasts, TimeRange timeRange);

  /// Rebuilds the fasting lines and their scales: for each fast, the time fasted in the 90 days up to its end, cut off
  /// and thinned as the line chart of each range shows it. A fast that ends before it starts is left out.
  void updateFastingAverages(std::span<const FinishedFastingDataEntry> completedFasts, Date now);

  /// Writes everything about fasts of another container into this one. In the scroll charts a bar of the same period
  /// keeps its id, so that selection and scroll position survive.
  void updateFastingChart(const StatsContainer& from);

  /// Writes everything about weights of another container into this one.
  void updateWeightChart(const StatsContainer& from);

  /// A container of the weight half: series, averages, scales, current weight and trend. Nothing about fasts.
  ///
  /// samples  ascending by date; the program ends with a sentence where those of the last 90 days are not
  [[nodiscard]] static StatsContainer update(std::span<const BodyWeightSample> samples);

  bool operator==(const StatsContainer&) const = default;
};

template <RecordOf<StatsContainer> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [totalFasts, totalHours, averageFast, longestFast, currentStreak, maxStreak, fastingAverages, eatingAverages,
         anabolicAverages, catabolicAverages, fatBurningAverages, ketosisAverages, deepKetosisAverages,
         weightLogsForWeek, weightLogsForMonth, weightLogsForYear, weightAvgLogsForWeek, weightAvgLogsForMonth,
         weightAvgLogsForYear, weightChartScaleForWeek, weightChartScaleForMonth, weightChartScaleForYear,
         fastingAvgLogsForWeek, fastingAvgLogsForMonth, fastingAvgLogsForYear, fastingChartScaleForWeek,
         fastingChartScaleForMonth, fastingChartScaleForYear, fastingChartState, eatingChartState, hasOverlappingFasts,
         currentWeightInKg, weightTrendInKg, trendTimeRange] = record;
  visit("totalFasts", totalFasts);
  visit("totalHours", totalHours);
  visit("averageFast", averageFast);
  visit("longestFast", longestFast);
  visit("currentStreak", currentStreak);
  visit("maxStreak", maxStreak);
  visit("fastingAverages", fastingAverages);
  visit("eatingAverages", eatingAverages);
  visit("anabolicAverages", anabolicAverages);
  visit("catabolicAverages", catabolicAverages);
  visit("fatBurningAverages", fatBurningAverages);
  visit("ketosisAverages", ketosisAverages);
  visit("deepKetosisAverages", deepKetosisAverages);
  visit("weightLogsForWeek", weightLogsForWeek);
  visit("weightLogsForMonth", weightLogsForMonth);
  visit("weightLogsForYear", weightLogsForYear);
  visit("weightAvgLogsForWeek", weightAvgLogsForWeek);
  visit("weightAvgLogsForMonth", weightAvgLogsForMonth);
  visit("weightAvgLogsForYear", weightAvgLogsForYear);
  visit("weightChartScaleForWeek", weightChartScaleForWeek);
  visit("weightChartScaleForMonth", weightChartScaleForMonth);
  visit("weightChartScaleForYear", weightChartScaleForYear);
  visit("fastingAvgLogsForWeek", fastingAvgLogsForWeek);
  visit("fastingAvgLogsForMonth", fastingAvgLogsForMonth);
  visit("fastingAvgLogsForYear", fastingAvgLogsForYear);
  visit("fastingChartScaleForWeek", fastingChartScaleForWeek);
  visit("fastingChartScaleForMonth", fastingChartScaleForMonth);
  visit("fastingChartScaleForYear", fastingChartScaleForYear);
  visit("fastingChartState", fastingChartState);
  visit("eatingChartState", eatingChartState);
  visit("hasOverlappingFasts", hasOverlappingFasts);
  visit("currentWeightInKg", currentWeightInKg);
  visit("weightTrendInKg", weightTrendInKg);
  visit("trendTimeRange", trendTimeRange);
}

}  // namespace mivo
