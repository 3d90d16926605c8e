// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "drawing/charts/DayBarsText.h"
#include "drawing/charts/LineChart.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

// The charts of the statistics: all that is needed to lay them out elsewhere, and every text on them. Their bars,
// points and rows of tables are lists of their own.

/// A number that stands beside a chart.
struct AxisText {
  double value = 0;
  std::string text;
  bool operator==(const AxisText&) const = default;
};

template <RecordOf<AxisText> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [value, text] = record;
  visit("value", value);
  visit("text", text);
}

/// A row of a chart that is read as a table, the latest first.
struct TableRow {
  std::string date, value;
  bool operator==(const TableRow&) const = default;
};

template <RecordOf<TableRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [date, value] = record;
  visit("date", date);
  visit("value", value);
}

/// One day bar, the earliest first.
struct DayBarRow {
  UUID id;
  Date start, end;
  double value = 0;   ///< of the height of a bar that lasts `maxTime`
  std::string label;  ///< below it
  bool operator==(const DayBarRow&) const = default;
};

template <RecordOf<DayBarRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [id, start, end, value, label] = record;
  visit("id", id);
  visit("start", start);
  visit("end", end);
  visit("value", value);
  visit("label", label);
}

/// Bars by their places: [first, last).
struct BarRange {
  std::size_t first = 0, last = 0;
};

/// A chart of day bars, but for its bars.
struct DayBarsPage {
  ChartTimeUnit unit = ChartTimeUnit::day;
  std::int64_t count = 0;
  double maxTime = 0;                    ///< seconds of a bar of value 1
  std::vector<AxisText> hours;           ///< the lines behind the bars
  std::string widestHours;               ///< of all that charts of this unit write there
  std::optional<std::int64_t> selected;  ///< the place of a bar
  std::optional<ScrollChartFeature::State::PopupViewState> popup;
  std::optional<double> midX;   ///< the middle of what is on screen, which both charts share
  std::string visibleDates;     ///< of the bars that are on screen; none before they were told
  std::string spokenSelection;  ///< none without one
  bool operator==(const DayBarsPage&) const = default;
};

template <RecordOf<DayBarsPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [unit, count, maxTime, hours, widestHours, selected, popup, midX, visibleDates, spokenSelection] = record;
  visit("unit", unit);
  visit("count", count);
  visit("maxTime", maxTime);
  visit("hours", hours);
  visit("widestHours", widestHours);
  visit("selected", selected);
  visit("popup", popup);
  visit("midX", midX);
  visit("visibleDates", visibleDates);
  visit("spokenSelection", spokenSelection);
}

/// Takes the formatters of popups from the current dependencies.
DayBarsPage composeDayBars(const ScrollChartFeature::State& chart, BarRange seen,
                           const drawing::DayBarsClients& clients);

/// The bar at a place (asserted to be one).
DayBarRow dayBarRow(const ScrollChartFeature::State& chart, std::size_t place);

/// A line of a line chart, but for its points.
struct LineRow {
  std::int64_t count = 0;          ///< of its points, which stand in the list behind those of the line before
  double scale = 1;                ///< what values are divided by on an axis that two lines share
  double leastSpan = 0;            ///< see `drawing::LineSeries`
  std::string widestText;          ///< of what the gutter says beside it
  std::optional<AxisText> latest;  ///< of what is on screen, for the gutter of two lines
  bool operator==(const LineRow&) const = default;
};

template <RecordOf<LineRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [count, scale, leastSpan, widestText, latest] = record;
  visit("count", count);
  visit("scale", scale);
  visit("leastSpan", leastSpan);
  visit("widestText", widestText);
  visit("latest", latest);
}

/// A line chart, but for its points. What it says of a place is of where it was scrolled to last.
struct LineChartPage {
  TimeRange timeRange = TimeRange::week;
  bool scrolls = false;  ///< under a head that says what is on screen; else all of it is
  DateInterval domain;   ///< what can be scrolled through
  DateInterval visible;
  std::vector<LineRow> lines;
  double low = 0, high = 1;                    ///< of the vertical axis
  std::vector<AxisText> axis;                  ///< its lines
  std::vector<drawing::TimeAxisLabel> labels;  ///< of what is on screen, and of as much before and after it
  std::string note;                            ///< in place of lines, where none comes into sight
  std::string visibleDates, average;           ///< for the head
  std::vector<std::optional<drawing::LinePoint>> selection;  ///< a point a line
  std::string selectedDate;
  std::vector<std::string> selectedValues;  ///< one a line; none where nothing is selected
  std::string spokenSelection;
  bool operator==(const LineChartPage&) const = default;
};

template <RecordOf<LineChartPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [timeRange, scrolls, domain, visible, lines, low, high, axis, labels, note, visibleDates, average, selection,
         selectedDate, selectedValues, spokenSelection] = record;
  visit("timeRange", timeRange);
  visit("scrolls", scrolls);
  visit("domain", domain);
  visit("visible", visible);
  visit("lines", lines);
  visit("low", low);
  visit("high", high);
  visit("axis", axis);
  visit("labels", labels);
  visit("note", note);
  visit("visibleDates", visibleDates);
  visit("average", average);
  visit("selection", selection);
  visit("selectedDate", selectedDate);
  visit("selectedValues", selectedValues);
  visit("spokenSelection", spokenSelection);
}

LineChartPage composeLineChart(const drawing::LineChart& chart, bool scrolls, DateInterval visible,
                               const PageClients& clients);

/// The point at a place of all lines (asserted to be one).
drawing::LinePoint linePoint(const drawing::LineChart& chart, std::size_t place);

}  // namespace mivo::host
