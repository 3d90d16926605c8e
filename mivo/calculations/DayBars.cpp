// SPDX-License-Identifier: MIT
#include "mivo/calculations/DayBars.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

#include "mivo/calculations/ChartPeriods.h"

namespace mivo {
namespace {

double secondsInBoth(DateInterval one, DateInterval other) {
  return std::max(0.0, secondsBetween(std::max(one.start, other.start), std::min(one.end, other.end)));
}

ScrollChartFeature::State chart(std::span<const DateInterval> periods, std::span<const double> seconds,
                                std::span<const std::string> labels, std::span<const UUID> ids, TimeRange range,
                                Date now) {
  double maxTime = 0;
  for (const double inBar : seconds) maxTime = std::max(maxTime, inBar);
  std::vector<ChartDataEntry> bars;
  bars.reserve(periods.size());
  for (std::size_t bar = 0; bar < periods.size(); ++bar) {
    const double value = maxTime > 0 ? seconds[bar] / maxTime : 0;
    bars.emplace_back(periods[bar], value, labels[bar], ids[bar]);
  }
  return {.chartTimeUnit = chartTimeUnit(range),
          .data = IdentifiedArray<ChartDataEntry>{std::move(bars)},
          .maxTime = maxTime,
          .now = now};
}

}  // namespace

BarSeconds barSeconds(std::span<const FinishedFastingDataEntry> stretches, std::span<const DateInterval> periods,
                      Date now) {
  BarSeconds seconds{std::vector<double>(periods.size()), std::vector<double>(periods.size())};
  std::size_t first = 0;
  for (const auto& stretch : stretches) {
    const DateInterval fasted{stretch.start, std::min(stretch.end, now)};
    while (first < periods.size() && periods[first].end <= fasted.start) ++first;
    for (std::size_t bar = first; bar < periods.size() && periods[bar].start < fasted.end; ++bar)
      seconds.fasting[bar] += secondsInBoth(periods[bar], fasted);
  }
  for (std::size_t bar = 0; bar < periods.size() && !stretches.empty(); ++bar) {
    const double begun = secondsInBoth(periods[bar], {stretches.front().start, now});
    seconds.eating[bar] = std::max(0.0, begun - seconds.fasting[bar]);
  }
  return seconds;
}

std::vector<std::string> barLabels(std::span<const DateInterval> periods, TimeRange range, const Calendar& calendar,
                                   const DateFormatter& dates) {
  const auto label = [&](Date date) { return dates.string(date, xAxixDateFormat(range)).value_or(""); };
  std::vector<std::string> labels;
  labels.reserve(periods.size());
  if (range != TimeRange::week || periods.empty()) {
    for (const DateInterval& period : periods) labels.push_back(label(period.start));
    return labels;
  }
  // The calendar is asked for every date only where the zone has skipped some.
  const auto dateNumber = [&](Date date) { return calendar.calendarDatesBetween(periods.front().start, date); };
  const bool isEveryDate = dateNumber(periods.back().start) == std::ssize(periods);
  std::array<std::optional<std::string>, 7> weekdays;  // from that of the first period on
  for (std::size_t bar = 0; bar < periods.size(); ++bar) {
    const Date date = periods[bar].start;
    const std::size_t number = isEveryDate ? bar + 1 : static_cast<std::size_t>(dateNumber(date).value_or(0));
    auto& weekday = weekdays[number % weekdays.size()];
    if (!weekday) weekday = label(date);
    labels.push_back(*weekday);
  }
  return labels;
}

DayBars dayBars(std::span<const FinishedFastingDataEntry> stretches, TimeRange range, Date now,
                const Calendar& calendar, const DateFormatter& dates, const UUIDGenerator& ids) {
  const auto periods =
      stretches.empty() ? std::vector<DateInterval>{} : chartPeriods(stretches.front().start, now, range, calendar);
  const BarSeconds seconds = barSeconds(stretches, periods, now);
  const auto labels = barLabels(periods, range, calendar, dates);
  std::vector<UUID> fresh(2 * periods.size());
  ids.fill(fresh);
  const auto [fastingIDs, eatingIDs] =
      std::pair{std::span{fresh}.first(periods.size()), std::span{fresh}.last(periods.size())};
  return {chart(periods, seconds.fasting, labels, fastingIDs, range, now),
          chart(periods, seconds.eating, labels, eatingIDs, range, now)};
}

void updateScrollChart(ScrollChartFeature::State& shown, const ScrollChartFeature::State& fresh) {
  std::vector<ChartDataEntry> bars = fresh.data->elements();
  auto old = shown.data->begin();
  for (ChartDataEntry& bar : bars) {
    while (old != shown.data->end() && old->dateInterval.start < bar.dateInterval.start) ++old;
    if (old != shown.data->end() && old->dateInterval == bar.dateInterval) bar.id = old->id;
  }
  shown.chartTimeUnit = fresh.chartTimeUnit.value();
  shown.data = IdentifiedArray<ChartDataEntry>{std::move(bars)};
  shown.maxTime = fresh.maxTime.value();
  shown.now = fresh.now.value();
}

}  // namespace mivo
