// SPDX-License-Identifier: MIT
#include "bench/support/Floor.h"

#include "bench/support/Histories.h"

namespace bench {

benchmark::Counter perRecord(std::int64_t records) {
  using benchmark::Counter;
  return {static_cast<double>(records), Counter::kIsIterationInvariantRate | Counter::kInvert};
}

void floorReadAndAdd(benchmark::State& state) {
  const auto history = fasts(state.range(0));
  for (auto _ : state) {
    double sum = 0;
    for (const auto& fast : history) sum += mivo::secondsBetween(fast.start, fast.end);
    benchmark::DoNotOptimize(sum);
  }
  state.counters["perRecord"] = perRecord(state.range(0));
}

}  // namespace bench
