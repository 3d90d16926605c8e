// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "adapters/icu/Calendars.h"
#include "adapters/icu/LocaleFormatters.h"
#include "adapters/icu/UserLocale.h"
#include "adapters/locale/MessageCatalogue.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "bench/support/Floor.h"
#include "bench/support/Histories.h"
#include "host/pages/FastingPage.h"
#include "host/pages/HistoryPage.h"

namespace bench {
namespace {

using mivo::host::FastRecord;

constexpr std::int64_t tenYears = 3650;

/// What an app composes its pages with, in English.
struct Surroundings {
  mivo::PageClients clients() const { return formatters.pageClients(*calendar, texts, now); }

  mivo::adapters::UserLocale locale = mivo::adapters::UserLocale::parse("en-GB").value();
  std::shared_ptr<const mivo::adapters::ZonedCalendar> calendar =
      mivo::adapters::makeCalendar("gregorian", mivo::adapters::loadTimeZone("Europe/Berlin").value(), 2).value();
  mivo::adapters::LocaleFormatters formatters = mivo::adapters::makeFormatters(locale, *calendar);
  mivo::adapters::MessageCatalogue texts{"en-GB"};
};

mivo::List<FastRecord> historyOf(std::int64_t count) {
  std::vector<FastRecord> records;
  for (const auto& fast : fastRecords(count)) records.push_back({fast, {}});
  return records;
}

/// What the page does each second while a fast runs.
void tick(benchmark::State& state) {
  const Surroundings surroundings;
  const auto clients = surroundings.clients();
  const FastRecord running{mivo::ongoingFast({1, 1}, now - mivo::Duration{20000}, 57600), {}};
  const auto facts = mivo::host::fastingPageFacts(std::vector{running}, 57600, now);
  if (composeFastingPage(facts, clients).elapsed != "5:33:20") return state.SkipWithError("wrong answer, not timed");
  for (auto _ : state) benchmark::DoNotOptimize(composeFastingPage(facts, clients));
}

/// What the history is made of, after a record has changed.
void facts(benchmark::State& state) {
  const auto history = historyOf(state.range(0));
  if (mivo::host::historyFacts(history, now).places.size() != history.size())
    return state.SkipWithError("wrong answer, not timed");
  for (auto _ : state) benchmark::DoNotOptimize(mivo::host::historyFacts(history, now));
  state.counters["perRecord"] = perRecord(state.range(0));
}

/// One row, where it comes into sight.
void row(benchmark::State& state) {
  const Surroundings surroundings;
  const auto clients = surroundings.clients();
  const auto history = mivo::host::historyFacts(historyOf(tenYears), now);
  if (composeHistoryRow(history, 0, clients).spoken.empty()) return state.SkipWithError("wrong answer, not timed");
  std::size_t place = 0;
  for (auto _ : state) benchmark::DoNotOptimize(composeHistoryRow(history, place++ % tenYears, clients));
}

BENCHMARK(floorReadAndAdd)->Name("floor")->Arg(tenYears);
BENCHMARK(tick)->Name("a tick of the fasting page");
BENCHMARK(facts)->Name("the facts of a history")->Arg(tenYears);
BENCHMARK(row)->Name("a row of a history");

}  // namespace
}  // namespace bench
