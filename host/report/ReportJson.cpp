// SPDX-License-Identifier: MIT
#include "host/report/ReportJson.h"

#include <variant>

#include "host/report/ReportFields.h"

namespace mivo::host {

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
