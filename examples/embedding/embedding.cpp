// SPDX-License-Identifier: MIT
// A host in one page: puts a history into the statistics screen's state, drives it, and prints what it observed.
#include <cstdio>

#include "Clients.h"
#include "mivo/statistics/StatisticsFeature.h"
#include "mivo/store/Store.h"

using namespace mivo;
using Action = StatisticsFeature::Action;

// Three weeks of fasts of 16 hours up to yesterday's noon, with one day missed.
std::vector<FastingDataEntry> history(Date now) {
  std::vector<FastingDataEntry> fasts;
  for (int daysAgo = 21; daysAgo >= 1; --daysAgo) {
    if (daysAgo == 9) continue;
    const Date end = now - Duration{daysAgo * secondsPerDay};
    fasts.push_back(finishedFast(UUID{1, static_cast<std::uint64_t>(daysAgo)}, end - Duration{16 * secondsPerHour}, end,
                                 static_cast<std::int64_t>(16 * secondsPerHour)));
  }
  return fasts;
}

int main() {
  const Date now = dateSince1970(1772366400);  // 2026-03-01T12:00:00Z, a Sunday
  const DependencyScope scope{plainClients(now)};
  const auto loop = std::make_shared<const Loop>();

  const auto fasts = history(now);
  StatsContainer stats = StatsContainer::empty();
  stats.update(fasts, std::nullopt, StreakSettings{}, TimeRange::week);
  stats.updateWeightChart(
      StatsContainer::update({{{UUID{2, 1}, now - Duration{30 * secondsPerDay}, 80}, {UUID{2, 2}, now, 78}}}));

  Store store{StatisticsFeature::State::make(stats, fasts, TimeRange::week), StatisticsFeature{}, loop, loop};
  Stamp card = store.state().showHealthKitCard.stamp(), tip = store.state().currentTipID.stamp();
  const Subscription subscription = store.observe([&](const StatisticsFeature::State& state) {
    if (std::exchange(card, state.showHealthKitCard.stamp()) != card)
      std::printf("health card: %s\n", state.showHealthKitCard ? "shown" : "hidden");
    if (std::exchange(tip, state.currentTipID.stamp()) != tip)
      std::printf("tip: %s\n", state.currentTipID->value().c_str());
  });

  store.send(Action::onAppear{});
  loop->drain();  // the answers about health data and tips arrive here
  store.send(Action::requestHealthKitAccess{});
  store.send(Action::didTapOpenBadges{});
  loop->drain();  // a task that stays behind keeps its loop alive, and the loop its task

  const StatsContainer& read = store.state().stats;
  std::printf("%lld fasts, %lld hours, %.1f hours on average\n", static_cast<long long>(read.totalFasts),
              static_cast<long long>(read.totalHours), read.averageFast / secondsPerHour);
  std::printf("streak of %lld days, longest %lld\n", static_cast<long long>(read.currentStreak),
              static_cast<long long>(read.maxStreak));
  std::printf("fasted a day: %.1f hours this week, %.1f last week\n",
              read.fastingAverages->thisTimeRange / secondsPerHour,
              read.fastingAverages->lastTimeRange / secondsPerHour);
  std::printf("weight: %.1f kg, trend %+.1f kg\n", read.currentWeightInKg->value(), read.weightTrendInKg->value());
  for (const ChartDataEntry& bar : std::span{*read.fastingChartState.data}.last(3))
    std::printf("%s %.1f hours\n", bar.xAxisLabel.c_str(), bar.value * read.fastingChartState.maxTime / secondsPerHour);
  std::printf("badges: %s\n", store.state().destination ? "presented" : "closed");
}
