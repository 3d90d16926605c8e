// SPDX-License-Identifier: MIT
#include "drawing/charts/LineChart.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "mivo/platform/TextLookup.h"

namespace mivo::drawing {
namespace {

/// A kilogram, or two pounds.
double leastWeightSpan(WeightUnit unit) {
  if (unit == WeightUnit::kilograms) return 1;
  return 2 * kilogramsPer(WeightUnit::pounds) / kilogramsPer(unit);
}

std::vector<LineSeries> linesOf(const WeightChart& chart, WeightUnit unit) {
  std::vector<LineSeries> lines(1);
  for (const auto& sample : chart.entries)
    lines[0].points.push_back({sample.date, sample.weightInKg / kilogramsPer(unit)});
  lines[0].leastSpan = leastWeightSpan(unit);
  return lines;
}

std::vector<LineSeries> linesOf(const WeightFastingChart& chart, WeightUnit unit) {
  std::vector<LineSeries> lines(2);
  for (const auto& entry : chart.weightEntries)
    lines[0].points.push_back({entry.date, entry.value / kilogramsPer(unit)});
  for (const auto& entry : chart.fastingEntries) lines[1].points.push_back({entry.date, entry.hours});
  lines[0].scale = chart.weightScale / kilogramsPer(unit);
  lines[1].scale = chart.fastingScale / secondsPerHour;
  lines[0].leastSpan = leastWeightSpan(unit);
  return lines;
}

}  // namespace

LineChart::LineChart(Source shown, WeightUnit shownIn)
    : source{std::move(shown)},
      unit{shownIn},
      series{std::visit([shownIn](const auto& chart) { return linesOf(chart, shownIn); }, source)},
      models{modelsOf(source)} {}

LineChart::Models LineChart::modelsOf(const Source& source) {
  if (const auto* pair = std::get_if<WeightFastingChart>(&source)) return std::make_unique<Pair>(*pair);
  return std::make_unique<Weight>(std::get<WeightChart>(source));
}

TimeRange LineChart::timeRange() const {
  return std::visit([](const auto& chart) { return chart.timeRange; }, source);
}

bool LineChart::isEmpty() const { return rowCount() == 0; }

DateInterval LineChart::domain(const PageClients& clients) const {
  return timeAxisDomain(timeRange(), endDate(series, false), clients.now, clients.calendar);
}

std::vector<TimeAxisLabel> LineChart::labels(DateInterval visible, const PageClients& clients) const {
  return timeAxisLabels(timeRange(), visible, clients.now, clients.calendar, clients.dates);
}

std::string LineChart::gutterText(std::size_t line, double value, const PageClients& clients) {
  return line == 0 ? clients.numbers.string(value, 1) : clients.numbers.string(std::floor(value), 0);
}

std::vector<std::string> LineChart::gutterTexts(const PageClients& clients) const {
  std::vector<std::string> texts;
  for (std::size_t line = 0; line < series.size(); ++line) {
    if (series[line].points.empty()) continue;
    const double most = std::ranges::max(series[line].points, {}, &LinePoint::value).value;
    texts.push_back(series.size() == 2 ? gutterText(line, std::ceil(most), clients)
                                       : clients.numbers.string(std::ceil(most), series[0].leastSpan < 2 ? 1 : 0));
  }
  return texts;
}

std::string LineChart::note(DateInterval visible, const PageClients& clients) const {
  const auto latest = endDate(series, true);
  if (!latest || isAnyVisible(series, visible)) return {};
  const std::string key = series.size() == 1
                              ? clients.texts.text("No weight between these dates. The latest one is of {1}.")
                              : clients.texts.text("No weight and no fast between these dates. The latest is of {1}.");
  return filledIn(key, {clients.dates.string(*latest, "yMMMd").value_or("")});
}

std::string LineChart::valueText(std::size_t line, double value, const PageClients& clients) const {
  if (line == 0) return clients.masses.string(value * kilogramsPer(unit), unit);
  return clients.hour.string(value * secondsPerHour).value_or("");
}

std::size_t LineChart::rowCount() const {
  std::size_t count = 0;
  for (const LineSeries& line : series) count += line.points.size();
  return count;
}

LineChart::Row LineChart::row(std::size_t place, const PageClients& clients) const {
  for (std::size_t line = 0; line < series.size(); ++line) {
    const auto& points = series[line].points;
    if (place < points.size()) {
      const LinePoint& point = points[points.size() - 1 - place];
      return {clients.dates.string(point.date, "yMMMdjm").value_or(""), valueText(line, point.value, clients)};
    }
    place -= points.size();
  }
  return {};
}

void LineChart::didScroll(Date leading) {
  std::visit([leading](const auto& both) { both->header.didUpdateScrollPosition(leading); }, models);
}

const std::string& LineChart::visibleDates() const {
  return std::visit([](const auto& both) -> auto& { return both->header.formattedDateInterval(); }, models);
}

std::string LineChart::average(const PageClients& clients) const {
  const auto* weight = std::get_if<std::unique_ptr<Weight>>(&models);
  if (!weight) return {};
  const double kilograms = (*weight)->header.average().kilograms;
  return kilograms > 0 ? clients.masses.string(kilograms, unit) : "–";
}

void LineChart::didTouch(std::optional<Date> date) {
  std::visit([date](const auto& both) { both->touched.didUpdateRawSelectedDate(date); }, models);
}

std::vector<std::optional<LinePoint>> LineChart::selection() const {
  std::vector<std::optional<LinePoint>> points(series.size());
  if (const auto* weight = std::get_if<std::unique_ptr<Weight>>(&models)) {
    if (const auto& sample = (*weight)->touched.selectedEntry())
      points[0] = {sample->date, sample->weightInKg / kilogramsPer(unit)};
  } else if (const auto& both = std::get<std::unique_ptr<Pair>>(models)->touched.selectedEntry()) {
    if (both->weight) points[0] = {both->weight->date, both->weight->value / kilogramsPer(unit)};
    if (both->fasting) points[1] = {both->fasting->date, both->fasting->hours};
  }
  return points;
}

std::optional<Annotation> LineChart::annotation(const PageClients& clients) const {
  const auto points = selection();
  const auto first = std::ranges::find_if(points, [](const auto& point) { return point.has_value(); });
  if (first == points.end()) return std::nullopt;
  Annotation words{clients.dates.string((*first)->date, "EEEdMMM").value_or(""), {}};
  for (std::size_t line = 0; line < points.size(); ++line)
    words.values.push_back(points[line] ? valueText(line, points[line]->value, clients) : "");
  return words;
}

std::string LineChart::spokenSelection(const PageClients& clients) const {
  const auto words = annotation(clients);
  if (!words) return {};
  std::string spoken = words->date;
  for (const std::string& value : words->values)
    if (!value.empty()) spoken += ", " + value;
  return spoken;
}

Subscription LineChart::observeHeader(std::function<void()> changed) const {
  return std::visit([&](const auto& both) { return both->header.observe(std::move(changed)); }, models);
}

Subscription LineChart::observeSelection(std::function<void()> changed) const {
  return std::visit([&](const auto& both) { return both->touched.observe(std::move(changed)); }, models);
}

}  // namespace mivo::drawing
