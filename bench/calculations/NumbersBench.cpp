// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "bench/calculations/Surroundings.h"
#include "bench/support/Floor.h"
#include "bench/support/Histories.h"
#include "mivo/calculations/CompletedFasts.h"
#include "mivo/calculations/RangeStarts.h"
#include "mivo/calculations/StatsContainer.h"
#include "mivo/calculations/SummaryTotals.h"
#include "mivo/calculations/UnionOfFasts.h"
#include "mivo/calculations/ZoneAverages.h"
#include "mivo/streaks/FastsByStart.h"
#include "mivo/streaks/Streaks.h"

namespace bench {
namespace {

using mivo::Date;
using mivo::TimeRange;
using Fast = mivo::FinishedFastingDataEntry;

constexpr const char* wrongAnswer = "wrong answer, not timed";
constexpr mivo::StreakSettings settings;

std::vector<Fast> sortedFasts(std::int64_t count) { return fasts(count, Order::sorted); }

// A streak is made for every run, and the calendar asked for every deadline.
mivo::StreakLengths obviousStreaks(std::vector<Fast> history, const mivo::Calendar& calendar) {
  std::erase_if(history, [](const Fast& fast) { return fast.duration() < static_cast<double>(fast.goalSeconds); });
  std::ranges::stable_sort(history, std::less{}, &Fast::start);
  mivo::StreakLengths lengths;
  Date start = history.front().start;
  const auto close = [&](Date end) {
    lengths.current = calendar.calendarDatesBetween(start, end).value();
    lengths.max = std::max(lengths.max, lengths.current);
  };
  for (std::size_t i = 0; i + 1 < history.size(); ++i) {
    const Date deadline =
        calendar.adding(mivo::CalendarComponent::hour, settings.maxBreakHours, history[i].end).value();
    if (history[i + 1].start < deadline) {
      if (history[i + 1].end != history.back().end) continue;
      close(history[i + 1].end);
      return lengths;
    }
    close(history[i].end);
    start = history[i + 1].start;
  }
  return lengths;
}

double obviousUnionSeconds(const std::vector<Fast>& sorted) {
  double seconds = 0;
  Date furthest = sorted.front().start;
  for (const Fast& fast : sorted) {
    seconds += std::max(0.0, mivo::secondsBetween(std::max(fast.start, furthest), fast.end));
    furthest = std::max(furthest, fast.end);
  }
  return seconds;
}

// The copy out of the host's records, totals, streaks and averages, as `update` makes them before the charts.
void numbers(benchmark::State& state, Order order) {
  const auto clients = surroundings();
  const auto& calendar = *clients->calendar;
  const auto records = fastRecords(state.range(0), order);
  auto stats = mivo::StatsContainer::empty();
  const auto update = [&] {
    auto completed = mivo::completedFasts(records, std::nullopt, now);
    return stats.updateNumbers(completed, settings, TimeRange::week, now, calendar, calendar, calendar);
  };
  const auto history = fasts(state.range(0), order);
  const bool isRight =
      update() && stats.totalFasts == state.range(0) &&
      stats.currentStreak == obviousStreaks(history, calendar).current &&
      stats.maxStreak == obviousStreaks(history, calendar).max &&
      std::abs(stats.averageFast * static_cast<double>(state.range(0)) - mivo::totalDuration(history)) < 1e-3;
  if (!isRight) return state.SkipWithError(wrongAnswer);
  measure(state, [&] { return update(); });
}

void copyOfRecords(benchmark::State& state) {
  const auto records = fastRecords(state.range(0));
  if (mivo::completedFasts(records, std::nullopt, now) != sortedFasts(state.range(0)))
    return state.SkipWithError(wrongAnswer);
  measure(state, [&] { return mivo::completedFasts(records, std::nullopt, now); });
}

void totals(benchmark::State& state) {
  const auto history = sortedFasts(state.range(0));
  if (mivo::summaryTotals(history).totalFasts != state.range(0)) return state.SkipWithError(wrongAnswer);
  measure(state, [&] { return mivo::summaryTotals(history); });
}

void sort(benchmark::State& state, Order order) {
  const auto history = fasts(state.range(0), order);
  const auto ordered = [&] { return mivo::FastsByStart{history}.list().size(); };
  if (!std::ranges::equal(mivo::FastsByStart{history}.list(), sortedFasts(state.range(0))))
    return state.SkipWithError(wrongAnswer);
  measure(state, [&] { return ordered(); });
}

void streaks(benchmark::State& state, Order order) {
  const auto clients = surroundings();
  const auto& calendar = *clients->calendar;
  const auto history = fasts(state.range(0), order);
  const auto lengths = [&] { return mivo::streaks(mivo::FastsByStart{history}, settings, calendar, calendar); };
  if (lengths() != obviousStreaks(history, calendar)) return state.SkipWithError(wrongAnswer);
  measure(state, [&] { return lengths(); });
}

void averages(benchmark::State& state, TimeRange range) {
  const auto clients = surroundings();
  const auto history = sortedFasts(state.range(0));
  const auto starts = mivo::rangeStarts(range, *clients->calendar, now).value();
  const Date endOfToday = clients->calendar->endOfDay(now).value();
  const auto zones = [&] { return mivo::zoneAverages(history, starts, endOfToday); };
  double sumOfZones = 0;
  for (std::size_t zone = 2; zone < 7; ++zone) sumOfZones += zones().zones[zone].lastTimeRange;
  const double fasting = zones()[mivo::LegacyFastingZone::fasting].lastTimeRange;
  if (!(fasting > 0 && std::abs(sumOfZones - fasting) < 1e-6)) return state.SkipWithError(wrongAnswer);
  measure(state, [&] { return zones(); });
}

void stretches(benchmark::State& state) {
  const auto history = sortedFasts(state.range(0));
  if (mivo::totalDuration(mivo::unionOfFasts(history)) != obviousUnionSeconds(history))
    return state.SkipWithError(wrongAnswer);
  measure(state, [&] { return mivo::unionOfFasts(history); });
}

void sizes(benchmark::internal::Benchmark* rule) { rule->RangeMultiplier(10)->Range(1'000, 1'000'000); }

BENCHMARK(floorReadAndAdd)->Name("floor")->Apply(sizes);
BENCHMARK_CAPTURE(numbers, sorted, Order::sorted)->Apply(sizes);
BENCHMARK_CAPTURE(numbers, reversed, Order::reversed)->Apply(sizes);
BENCHMARK_CAPTURE(numbers, shuffled, Order::shuffled)->Apply(sizes);
BENCHMARK(copyOfRecords)->Apply(sizes);
BENCHMARK(totals)->Apply(sizes);
BENCHMARK_CAPTURE(sort, reversed, Order::reversed)->Apply(sizes);
BENCHMARK_CAPTURE(sort, shuffled, Order::shuffled)->Apply(sizes);
BENCHMARK_CAPTURE(streaks, sorted, Order::sorted)->Apply(sizes);
BENCHMARK_CAPTURE(streaks, reversed, Order::reversed)->Apply(sizes);
BENCHMARK_CAPTURE(streaks, shuffled, Order::shuffled)->Apply(sizes);
BENCHMARK_CAPTURE(averages, week, TimeRange::week)->Apply(sizes);
BENCHMARK_CAPTURE(averages, year, TimeRange::year)->Apply(sizes);
BENCHMARK(stretches)->Name("union")->Apply(sizes);

}  // namespace
}  // namespace bench
