// SPDX-License-Identifier: MIT
#include "mivo/calculations/StatsContainer.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "mivo/calculations/CompletedFasts.h"
#include "mivo/calculations/DateSeries.h"
#include "mivo/calculations/DayBars.h"
#include "mivo/calculations/FastingAverages.h"
#include "mivo/calculations/InvalidOrdering.h"
#include "mivo/calculations/RangeStarts.h"
#include "mivo/calculations/SummaryTotals.h"
#include "mivo/calculations/UnionOfFasts.h"
#include "mivo/calculations/WeightSeries.h"
#include "mivo/calculations/ZoneAverages.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/streaks/FastsByStart.h"
#include "mivo/streaks/Streak.h"
#include "mivo/streaks/Streaks.h"

namespace mivo {
namespace {

using Fast = FinishedFastingDataEntry;
using Fasts = std::span<const Fast>;

constexpr Duration trendLookBack{90 * secondsPerDay};

bool endsBeforeItStarts(const Fast& fast) { return fast.end < fast.start; }

// What the charts show.
struct ChartedFasts {
  explicit ChartedFasts(Fasts fasts)
      : backward{these(fasts, endsBeforeItStarts)},
        forward{backward.empty() ? std::vector<Fast>{} : these(fasts, std::not_fn(endsBeforeItStarts))},
        byStart{backward.empty() ? fasts : forward},
        stretches{unionOfFasts(byStart.list())} {}

  std::vector<Fast> backward;
  std::vector<Fast> forward;  // empty where all are, so that none need be copied
  FastsByStart byStart;
  std::vector<Fast> stretches;

