// SPDX-License-Identifier: MIT
#include "host/frontend/PageSource.h"

#include <utility>

#include "mivo/charts/VisibleSpan.h"
#include "mivo/charts/WeightFastingChart.h"
#include "mivo/pages/DateTimeText.h"
#include "mivo/statistics/ComposeScreen.h"
#include "mivo/statistics/LineCharts.h"
#include "mivo/statistics/ScreenInput.h"

namespace mivo::host {

const drawing::LineChart& KeptLineChart::show(const drawing::LineChart::Source& source, WeightUnit unit,
                                              const PageClients& clients) {
  if (chart && chart->shows(source, unit)) return *chart;
  const auto before = chart ? std::optional{chart->timeRange()} : std::nullopt;
  chart = std::make_unique<drawing::LineChart>(source, unit);
  if (before != chart->timeRange()) leading = chart->domain(clients).end - Duration{visibleSpan(chart->timeRange())};
  chart->didScroll(leading);
  headerChanges = chart->observeHeader([this] { tell(); });
  selectionChanges = chart->observeSelection([this] { tell(); });
  return *chart;
}

void KeptLineChart::didScroll(Date date) {
  leading = date;
  if (chart) chart->didScroll(date);
}

void KeptLineChart::didTouch(std::optional<Date> date) {
  if (chart) chart->didTouch(date);
}

DateInterval KeptLineChart::visible() const { return visibleInterval(leading, chart->timeRange()); }

PageSource::PageSource(const FrontendServices& given, const State& read, std::function<void()> changed)
    : services{given},
      state{read},
      weights{changed},
      weightsAndFasting{std::move(changed)},
      toldAt{dependencies().date->now()} {}

drawing::DayBarsClients PageSource::barClients() const {
  return {*dependencies().dateIntervalFormatter, *dependencies().hourMinDurationUnitFormatter,
          *dependencies().hourDurationUnitFormatter};
}

bool PageSource::lineChartsScroll() const { return lineChartsHaveHeaders(dependencies().platformVersion); }

std::vector<Card> PageSource::cards() const { return composeScreen(screenInput(state.statistics), screenFormatters()); }

const FastingPageFacts& PageSource::fasting() const {
  std::vector<Stamp> read{state.fasts.stamp(), state.nextGoalSeconds.stamp(), state.now.stamp()};
  if (std::exchange(fastingRead, read) != read)
    fastingFacts = fastingPageFacts(*state.fasts, state.nextGoalSeconds, state.now);
  return fastingFacts;
}

const HistoryFacts& PageSource::history() const {
  std::vector<Stamp> read{state.fasts.stamp(), state.now.stamp()};
  if (std::exchange(historyRead, read) == read) return historyFacts;
  auto next = host::historyFacts(state.fasts, state.now);
  if (next != historyFacts) rowsTold = nextStamp();
  historyFacts = std::move(next);
  return historyFacts;
}

const std::vector<HistoryMonth>& PageSource::historyMonths() const {
  std::vector<Stamp> read{historyStamp(), day()};
  if (std::exchange(monthsRead, read) != read) months = composeHistoryMonths(history(), clients());
  return months;
}

Stamp PageSource::day() const {
  const PageClients now = clients();
  if (daysFromToday(toldAt, now) == 0) return retold;
  toldAt = now.now;
  return retold = nextStamp();
}

const drawing::LineChart& PageSource::weightChart() const {
  const auto& shown = state.statistics;
  return weights.show(drawing::WeightChart{weightLogs(shown.stats, shown.timeRange), shown.timeRange},
                      shown.goalWeightCardState.weightUnit, clients());
}

const drawing::LineChart& PageSource::weightFastingChart() const {
  const auto& shown = state.statistics;
  return weightsAndFasting.show(mivo::weightFastingChart(shown.stats, shown.timeRange),
                                shown.goalWeightCardState.weightUnit, clients());
}

ImportSheet PageSource::importSheet() const {
  lastImport = nextImportSheet(std::move(lastImport), state, clients());
  return lastImport;
}

}  // namespace mivo::host
