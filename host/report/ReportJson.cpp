// SPDX-License-Identifier: MIT
#include "host/report/ReportJson.h"

#include <variant>

#include "host/json/RecordJson.h"

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

namespace {

void writeCard(JsonWriter& json, const Card& card) {
  json.beginObject(JsonWriter::Layout::spread);
  json.key("card");
  writeJson(json, card.kind);
  std::visit([&](const auto& content) { writeJsonFields(json, content); }, card.content);
  json.endObject();
}

}  // namespace

std::string reportJson(const Report& report, std::span<const ZoneTrendDisplay> trends, std::span<const Card> cards) {
  JsonWriter json;
  json.beginObject(JsonWriter::Layout::spread);
  json.key("now");
  writeJson(json, report.now);
  json.key("timeRange");
  writeJson(json, report.range);
  json.key("stats");
  writeJson(json, report.stats);
  json.key("trends");
  writeJson(json, trends);
  json.key("screen");
  json.beginArray(JsonWriter::Layout::spread);
  for (const Card& card : cards) writeCard(json, card);
  json.endArray();
  json.endObject();
  return std::move(json).text();
}

}  // namespace mivo::host
