// SPDX-License-Identifier: MIT
#include "mivo/charts/ScrollChartFeature.h"

#include "mivo/charts/BarGeometry.h"
#include "mivo/platform/Dependencies.h"

namespace mivo {
namespace {

using State = ScrollChartFeature::State;
using Action = ScrollChartFeature::Action;

constexpr double popupInset = 2;

std::optional<double> popupXOffset(const State& state, const ChartDataEntry& selected) {
  if (selected == state.data->front()) return 0.0;
  const auto day = state.visibleDays->find(selected.dateInterval.start);
  if (day == state.visibleDays->end()) return std::nullopt;
  return day->second - 2 * barWidth(state) + popupInset;
}

void apply(const Action::didTapBar& tap, State& state) {
  const bool isSelected = state.selectedUUID.value() == tap.id;
  state.selectedUUID = isSelected ? std::nullopt : std::optional{tap.id};
}

void apply(const Action::didUpdateSize& update, State& state) { state.chartSize = update.size; }

void apply(const Action::didUpdateMidX& update, State& state) { state.scrollViewMidX = update.midX; }

void apply(const Action::didUpdateVisibleDays& update, State& state) { state.visibleDays = update.visibleDays; }

}  // namespace

double barWidth(const State& state) { return barWidth(state.chartSize->width, state.chartTimeUnit); }

auto State::popupViewState() const -> std::optional<PopupViewState> {
  const ChartDataEntry* selected = *selectedUUID ? data->find(**selectedUUID) : nullptr;
  const auto xOffset = selected ? popupXOffset(*this, *selected) : std::nullopt;
  if (!xOffset) return std::nullopt;
  return PopupViewState{
      .popupXOffset = *xOffset,
      .popupYOffset = popupYOffset(selected->value, chartSize->height),
      .popupLabel = popupLabel(selected->value * maxTime, *dependency(&Dependencies::hourMinDurationUnitFormatter),
                               *dependency(&Dependencies::hourDurationUnitFormatter)),
      .popupWidth = 2 * barWidth(*this),
  };
}

auto ScrollChartFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  std::visit([&state](const auto& active) { apply(active, state); }, action);
  return {};
}

}  // namespace mivo
