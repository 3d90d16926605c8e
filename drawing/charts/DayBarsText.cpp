// SPDX-License-Identifier: MIT
#include "drawing/charts/DayBarsText.h"

namespace mivo::drawing {
namespace {

using State = ScrollChartFeature::State;

const ChartDataEntry& barFromTheLatest(const State& chart, std::size_t place) {
  return (*chart.data)[chart.data->size() - 1 - place];
}

std::string timeOf(const ChartDataEntry& bar, const State& chart, const DayBarsClients& clients) {
  return clients.hourMin.string(bar.value * chart.maxTime).value_or("");
}

}  // namespace

std::string barDates(const State& chart, std::size_t place, const DayBarsClients& clients) {
  return clients.dates.string(barFromTheLatest(chart, place).dateInterval).value_or("");
}

std::string barTime(const State& chart, std::size_t place, const DayBarsClients& clients) {
  return timeOf(barFromTheLatest(chart, place), chart, clients);
}

std::string spokenBar(const State& chart, const DayBarsClients& clients) {
  const auto& selected = *chart.selectedUUID;
  const ChartDataEntry* bar = selected ? chart.data->find(*selected) : nullptr;
  if (!bar) return {};
  return clients.dates.string(bar->dateInterval).value_or("") + ": " + timeOf(*bar, chart, clients);
}

}  // namespace mivo::drawing
