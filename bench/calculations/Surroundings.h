// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <memory>

#include "adapters/icu/DateFormatters.h"
#include "adapters/icu/UserLocale.h"
#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/time/TimeZone.h"
#include "adapters/time/ZonedCalendar.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "bench/support/Floor.h"
#include "bench/support/Histories.h"
#include "mivo/platform/Dependencies.h"

namespace bench {

struct FixedClock : mivo::DateGenerator {
  mivo::Date now() const override { return bench::now; }
};

/// What the app runs with, in New York, and a clock that stands still.
inline std::shared_ptr<const mivo::Dependencies> surroundings() {
  using namespace mivo::adapters;
  const auto calendar = ZonedCalendar::gregorian(loadTimeZone("America/New_York").value(), 1);
  auto clients = std::make_shared<mivo::Dependencies>();
  clients->date = std::make_shared<FixedClock>();
  clients->uuid = std::make_shared<LocalUUIDGenerator>();
  clients->calendar = clients->currentCalendar = calendar;
  clients->dateFormatter = dateFormatter(UserLocale::parse("en_US").value(), *calendar);
  return clients;
}

/// Times a rule whose answer has been checked. It runs once more before that, because the memory of the check is given
/// back to the system, and waiting for it anew is not what is measured.
template <class Rule>
void measure(benchmark::State& state, Rule&& rule) {
  benchmark::DoNotOptimize(rule());
  for (auto _ : state) benchmark::DoNotOptimize(rule());
  state.counters["perRecord"] = perRecord(state.range(0));
}

}  // namespace bench
