// SPDX-License-Identifier: MIT
#include "bench/support/Floor.h"

#include <array>
#include <cstddef>

#include "bench/support/Histories.h"

namespace bench {
namespace {

constexpr std::size_t lanes = 4;  // side by side, so that no addition waits for the one before it

struct Sums {
  std::array<double, lanes> starts{}, ends{};
  std::array<std::int64_t, lanes> goals{};
};

Sums readAndAdd(const std::vector<mivo::FinishedFastingDataEntry>& history) {
  Sums sums;
  for (std::size_t first = 0; first + lanes <= history.size(); first += lanes)
    for (std::size_t lane = 0; lane < lanes; ++lane) {
      const auto& fast = history[first + lane];
      sums.starts[lane] += mivo::secondsSince1970(fast.start);
      sums.ends[lane] += mivo::secondsSince1970(fast.end);
      sums.goals[lane] += fast.goalSeconds;
    }
  return sums;
}

}  // namespace

benchmark::Counter perRecord(std::int64_t records) {
  using benchmark::Counter;
  return {static_cast<double>(records), Counter::kIsIterationInvariantRate | Counter::kInvert};
}

void floorReadAndAdd(benchmark::State& state) {
  const auto history = fasts(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(readAndAdd(history));
  state.counters["perRecord"] = perRecord(state.range(0));
}

}  // namespace bench
