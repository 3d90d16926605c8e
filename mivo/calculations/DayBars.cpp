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
  const double maxTime = seconds.empty() ? 0 : std::ranges::max(seconds);
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
  std::array<std::optional<std::string>, 7> weekdays;  // from that of the first period on
  const auto weekdayLabel = [&](Date date) {
    const auto dateNumber = calendar.calendarDatesBetween(periods.front().start, date).value_or(0);
    auto& known = weekdays[static_cast<std::size_t>(dateNumber) % weekdays.size()];
    if (!known) known = label(date);
    return *known;
  };
  std::vector<std::string> labels;
  labels.reserve(periods.size());
  for (const DateInterval& period : periods)
    labels.push_back(range == TimeRange::week ? weekdayLabel(period.start) : label(period.start));
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
