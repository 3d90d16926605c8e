// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <cmath>
#include <numeric>
#include <vector>

#include "bench/calculations/Surroundings.h"
#include "bench/support/Floor.h"
#include "bench/support/Histories.h"
#include "mivo/calculations/StatsContainer.h"
#include "mivo/calculations/UnionOfFasts.h"

namespace bench {
namespace {

using mivo::StatsContainer;
using mivo::TimeRange;

// All bars together hold the seconds of the union, and the last point of the line those of its last 90 days.
bool chartsAreRight(const StatsContainer& stats, const std::vector<mivo::FinishedFastingDataEntry>& sorted) {
  double inBars = 0, inWindow = 0;
  for (const auto& bar : *stats.fastingChartState.data) inBars += bar.value * stats.fastingChartState.maxTime;
  const auto stretches = mivo::unionOfFasts(sorted);
  const double seconds = mivo::totalDuration(stretches);
  const auto windowStart = stretches.back().end - mivo::Duration{90 * mivo::secondsPerDay};
  for (const auto& stretch : stretches)
    inWindow += std::max(0.0, mivo::secondsBetween(std::max(stretch.start, windowStart), stretch.end));
  return std::abs(inBars - seconds) < 1e-9 * seconds &&
         std::abs(stats.fastingAvgLogsForWeek->back().value - inWindow) < 1e-3;
}

void update(benchmark::State& state, TimeRange range, Order order) {
  const auto clients = surroundings();
  const mivo::DependencyScope scope{clients};
  const auto records = fastRecords(state.range(0), order);
  auto stats = StatsContainer::empty();
  const auto whole = [&] { stats.update(records, std::nullopt, {}, range); };
  whole();
  if (!chartsAreRight(stats, fasts(state.range(0)))) return state.SkipWithError("wrong answer, not timed");
  measure(state, [&] {
    whole();
    return &stats;
  });
}

void chartData(benchmark::State& state, TimeRange range) {
  const auto clients = surroundings();
  const mivo::DependencyScope scope{clients};
  const auto history = fasts(state.range(0));
  auto stats = StatsContainer::empty();
  stats.updateFastingAverages(history, now);
  stats.updateChartData(history, range);
  if (!chartsAreRight(stats, history)) return state.SkipWithError("wrong answer, not timed");
  measure(state, [&] {
    stats.updateChartData(history, range);
    return &stats;
  });
}

void fastingLine(benchmark::State& state) {
  const auto clients = surroundings();
  const mivo::DependencyScope scope{clients};
  const auto history = fasts(state.range(0));
  auto stats = StatsContainer::empty();
  stats.updateChartData(history, TimeRange::week);
  stats.updateFastingAverages(history, now);
  if (!chartsAreRight(stats, history)) return state.SkipWithError("wrong answer, not timed");
  measure(state, [&] {
    stats.updateFastingAverages(history, now);
    return &stats;
  });
}

void sizes(benchmark::internal::Benchmark* rule) { rule->Arg(3'650)->RangeMultiplier(10)->Range(1'000, 1'000'000); }

BENCHMARK(floorReadAndAdd)->Name("floor")->Arg(3'650);
BENCHMARK_CAPTURE(update, week, TimeRange::week, Order::sorted)->Apply(sizes);
BENCHMARK_CAPTURE(update, weekReversed, TimeRange::week, Order::reversed)->Apply(sizes);
BENCHMARK_CAPTURE(update, weekShuffled, TimeRange::week, Order::shuffled)->Apply(sizes);
BENCHMARK_CAPTURE(update, month, TimeRange::month, Order::sorted)->Arg(3'650);
BENCHMARK_CAPTURE(update, year, TimeRange::year, Order::sorted)->Arg(3'650);
BENCHMARK_CAPTURE(chartData, week, TimeRange::week)->Apply(sizes);
BENCHMARK_CAPTURE(chartData, month, TimeRange::month)->Arg(3'650);
BENCHMARK_CAPTURE(chartData, year, TimeRange::year)->Arg(3'650);
BENCHMARK(fastingLine)->Apply(sizes);

}  // namespace
}  // namespace bench
