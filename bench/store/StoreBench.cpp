// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "adapters/icu/Calendars.h"
#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/standard/SystemClock.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "bench/support/Floor.h"
#include "bench/support/Histories.h"
#include "mivo/statistics/StatisticsFeature.h"
#include "mivo/store/Store.h"

namespace bench {
namespace {

using mivo::StatisticsFeature;
using State = StatisticsFeature::State;
using Action = StatisticsFeature::Action;

struct NoHealth final : mivo::HealthKitClient {
  void shouldRequestAuthorization(std::function<void(bool)> completion) const override { completion(false); }
  void requestAuthorization(std::function<void()> completion) const override { completion(); }
};

struct NoTips final : mivo::TipCatalogue {
  std::optional<mivo::Tip> tip(std::string_view) const override { return std::nullopt; }
  bool canDisplay(std::string_view) const override { return false; }
  std::optional<std::string> highestPriorityAvailableTip() const override { return std::nullopt; }
};

struct NoDefaults final : mivo::UserDefaults {
  std::optional<Value> value(std::string_view) const override { return std::nullopt; }
  void setValue(std::string_view, std::optional<Value>) const override {}
};

/// Drops what it is given: the cost of a task is not that of an action.
struct NoQueue final : mivo::MainQueue, mivo::TaskRunner {
  void post(std::function<void()>) const override {}
  void postAfter(mivo::Duration, std::function<void()>) const override {}
  void run(std::function<void()>) const override {}
};

std::shared_ptr<const mivo::Dependencies> dependencies() {
  auto own = std::make_shared<mivo::Dependencies>();
  own->date = std::make_shared<mivo::adapters::SystemClock>();
  own->uuid = std::make_shared<mivo::adapters::LocalUUIDGenerator>();
  const auto zone = *mivo::adapters::loadTimeZone("Europe/Berlin");
  own->calendar = own->currentCalendar = *mivo::adapters::makeCalendar("gregorian", zone, 2);
  own->healthKitClient = std::make_shared<NoHealth>();
  own->tips = std::make_shared<NoTips>();
  own->userDefaults = own->appGroupUserDefaults = std::make_shared<NoDefaults>();
  return own;
}

struct Screen {
  mivo::DependencyScope scope{dependencies()};
  std::shared_ptr<const NoQueue> queue = std::make_shared<NoQueue>();
  mivo::Store<StatisticsFeature> store;

  explicit Screen(mivo::List<mivo::FastingDataEntry> fasts = {})
      : store{State::make(mivo::StatsContainer::empty(), std::move(fasts), mivo::TimeRange::week), StatisticsFeature{},
              queue, queue} {}
};

/// What a view of the whole screen does: compares 60 stamps, those of the statistics, of both charts and of a dozen
/// settings, and keeps the present ones.
struct Stamps {
  std::array<mivo::Stamp, 60> known{};

  std::size_t changed(const State& state) {
    std::size_t index = 0, count = 0;
    const auto compare = [&]<class Field>(std::string_view, const Field& field) {
      if constexpr (mivo::isObserved<Field>)
        if (index < known.size()) count += std::exchange(known[index++], field.stamp()) != field.stamp() ? 1 : 0;
    };
    fields(state.stats, compare);
    fields(state.stats.fastingChartState, compare);
    fields(state.stats.eatingChartState, compare);
    fields(state.dashboardSettings, compare);
    return count;
  }
};

/// What the two charts of a screen send while a finger drags one of them.
void send(mivo::Store<StatisticsFeature>& store, double middle) {
  store.send(Action::fastingChartAction{mivo::ScrollChartFeature::Action::didUpdateMidX{middle}});
}

void actionWithoutObservers(benchmark::State& run) {
  Screen screen;
  double middle = 0;
  for (auto _ : run) send(screen.store, ++middle);
}

void actionWithOneObserverOf60Stamps(benchmark::State& run) {
  Screen screen;
  Stamps stamps;
  stamps.changed(screen.store.state());
  std::size_t changed = 0;
  const auto subscription = screen.store.observe([&](const State& state) { changed += stamps.changed(state); });
  double middle = 0;
  for (auto _ : run) send(screen.store, ++middle);
  if (changed != 2 * static_cast<std::size_t>(run.iterations())) run.SkipWithError("each action changes two fields");
}

void actionWith60Observers(benchmark::State& run) {
  Screen screen;
  std::array<mivo::Stamp, 60> known{};
  std::size_t changed = 0;
  std::vector<mivo::Subscription> subscriptions;
  for (mivo::Stamp& stamp : known)
    subscriptions.push_back(screen.store.observe([&stamp, &changed](const State& state) {
      const mivo::Stamp present = state.stats.fastingChartState.scrollViewMidX.stamp();
      if (present != std::exchange(stamp, present)) ++changed;
    }));
  double middle = 0;
  for (auto _ : run) send(screen.store, ++middle);
  if (changed != 60 * static_cast<std::size_t>(run.iterations())) run.SkipWithError("each observer sees each change");
}

void onAppear(benchmark::State& run) {
  Screen screen{fastRecords(run.range(0))};
  for (auto _ : run) screen.store.send(Action::onAppear{});
  run.counters["perRecord"] = perRecord(run.range(0));
}

BENCHMARK(actionWithoutObservers);
BENCHMARK(actionWithOneObserverOf60Stamps);  // goal: at most 120 ns
BENCHMARK(actionWith60Observers);            // goal: at most 300 ns
BENCHMARK(floorReadAndAdd)->Name("floor")->Arg(100'000);
BENCHMARK(onAppear)->Arg(100'000)->Unit(benchmark::kMicrosecond);  // goal: at most 2 ms

}  // namespace
}  // namespace bench
