// SPDX-License-Identifier: MIT
#include <utility>

#include "mivo/statistics/StatisticsFeature.h"

namespace mivo {
namespace {

using State = StatisticsFeature::State;

/// Writes what changed alone, so that a card is not redrawn for the same number.
template <class Value>
void follow(Observed<Value>& field, const Observed<Value>& source) {
  if (field != source) field = source.value();
}

}  // namespace

auto State::make(StatsContainer stats, List<FastingDataEntry> fasts, TimeRange timeRange,
                 Presentation<StatisticsFeature::Destination::State> destination) -> State {
  State state{.destination = std::move(destination),
              .fasts = std::move(fasts),
              .timeRange = timeRange,
              .stats = std::move(stats)};
  state.refreshCards();
  return state;
}

void State::updateFastingChart(const StatsContainer& fresh) {
  stats.updateFastingChart(fresh);
  refreshCards();
}

void State::updateWeightChart(const StatsContainer& fresh) {
  stats.updateWeightChart(fresh);
  refreshCards();
}

void State::refreshCards() {
  follow(badgeCardState.maxStreak, stats.maxStreak);
  follow(badgeCardState.totalFasts, stats.totalFasts);
  follow(goalWeightCardState.currentWeightInKg, stats.currentWeightInKg);
  follow(goalWeightCardState.weightTrendInKg, stats.weightTrendInKg);
  follow(goalWeightCardState.trendTimeRange, stats.trendTimeRange);
}

}  // namespace mivo
