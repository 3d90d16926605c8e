// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <string>

#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "bench/support/Floor.h"
#include "bench/support/Histories.h"
#include "host/dates/DateText.h"
#include "host/history/FastsCsv.h"
#include "host/history/Snapshot.h"
#include "host/history/WeightsCsv.h"

namespace bench {
namespace {

using namespace mivo::host;

const mivo::adapters::LocalUUIDGenerator ids;

std::shared_ptr<const mivo::adapters::TimeZone> berlin() {
  return mivo::adapters::loadTimeZone("Europe/Berlin").value();
}

History history(std::int64_t count) {
  History made;
  for (const auto& fast : fastRecords(count)) made.fasts.push_back({fast, {}});
  return made;
}

void finish(benchmark::State& state, const std::string& text) {
  state.counters["perRecord"] = perRecord(state.range(0));
  state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * static_cast<std::int64_t>(state.iterations()));
}

void readFasts(benchmark::State& state) {
  const auto written = history(state.range(0)).fasts;
  std::string text = "start,end,goal_hours,note\n";
  for (const auto& [fast, note] : written)
    text +=
        rfc3339(fast.start) + ',' + rfc3339(fast.finished->end) + ',' + std::to_string(fast.goalSeconds / 3600) + ",\n";
  const auto zone = berlin();
  const auto read = readFastsCsv(text, "fasts.csv", *zone, ids);
  const bool isRight = read && read->fasts.size() == written.size() &&
                       read->fasts.back().fast.finished->end == written.back().fast.finished->end;
  if (!isRight) return state.SkipWithError("wrong answer, not timed");
  for (auto _ : state) benchmark::DoNotOptimize(readFastsCsv(text, "fasts.csv", *zone, ids));
  finish(state, text);
}

void readWeights(benchmark::State& state) {
  const auto written = weights(state.range(0));
  std::string text = "date,weight_kg\n";
  for (const auto& sample : written) text += rfc3339(sample.date) + ',' + std::to_string(sample.weightInKg) + '\n';
  const auto zone = berlin();
  const auto read = readWeightsCsv(text, "weights.csv", *zone, std::nullopt, ids);
  if (!read || read->size() != written.size() || read->back().date != written.back().date)
    return state.SkipWithError("wrong answer, not timed");
  for (auto _ : state) benchmark::DoNotOptimize(readWeightsCsv(text, "weights.csv", *zone, std::nullopt, ids));
  finish(state, text);
}

void readJson(benchmark::State& state) {
  const History written = history(state.range(0));
  const std::string text = writeSnapshot(written);
  if (readSnapshot(text, "a.json", ids) != written) return state.SkipWithError("wrong answer, not timed");
  for (auto _ : state) benchmark::DoNotOptimize(readSnapshot(text, "a.json", ids));
  finish(state, text);
}

void writeJson(benchmark::State& state) {
  const History written = history(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(writeSnapshot(written));
  finish(state, writeSnapshot(written));
}

BENCHMARK(floorReadAndAdd)->Name("floor")->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(readFasts)->Name("csvOfFasts")->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(readWeights)->Name("csvOfWeights")->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(readJson)->Name("snapshot")->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK(writeJson)->Name("writtenSnapshot")->RangeMultiplier(10)->Range(1'000, 1'000'000);

}  // namespace
}  // namespace bench
