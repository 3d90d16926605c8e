// SPDX-License-Identifier: MIT
#include "host/frontend/ChartPages.h"

#include <algorithm>
#include <cassert>

#include "drawing/charts/DayBarsLayout.h"

namespace mivo::host {
namespace {

std::string hoursOf(double hours, const drawing::DayBarsClients& clients) {
  return clients.hour.string(hours * secondsPerHour).value_or("");
}

std::string seenDates(const ScrollChartFeature::State& chart, BarRange seen, const drawing::DayBarsClients& clients) {
  const auto& bars = *chart.data;
  seen.last = std::min(seen.last, bars.size());
  if (seen.first >= seen.last) return {};
  return clients.dates.string({bars[seen.first].dateInterval.start, bars[seen.last - 1].dateInterval.end}).value_or("");
}

std::vector<LineRow> lineRows(const drawing::LineChart& chart, DateInterval visible, const PageClients& clients) {
  std::vector<LineRow> rows;
  const auto widest = chart.gutterTexts(clients);
  std::size_t withPoints = 0;
  for (const drawing::LineSeries& line : chart.lines()) {
    LineRow row{.count = static_cast<std::int64_t>(line.points.size()),
                .scale = line.scale,
                .leastSpan = line.leastSpan,
                .widestText = {},
                .latest = {}};
    if (!line.points.empty()) row.widestText = widest[withPoints++];
    if (const auto inside = pointsInside(line.points, visible); !inside.empty())
      row.latest = {inside.back().value, drawing::LineChart::gutterText(rows.size(), inside.back().value, clients)};
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

DayBarsPage composeDayBars(const ScrollChartFeature::State& chart, BarRange seen,
                           const drawing::DayBarsClients& clients) {
  DayBarsPage page{.unit = chart.chartTimeUnit,
                   .count = static_cast<std::int64_t>(chart.data->size()),
                   .maxTime = chart.maxTime,
                   .hours = {},
                   .widestHours = hoursOf(drawing::widestHours(chart.chartTimeUnit), clients),
                   .selected = {},
                   .popup = chart.popupViewState(),
                   .midX = chart.scrollViewMidX,
                   .visibleDates = seenDates(chart, seen, clients),
                   .spokenSelection = drawing::spokenBar(chart, clients)};
  for (const double hours : drawing::hourLines(chart.maxTime)) page.hours.push_back({hours, hoursOf(hours, clients)});
  const auto selected = *chart.selectedUUID ? chart.data->indexOf(**chart.selectedUUID) : std::nullopt;
  if (selected) page.selected = static_cast<std::int64_t>(*selected);
  return page;
}

DayBarRow dayBarRow(const ScrollChartFeature::State& chart, std::size_t place) {
  const ChartDataEntry& bar = (*chart.data)[place];
  return {bar.id, bar.dateInterval.start, bar.dateInterval.end, bar.value, bar.xAxisLabel};
}

LineChartPage composeLineChart(const drawing::LineChart& chart, bool scrolls, DateInterval visible,
                               const PageClients& clients) {
  LineChartPage page{.timeRange = chart.timeRange(),
                     .scrolls = scrolls,
                     .domain = chart.domain(clients),
                     .visible = visible,
                     .lines = lineRows(chart, visible, clients),
                     .axis = {},
                     .labels = {},
                     .note = chart.note(visible, clients),
                     .visibleDates = scrolls ? chart.visibleDates() : "",
                     .average = chart.average(clients),
                     .selection = chart.selection(),
                     .selectedDate = {},
                     .selectedValues = {},
                     .spokenSelection = chart.spokenSelection(clients)};
  const auto axis = valueAxis(chart.lines(), visible);
  page.low = axis.low;
  page.high = axis.high;
  for (const double value : axis.lines)
    page.axis.push_back({value, clients.numbers.string(value, axis.fractionDigits)});
  const Duration around{visible.duration()};
  page.labels = chart.labels(
      {std::max(page.domain.start, visible.start - around), std::min(page.domain.end, visible.end + around)}, clients);
  if (auto words = chart.annotation(clients)) {
    page.selectedDate = std::move(words->date);
    page.selectedValues = std::move(words->values);
  }
  return page;
}

drawing::LinePoint linePoint(const drawing::LineChart& chart, std::size_t place) {
  for (const drawing::LineSeries& line : chart.lines()) {
    if (place < line.points.size()) return line.points[place];
    place -= line.points.size();
  }
  assert(false && "a place of a point");
  return {};
}

}  // namespace mivo::host
