// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "drawing/charts/LineSelection.h"
#include "mivo/charts/BodyWeightChartHeaderModel.h"
#include "mivo/charts/BodyWeightInnerChartSelectionModel.h"
#include "mivo/charts/InnerChartSelectionModel.h"
#include "mivo/charts/WeightFastingChart.h"
#include "mivo/pages/PageClients.h"

namespace mivo::drawing {

/// The weighings of a range.
struct WeightChart {
  List<BodyWeightSample> entries;
  TimeRange timeRange = TimeRange::week;
  bool operator==(const WeightChart&) const = default;
};

/// A line chart of the statistics: weights, or averaged weight and fasting hours. They differ in data alone: the first
/// line is weight in the unit of the screen, the second one hours. It knows what is on screen and what is touched, and
/// says all of it in words.
///
/// Takes clock, formatter and main queue from the dependencies in force when it is made. Thread: the main one.
class LineChart {
 public:
  using Source = std::variant<WeightChart, WeightFastingChart>;

  LineChart(Source source, WeightUnit unit);

  bool shows(const Source& other, WeightUnit otherUnit) const { return source == other && unit == otherUnit; }
  const std::vector<LineSeries>& lines() const { return series; }
  TimeRange timeRange() const;
  bool isEmpty() const;

  /// What it can be scrolled through.
  DateInterval domain(const PageClients& clients) const;
  /// What the gutter says beside a line of a pair. Hours are cut as they are where a point is touched.
  static std::string gutterText(std::size_t line, double value, const PageClients& clients);
  /// The longest text that the gutter may have to hold beside each line.
  std::vector<std::string> gutterTexts(const PageClients& clients) const;
  /// A sentence in place of lines, where none comes into the span; otherwise empty.
  std::string note(DateInterval visible, const PageClients& clients) const;
  std::vector<TimeAxisLabel> labels(DateInterval visible, const PageClients& clients) const;
  /// "72.4 kg", "17h": a value of a line.
  std::string valueText(std::size_t line, double value, const PageClients& clients) const;

  /// The chart as a table: one line after the other, each from its latest point on. A row is composed when it is asked
  /// for, in O(1).
  std::size_t rowCount() const;
  struct Row {
    std::string date, value;
    bool operator==(const Row&) const = default;
  };
  Row row(std::size_t place, const PageClients& clients) const;

  void didScroll(Date leading);
  /// The dates on screen; none before the first scroll.
  const std::string& visibleDates() const;
  /// The average of what is on screen, a dash where nothing is; none for two lines.
  std::string average(const PageClients& clients) const;

  void didTouch(std::optional<Date> date);
  /// The points chosen by the last touch, one a line.
  std::vector<std::optional<LinePoint>> selection() const;
  std::optional<Annotation> annotation(const PageClients& clients) const;
  /// "Wed 10 Jun, 72.4 kg, 17h"; empty where nothing is selected.
  std::string spokenSelection(const PageClients& clients) const;

  Subscription observeHeader(std::function<void()> changed) const;
  Subscription observeSelection(std::function<void()> changed) const;

 private:
  struct Weight {
    explicit Weight(const WeightChart& chart)
        : header{chart.entries, chart.timeRange}, touched{chart.entries, chart.timeRange} {}
    BodyWeightChartHeaderModel header;
    BodyWeightInnerChartSelectionModel touched;
  };
  struct Pair {
    explicit Pair(const WeightFastingChart& chart)
        : header{chart.timeRange}, touched{chart.weightEntries, chart.fastingEntries, chart.timeRange} {}
    ChartHeaderModel header;
    InnerChartSelectionModel touched;
  };
  using Models = std::variant<std::unique_ptr<Weight>, std::unique_ptr<Pair>>;
  static Models modelsOf(const Source& source);

  Source source;
  WeightUnit unit;
  std::vector<LineSeries> series;
  Models models;
};

}  // namespace mivo::drawing
