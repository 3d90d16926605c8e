// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

#include "bench/support/Floor.h"
#include "bench/support/Histories.h"
#include "mivo/charts/BodyWeightInnerChartSelectionModel.h"
#include "mivo/charts/DatedSeries.h"
#include "mivo/charts/VisibleWeights.h"
#include "mivo/platform/Dependencies.h"

namespace bench {
namespace {

using mivo::Date;
using mivo::DateInterval;
using mivo::Duration;
using Samples = mivo::List<mivo::BodyWeightSample>;

constexpr double visibleDays = 180;

/// Where a finger goes: anywhere along the series, so that no question finds the memory of the last one.
std::vector<Date> touches(const Samples& samples) {
  std::mt19937_64 random{7};
  std::uniform_real_distribution<double> seconds{mivo::secondsSince1970(samples.front().date),
                                                 mivo::secondsSince1970(samples.back().date)};
  std::vector<Date> dates(4096);
  for (Date& date : dates) date = mivo::dateSince1970(seconds(random));
  return dates;
}

DateInterval visibleFrom(Date leading) { return {leading, leading + Duration{visibleDays * mivo::secondsPerDay}}; }

const mivo::BodyWeightSample* nearestByLooking(const Samples& samples, Date date) {
  return std::ranges::min_element(
      samples, {}, [date](const auto& sample) { return std::abs(mivo::secondsBetween(sample.date, date)); });
}

double averageByLooking(const Samples& samples, DateInterval visible) {
  double sum = 0, count = 0;
  for (const auto& sample : samples)
    if (sample.date >= visible.start && sample.date <= visible.end) sum += sample.weightInKg, ++count;
  return count == 0 ? 0 : sum / count;
}

void nearestPoint(benchmark::State& state) {
  const Samples samples{weights(state.range(0))};
  const mivo::DatedSeries series{samples};
  const auto dates = touches(samples);
  for (std::size_t index = 0; index < 50; ++index)
    if (series.nearest(dates[index]) != nearestByLooking(samples, dates[index]))
      return state.SkipWithError("wrong answer, not timed");
  std::size_t index = 0;
  for (auto _ : state) benchmark::DoNotOptimize(series.nearest(dates[index++ % dates.size()]));
}

void visibleAverage(benchmark::State& state) {
  const Samples samples{weights(state.range(0))};
  const mivo::VisibleWeights shown{samples};
  const auto dates = touches(samples);
  for (std::size_t index = 0; index < 50; ++index) {
    const DateInterval visible = visibleFrom(dates[index]);
    const double expected = averageByLooking(samples, visible);
    if (std::abs(shown.averageInKg(visible) - expected) > 1e-12 * expected)
      return state.SkipWithError("wrong answer, not timed");
  }
  std::size_t index = 0;
  for (auto _ : state) benchmark::DoNotOptimize(shown.averageInKg(visibleFrom(dates[index++ % dates.size()])));
}

struct DroppingQueue : mivo::MainQueue {
  void post(std::function<void()>) const override {}
  void postAfter(Duration, std::function<void()> work) const override { benchmark::DoNotOptimize(work); }
};

/// A finger that moves: the selection changes, and its announcement is put off.
void touch(benchmark::State& state) {
  mivo::Dependencies clients;
  clients.mainQueue = std::make_shared<DroppingQueue>();
  const mivo::DependencyScope scope{std::make_shared<const mivo::Dependencies>(clients)};
  const Samples samples{weights(state.range(0))};
  mivo::BodyWeightInnerChartSelectionModel model{samples, mivo::TimeRange::year};
  const auto dates = touches(samples);
  std::size_t index = 0;
  for (auto _ : state) model.didUpdateRawSelectedDate(dates[index++ % dates.size()]);
}

/// Once a series, when its chart is made.
void preparing(benchmark::State& state) {
  const Samples samples{weights(state.range(0))};
  for (auto _ : state) benchmark::DoNotOptimize(mivo::VisibleWeights{samples});
  state.counters["perRecord"] = perRecord(state.range(0));
}

BENCHMARK(floorReadAndAdd)->Name("floor")->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(nearestPoint)->Name("nearest point")->RangeMultiplier(10)->Range(1'000, 1'000'000);  // goal: 1 us at 1e5
BENCHMARK(visibleAverage)->Name("visible average")->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(touch)->Name("touch on a line chart")->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(preparing)->Name("preparing a line chart")->RangeMultiplier(10)->Range(1'000, 1'000'000);

}  // namespace
}  // namespace bench
