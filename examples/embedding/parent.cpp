// SPDX-License-Identifier: MIT
// A host whose own feature contains the statistics screen: it records fasts, repairs overlaps and keeps weights.
#include <cstdio>

#include "Clients.h"
#include "HostFeature.h"
#include "mivo/store/Store.h"

using namespace mivo;
using Screen = StatisticsFeature::Action;
using Action = HostFeature::Action;

FastingDataEntry fast(std::uint64_t id, Date start, double hours) {
  return finishedFast(UUID{1, id}, start, start + Duration{hours * secondsPerHour}, 57600);
}

void print(const char* after, const HostFeature::State& state) {
  const StatsContainer& stats = state.statistics.stats;
  std::printf("%s: %lld fasts, longest %.1f hours, %zu bars%s\n", after, static_cast<long long>(stats.totalFasts),
              stats.longestFast / secondsPerHour, stats.fastingChartState.data->size(),
              stats.hasOverlappingFasts ? ", overlapping" : "");
}

int main() {
  const Date now = dateSince1970(1772366400);  // 2026-03-01T12:00:00Z
  const DependencyScope scope{plainClients(now)};
  const auto loop = std::make_shared<const Loop>();
  Store store{
      HostFeature::State{.statistics = StatisticsFeature::State::make(StatsContainer::empty(), {}, TimeRange::week),
                         .weights = List<BodyWeightSample>{}},
      HostFeature{}, loop, loop};

  store.send(Action::didRecordFast{fast(1, now - Duration{10 * secondsPerDay}, 16)});
  store.send(Action::didRecordFast{fast(2, now - Duration{2 * secondsPerDay}, 20)});
  store.send(Action::didRecordFast{fast(3, now - Duration{1.5 * secondsPerDay}, 18)});
  print("recorded", store.state());

  store.send(Action::statistics{Screen::didTapFixOverlappingFasts{}});
  print("repaired", store.state());

  using Range = Write<&StatisticsFeature::State::timeRange>;
  store.send(Action::statistics{Screen::binding{Range{TimeRange::year}}});
  print("by month", store.state());

  store.send(Action::statistics{Screen::addWeightLogAction{AddWeightLogFeature::Action::didChangeText{"79,5"}}});
  const Action tapSave = Action::statistics{Screen::addWeightLogAction{AddWeightLogFeature::Action::didTapSave{}}};
  store.send(tapSave);
  store.send(tapSave);  // while it is saved: counts for nothing
  loop->drain();
  std::printf("weight: %.1f kg, %s, %zu kept\n", store.state().statistics.stats.currentWeightInKg->value(),
              store.state().statistics.addWeightLogState.savingState == AddWeightLogFeature::SavingState::saved
                  ? "saved"
                  : "not saved",
              store.state().weights->size());
}
