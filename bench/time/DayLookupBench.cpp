// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

#include "adapters/icu/Calendars.h"
#include "adapters/time/TimeZone.h"
#include "adapters/time/ZonedCalendar.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "bench/support/Floor.h"
#include "bench/support/Histories.h"

namespace bench {
namespace {

using mivo::adapters::TimeZone;
using mivo::adapters::ZonedCalendar;

std::shared_ptr<const TimeZone> berlin() { return loadTimeZone("Europe/Berlin").value(); }

std::int64_t seconds(mivo::Date date) { return mivo::adapters::wholeSecond(date).time_since_epoch().count(); }

// The local day of every fast's start, as the C library knows it: checked before anything is timed.
bool agreesWithTheCLibrary(const TimeZone& zone, const std::vector<mivo::FinishedFastingDataEntry>& history) {
  setenv("TZ", ":Europe/Berlin", 1);
  tzset();
  return std::ranges::all_of(history, [&zone](const auto& fast) {
    const std::time_t time = seconds(fast.start);
    std::tm fields{};
    localtime_r(&time, &fields);
    const std::chrono::local_days expected{std::chrono::year{fields.tm_year + 1900} / (fields.tm_mon + 1) /
                                           fields.tm_mday};
    return zone.day(mivo::adapters::wholeSecond(fast.start)) == expected;
  });
}

void localDay(benchmark::State& state, Order order) {
  const auto history = fasts(state.range(0), order);
  const auto zone = berlin();
  if (!agreesWithTheCLibrary(*zone, history)) return state.SkipWithError("wrong answer, not timed");
  for (auto _ : state) {
    std::int64_t sum = 0;
    for (const auto& fast : history)
      sum += zone->day(mivo::adapters::wholeSecond(fast.start)).time_since_epoch().count();
    benchmark::DoNotOptimize(sum);
  }
  state.counters["perRecord"] = perRecord(state.range(0));
}

void startOfDay(benchmark::State& state) {
  const auto history = fasts(state.range(0));
  const std::shared_ptr<const mivo::Calendar> calendar = ZonedCalendar::gregorian(berlin(), 2);
  for (auto _ : state) {
    double sum = 0;
    for (const auto& fast : history) sum += mivo::secondsSince1970(*calendar->startOfDay(fast.start));
    benchmark::DoNotOptimize(sum);
  }
  state.counters["perRecord"] = perRecord(state.range(0));
}

void cLibraryDay(benchmark::State& state) {
  const auto history = fasts(state.range(0));
  setenv("TZ", ":Europe/Berlin", 1);
  tzset();
  for (auto _ : state) {
    std::int64_t sum = 0;
    for (const auto& fast : history) {
      const std::time_t time = seconds(fast.start);
      std::tm fields{};
      localtime_r(&time, &fields);
      sum += fields.tm_yday;
    }
    benchmark::DoNotOptimize(sum);
  }
  state.counters["perRecord"] = perRecord(state.range(0));
}

// The periods of a chart of months, walked from the first to the last, in a calendar that has just been opened.
void monthsOfTenYears(benchmark::State& state, const char* identifier) {
  const auto zone = berlin();
  std::int64_t months = 0;
  for (auto _ : state) {
    const auto calendar = mivo::adapters::makeCalendar(identifier, zone, 2).value();
    months = 0;
    for (mivo::Date at = now - mivo::Duration{3650 * mivo::secondsPerDay}; at < now; at = *calendar->endOfMonth(at)) {
      benchmark::DoNotOptimize(calendar->startOfMonth(at));
      ++months;
    }
  }
  state.counters["perRecord"] = perRecord(months);
}

BENCHMARK(floorReadAndAdd)->Name("floor")->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK_CAPTURE(localDay, sorted, Order::sorted)->RangeMultiplier(10)->Range(1'000, 1'000'000);
BENCHMARK_CAPTURE(localDay, reversed, Order::reversed)->Arg(1'000'000);
BENCHMARK_CAPTURE(localDay, shuffled, Order::shuffled)->Arg(1'000'000);
BENCHMARK(startOfDay)->Arg(1'000'000);
BENCHMARK(cLibraryDay)->Arg(1'000'000);
BENCHMARK_CAPTURE(monthsOfTenYears, gregorian, "gregorian");
BENCHMARK_CAPTURE(monthsOfTenYears, hebrew, "hebrew");
BENCHMARK_CAPTURE(monthsOfTenYears, umalqura, "islamic-umalqura");
BENCHMARK_CAPTURE(monthsOfTenYears, chinese, "chinese");

}  // namespace
}  // namespace bench
