// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>

namespace bench {

/// Seconds a record, for `state.counters["perRecord"]`.
benchmark::Counter perRecord(std::int64_t records);

/// Reads and adds start, end and goal of that many fasts (`state.range(0)`) once: nothing that looks at every record
/// can be faster. Register it in each program, so that a rule and its floor are measured in the same run:
///
///     BENCHMARK(bench::floorReadAndAdd)->Name("floor")->RangeMultiplier(10)->Range(1'000, 1'000'000);
void floorReadAndAdd(benchmark::State& state);

}  // namespace bench