 private:
  static std::vector<Fast> these(Fasts fasts, const auto& belongs) {
    std::vector<Fast> kept;
    std::ranges::copy_if(fasts, std::back_inserter(kept), belongs);
    return kept;
  }
};

// At least the fasts that end at a date or later: a fast that began longer before it than the longest one lasts does
// not.
Fasts reaching(Date date, const FastsByStart& fasts, double longest) {
  constexpr double lostToRounding = 1;
  const Date earliest = date - Duration{longest + lostToRounding};
  const Fasts all = fasts.list();
  return {std::ranges::lower_bound(all, earliest, {}, &Fast::start), all.end()};
}

void writeChartData(StatsContainer& stats, const ChartedFasts& fasts, TimeRange range, Date now,
                    const Calendar& calendar) {
  if (!fasts.backward.empty()) reportIssue(invalidOrdering(fasts.backward, range, calendar));
  auto bars = dayBars(fasts.stretches, range, now, calendar, *dependency(&Dependencies::dateFormatter),
                      *dependency(&Dependencies::uuid));
  stats.fastingChartState = std::move(bars.fasting);
  stats.eatingChartState = std::move(bars.eating);
  stats.hasOverlappingFasts = hasOverlappingFasts(fasts.byStart.list());
}

void writeFastingLine(StatsContainer& stats, const ChartedFasts& fasts, Date now) {
  const auto entries = fastingAverageSeries(fasts.byStart.list(), fasts.stretches, cutOff(TimeRange::year, now),
                                            *dependency(&Dependencies::uuid));
  stats.fastingAvgLogsForWeek = seriesOf<FastingAverageEntry>(TimeRange::week, entries, now);
  stats.fastingAvgLogsForMonth = seriesOf<FastingAverageEntry>(TimeRange::month, entries, now);
  stats.fastingAvgLogsForYear = seriesOf<FastingAverageEntry>(TimeRange::year, entries, now);
  stats.fastingChartScaleForWeek = chartScale(stats.fastingAvgLogsForWeek.value(), emptyFastingChartScale);
  stats.fastingChartScaleForMonth = chartScale(stats.fastingAvgLogsForMonth.value(), emptyFastingChartScale);
  stats.fastingChartScaleForYear = chartScale(stats.fastingAvgLogsForYear.value(), emptyFastingChartScale);
}

}  // namespace

StatsContainer StatsContainer::empty() {
  const ScrollChartFeature::State noBars{
      .chartTimeUnit = ChartTimeUnit::day, .data = IdentifiedArray<ChartDataEntry>{}, .maxTime = 0.0, .now = Date{}};
  constexpr AverageThisLastTimeRange none{};
  return {.totalFasts = 0,
          .totalHours = 0,
          .averageFast = 0.0,
          .longestFast = 0.0,
          .currentStreak = 0,
          .maxStreak = 0,
          .fastingAverages = none,
          .eatingAverages = none,
          .anabolicAverages = none,
          .catabolicAverages = none,
          .fatBurningAverages = none,
          .ketosisAverages = none,
          .deepKetosisAverages = none,
          .weightLogsForWeek = List<BodyWeightSample>{},
          .weightLogsForMonth = List<BodyWeightSample>{},
          .weightLogsForYear = List<BodyWeightSample>{},
          .weightAvgLogsForWeek = List<WeightAverageEntry>{},
          .weightAvgLogsForMonth = List<WeightAverageEntry>{},
          .weightAvgLogsForYear = List<WeightAverageEntry>{},
          .weightChartScaleForWeek = 0.0,
          .weightChartScaleForMonth = 0.0,
          .weightChartScaleForYear = 0.0,
          .fastingAvgLogsForWeek = List<FastingAverageEntry>{},
          .fastingAvgLogsForMonth = List<FastingAverageEntry>{},
          .fastingAvgLogsForYear = List<FastingAverageEntry>{},
          .fastingChartScaleForWeek = 0.0,
          .fastingChartScaleForMonth = 0.0,
          .fastingChartScaleForYear = 0.0,
          .fastingChartState = noBars,
          .eatingChartState = noBars,
          .hasOverlappingFasts = false,
          .currentWeightInKg = std::optional<double>{},
          .weightTrendInKg = std::optional<double>{},
          .trendTimeRange = std::optional<ClosedDateRange>{}};
}

StatsContainer StatsContainer::copy() const {
  StatsContainer copied = *this;
  restamp(copied);
  return copied;
}

void StatsContainer::update(std::span<const FastingDataEntry> fasts, const std::optional<FastingDataEntry>& ongoingFast,
                            const StreakSettings& streakSettings, TimeRange timeRange) {
  const Date now = dependency(&Dependencies::date)->now();
  const auto& calendar = dependency(&Dependencies::calendar);
  const auto& currentCalendar = dependency(&Dependencies::currentCalendar);
  const auto streakDays = streakCalendar(calendar, currentCalendar);

  auto completed = completedFasts(fasts, ongoingFast, now);
  if (!updateNumbers(completed, streakSettings, timeRange, now, *calendar, *streakDays, *currentCalendar)) return;
  const ChartedFasts charted{completed};
  writeChartData(*this, charted, timeRange, now, *calendar);
  writeFastingLine(*this, charted, now);
}

bool StatsContainer::updateNumbers(std::vector<Fast>& completed, const StreakSettings& streakSettings,
                                   TimeRange timeRange, Date now, const Calendar& calendar, const Calendar& streakDays,
                                   const Calendar& currentCalendar) {
  const SummaryTotals totals = summaryTotals(completed);
  totalFasts = totals.totalFasts;
  totalHours = totals.totalHours;
  averageFast = totals.averageFast;
  longestFast = totals.longestFast;

  const auto byStart = FastsByStart::sorting(completed);
  const StreakLengths lengths = streaks(byStart, streakSettings, streakDays, currentCalendar);
  currentStreak = lengths.current;
  maxStreak = lengths.max;

  const auto starts = rangeStarts(timeRange, calendar, now);
  if (!starts) return false;
  const auto averages =
      zoneAverages(reaching(starts->lastStart, byStart, totals.longestFast), *starts, endOfToday(calendar, now));
  fastingAverages = averages[LegacyFastingZone::fasting];
  eatingAverages = averages[LegacyFastingZone::eating];
  anabolicAverages = averages[LegacyFastingZone::anabolic];
  catabolicAverages = averages[LegacyFastingZone::catabolic];
  fatBurningAverages = averages[LegacyFastingZone::fatBurning];
  ketosisAverages = averages[LegacyFastingZone::ketosis];
  deepKetosisAverages = averages[LegacyFastingZone::deepKetosis];
  return true;
}

void StatsContainer::updateChartData(Fasts completed, TimeRange timeRange) {
  const Date now = dependency(&Dependencies::date)->now();
  writeChartData(*this, ChartedFasts{completed}, timeRange, now, *dependency(&Dependencies::calendar));
}

void StatsContainer::updateFastingAverages(Fasts completed, Date now) {
  writeFastingLine(*this, ChartedFasts{completed}, now);
}

void StatsContainer::updateFastingChart(const StatsContainer& from) {
  totalFasts = from.totalFasts.value();
  totalHours = from.totalHours.value();
  averageFast = from.averageFast.value();
  longestFast = from.longestFast.value();
  currentStreak = from.currentStreak.value();
  maxStreak = from.maxStreak.value();
  fastingAverages = from.fastingAverages.value();
  eatingAverages = from.eatingAverages.value();
  anabolicAverages = from.anabolicAverages.value();
  catabolicAverages = from.catabolicAverages.value();
  fatBurningAverages = from.fatBurningAverages.value();
  ketosisAverages = from.ketosisAverages.value();
  deepKetosisAverages = from.deepKetosisAverages.value();
  fastingAvgLogsForWeek = from.fastingAvgLogsForWeek.value();
  fastingAvgLogsForMonth = from.fastingAvgLogsForMonth.value();
  fastingAvgLogsForYear = from.fastingAvgLogsForYear.value();
  fastingChartScaleForWeek = from.fastingChartScaleForWeek.value();
  fastingChartScaleForMonth = from.fastingChartScaleForMonth.value();
  fastingChartScaleForYear = from.fastingChartScaleForYear.value();
  updateScrollChart(fastingChartState, from.fastingChartState);
  updateScrollChart(eatingChartState, from.eatingChartState);
  hasOverlappingFasts = from.hasOverlappingFasts.value();
}

void StatsContainer::updateWeightChart(const StatsContainer& from) {
  weightLogsForWeek = from.weightLogsForWeek.value();
  weightLogsForMonth = from.weightLogsForMonth.value();
  weightLogsForYear = from.weightLogsForYear.value();
  weightAvgLogsForWeek = from.weightAvgLogsForWeek.value();
  weightAvgLogsForMonth = from.weightAvgLogsForMonth.value();
  weightAvgLogsForYear = from.weightAvgLogsForYear.value();
  weightChartScaleForWeek = from.weightChartScaleForWeek.value();
  weightChartScaleForMonth = from.weightChartScaleForMonth.value();
  weightChartScaleForYear = from.weightChartScaleForYear.value();
  currentWeightInKg = from.currentWeightInKg.value();
  weightTrendInKg = from.weightTrendInKg.value();
  trendTimeRange = from.trendTimeRange.value();
}

StatsContainer StatsContainer::update(std::span<const BodyWeightSample> samples) {
  StatsContainer stats = empty();
  const Date now = dependency(&Dependencies::date)->now();
  // Weights of long ago are in no series and no average.
  const auto recent = since(cutOff(TimeRange::year, now) - averagedSpan, samples);
  const auto averages = weeklyAverages(recent, *dependency(&Dependencies::uuid));
  stats.weightLogsForWeek = seriesOf(TimeRange::week, samples, now);
  stats.weightLogsForMonth = seriesOf(TimeRange::month, samples, now);
  stats.weightLogsForYear = seriesOf(TimeRange::year, samples, now);
  stats.weightAvgLogsForWeek = seriesOf<WeightAverageEntry>(TimeRange::week, averages, now);
  stats.weightAvgLogsForMonth = seriesOf<WeightAverageEntry>(TimeRange::month, averages, now);
  stats.weightAvgLogsForYear = seriesOf<WeightAverageEntry>(TimeRange::year, averages, now);
  stats.weightChartScaleForWeek = chartScale(stats.weightAvgLogsForWeek.value(), emptyWeightChartScale);
  stats.weightChartScaleForMonth = chartScale(stats.weightAvgLogsForMonth.value(), emptyWeightChartScale);
  stats.weightChartScaleForYear = chartScale(stats.weightAvgLogsForYear.value(), emptyWeightChartScale);
  if (!samples.empty()) stats.currentWeightInKg = samples.back().weightInKg;

  const auto trendSamples = since(now - trendLookBack, samples);
  stats.trendTimeRange = mivo::trendTimeRange(trendSamples);
  if (const auto& range = stats.trendTimeRange.value())
    stats.weightTrendInKg = mivo::weightTrendInKg(trendSamples, *range);
  return stats;
}

}  // namespace mivo
