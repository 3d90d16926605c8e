// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <deque>
#include <map>

#include "adapters/icu/Calendars.h"
#include "adapters/icu/LocaleFormatters.h"
#include "adapters/icu/UserLocale.h"
#include "adapters/locale/MessageCatalogue.h"
#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "bench/support/Floor.h"
#include "bench/support/Histories.h"
#include "host/frontend/ActionJson.h"
#include "host/frontend/Frontend.h"

namespace bench {
namespace {

constexpr std::int64_t tenYears = 3650;

struct Clock final : mivo::DateGenerator {
  mivo::Date now() const override { return bench::now; }
};

struct NoHealth final : mivo::HealthKitClient {
  void shouldRequestAuthorization(std::function<void(bool)> completion) const override { completion(false); }
  void requestAuthorization(std::function<void()> completion) const override { completion(); }
};

struct Defaults final : mivo::UserDefaults {
  std::optional<Value> value(std::string_view) const override { return std::nullopt; }
  void setValue(std::string_view, std::optional<Value>) const override {}
};

/// Runs at once.
struct Queue final : mivo::MainQueue, mivo::TaskRunner {
  void post(std::function<void()> work) const override { work(); }
  void postAfter(mivo::Duration, std::function<void()>) const override {}
  void run(std::function<void()> work) const override { work(); }
};

/// Keeps nothing: a disk is not what is measured.
struct Records final : mivo::host::HistoryClient {
  mivo::host::History load() const override {
    mivo::host::History all;
    for (const auto& fast : fastRecords(tenYears)) all.fasts.push_back({fast, {}});
    all.weights = weights(tenYears);
    return all;
  }
  void apply(const mivo::host::HistoryChange&) const override {}
  std::int64_t version() const override { return 0; }
  std::optional<mivo::host::FileState> lastSynced() const override { return std::nullopt; }
  std::int64_t sync(const mivo::host::WeightSync&) const override { return 0; }
};

/// Ten years, in English.
struct Pages {
  Pages() {
    auto own = std::make_shared<mivo::Dependencies>();
    const auto queue = std::make_shared<Queue>();
    formatters.fill(*own);
    own->date = std::make_shared<Clock>();
    own->uuid = std::make_shared<mivo::adapters::LocalUUIDGenerator>();
    own->calendar = own->currentCalendar = calendar;
    own->texts = std::make_shared<mivo::adapters::MessageCatalogue>("en-GB");
    own->userDefaults = own->appGroupUserDefaults = std::make_shared<Defaults>();
    own->healthKitClient = std::make_shared<NoHealth>();
    own->mainQueue = queue;
    own->taskRunner = queue;
    const auto tips = std::make_shared<mivo::host::Tips>(own->userDefaults);
    own->tips = tips;
    frontend.emplace(mivo::host::FrontendServices{
        .dependencies = own, .history = std::make_shared<Records>(), .tips = tips, .calendar = calendar});
  }

  std::shared_ptr<mivo::host::WeekCalendar> calendar = std::make_shared<mivo::host::WeekCalendar>(
      *mivo::adapters::makeCalendar("gregorian", mivo::adapters::loadTimeZone("Europe/Berlin").value(), 2).value());
  mivo::adapters::LocaleFormatters formatters =
      mivo::adapters::makeFormatters(mivo::adapters::UserLocale::parse("en-GB").value(), calendar->present());
  std::optional<mivo::host::Frontend> frontend;
};

/// All that the range writes: the figures of ten years, and the page that says them.
void anotherRange(benchmark::State& state) {
  Pages pages;
  const auto page = pages.frontend->page("statistics");
  if (!page || page->size() < 1000) return state.SkipWithError("wrong answer, not timed");
  int place = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(pages.frontend->send(R"({"didChooseTimeRange": )" + std::to_string(++place % 3) + '}'));
  state.counters["bytes"] = static_cast<double>(page->size());
}

/// The page of statistics alone: dismissing a tip changes no figure.
void statisticsPage(benchmark::State& state) {
  Pages pages;
  pages.frontend->page("statistics");
  for (auto _ : state) benchmark::DoNotOptimize(pages.frontend->send(R"("didDismissTip")"));
}

/// An action that changes one sheet, with fifteen pages asked for.
void action(benchmark::State& state) {
  Pages pages;
  for (const char* name : {"screens", "message", "statistics", "addWeight", "weights", "fasting", "history",
                           "goalChoice", "settings", "cards", "backups", "import", "export", "fastingChart", "about"})
    pages.frontend->page(name);
  std::size_t told = 0;
  const auto subscription = pages.frontend->subscribe([&](auto names) { told += names.size(); });
  int place = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(
        pages.frontend->send(R"({"goalChoice": {"didPick": )" + std::to_string(++place % 8) + "}}"));
  if (told == 0) state.SkipWithError("nothing was told");
}

void readAndWrite(benchmark::State& state) {
  const std::string json = R"({"didTapStart": {"start": 1782907200, "goalSeconds": 57600}})";
  if (mivo::host::writeAction(mivo::host::readAction(json).value()) != json)
    return state.SkipWithError("wrong answer, not timed");
  for (auto _ : state) benchmark::DoNotOptimize(mivo::host::readAction(json));
}

void twentyRows(benchmark::State& state) {
  Pages pages;
  std::size_t place = 0;
  for (auto _ : state) benchmark::DoNotOptimize(pages.frontend->rows("historyRows", place++ % (tenYears - 20), 20));
}

BENCHMARK(floorReadAndAdd)->Name("floor")->Arg(tenYears);
BENCHMARK(readAndWrite)->Name("reading an action");
BENCHMARK(action)->Name("an action and the page that it changes");
BENCHMARK(statisticsPage)->Name("the statistics as JSON");
BENCHMARK(anotherRange)->Name("another range of the statistics");
BENCHMARK(twentyRows)->Name("twenty rows of the history as JSON");

}  // namespace
}  // namespace bench
