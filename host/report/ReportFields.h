// SPDX-License-Identifier: MIT
#pragma once

#include "host/json/RecordJson.h"
#include "mivo/calculations/StatsContainer.h"
#include "mivo/model/Date.h"

namespace mivo::host {

// What a report says of records that hold more than concerns its readers: no ids but those of weighings, and of a chart
// what was computed, not where it is scrolled to.

template <>
struct JsonFields<WeightAverageEntry> : std::true_type {
  static void visit(const WeightAverageEntry& entry, auto&& visit) {
    visit("date", entry.date);
    visit("value", entry.value);
  }
};

template <>
struct JsonFields<FastingAverageEntry> : std::true_type {
  static void visit(const FastingAverageEntry& entry, auto&& visit) {
    visit("date", entry.date);
    visit("value", entry.value);
    visit("hours", entry.hours);
  }
};

template <>
struct JsonFields<ChartDataEntry> : std::true_type {
  static void visit(const ChartDataEntry& entry, auto&& visit) {
    visit("start", entry.dateInterval.start);
    visit("end", entry.dateInterval.end);
    visit("value", entry.value);
    visit("xAxisLabel", entry.xAxisLabel);
  }
};

template <>
struct JsonFields<ScrollChartFeature::State> : std::true_type {
  static void visit(const ScrollChartFeature::State& chart, auto&& visit) {
    visit("chartTimeUnit", chart.chartTimeUnit);
    visit("maxTime", chart.maxTime);
    visit("now", chart.now);
    visit("data", chart.data);
  }
};

template <>
struct JsonFields<ClosedDateRange> : std::true_type {
  static void visit(const ClosedDateRange& range, auto&& visit) {
    visit("lowerBound", range.lowerBound);
    visit("upperBound", range.upperBound);
  }
};

}  // namespace mivo::host
