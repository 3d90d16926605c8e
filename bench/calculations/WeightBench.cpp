// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "bench/calculations/Surroundings.h"
#include "bench/support/Floor.h"
#include "bench/support/Histories.h"
#include "mivo/calculations/StatsContainer.h"
#include "mivo/calculations/WeightSeries.h"

namespace bench {
namespace {

using mivo::StatsContainer;
using Samples = std::vector<mivo::BodyWeightSample>;

void floorOfWeights(benchmark::State& state) {
  const auto samples = weights(state.range(0));
  for (auto _ : state) {
    double sum = 0;
    for (const auto& sample : samples) sum += mivo::secondsSince1970(sample.date) + sample.weightInKg;
    benchmark::DoNotOptimize(sum);
  }
  state.counters["perRecord"] = perRecord(state.range(0));
}

// The average of the last sample's week, added up afresh.
double lastAverage(const Samples& samples) {
  double sum = 0, count = 0;
  for (const auto& sample : samples)
    if (mivo::secondsBetween(sample.date, samples.back().date) <= 7 * mivo::secondsPerDay) {
      sum += sample.weightInKg;
      count += 1;
    }
  return sum / count;
}

void weightUpdate(benchmark::State& state) {
  const auto clients = surroundings();
  const mivo::DependencyScope scope{clients};
  const auto samples = weights(state.range(0));
  const auto stats = StatsContainer::update(samples);
  if (std::abs(stats.weightAvgLogsForWeek->back().value - lastAverage(samples)) > 1e-9)
    return state.SkipWithError("wrong answer, not timed");
  measure(state, [&] { return StatsContainer::update(samples); });
}

void weeklyAverages(benchmark::State& state) {
  const auto clients = surroundings();
  const auto samples = weights(state.range(0));
  if (std::abs(mivo::weeklyAverages(samples, *clients->uuid).back().value - lastAverage(samples)) > 1e-9)
    return state.SkipWithError("wrong answer, not timed");
  measure(state, [&] { return mivo::weeklyAverages(samples, *clients->uuid); });
}

// A line that loses exactly one kilogram from the first sample to the last.
void trend(benchmark::State& state) {
  auto samples = weights(state.range(0));
  const mivo::ClosedDateRange range{samples.front().date, samples.back().date};
  for (auto& sample : samples)
    sample.weightInKg = 80 - mivo::secondsBetween(range.lowerBound, sample.date) / range.duration();
  if (std::abs(mivo::weightTrendInKg(samples, range).value_or(0) + 1) > 1e-9)
    return state.SkipWithError("wrong answer, not timed");
  measure(state, [&] { return mivo::weightTrendInKg(samples, range); });
}

void sizes(benchmark::internal::Benchmark* rule) { rule->Arg(3'650)->RangeMultiplier(10)->Range(1'000, 1'000'000); }

BENCHMARK(floorOfWeights)->Name("floor")->Arg(90)->Apply(sizes);
BENCHMARK(weightUpdate)->Apply(sizes);
BENCHMARK(weeklyAverages)->Apply(sizes);
BENCHMARK(trend)->Arg(90)->Apply(sizes);

}  // namespace
}  // namespace bench
