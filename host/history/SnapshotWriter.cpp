// SPDX-License-Identifier: MIT
#include "host/history/Snapshot.h"
#include "host/json/RecordJson.h"

namespace mivo::host {

template <>
struct JsonFields<FastRecord> : std::true_type {
  static void visit(const FastRecord& record, auto&& visit) {
    const auto& [fast, note] = record;
    visit("id", fast.id);
    visit("start", fast.start);
    if (fast.finished)
      visit("end", fast.finished->end);
    else
      visit("end", std::optional<Date>{});
    visit("goalSeconds", fast.goalSeconds);
    if (!note.empty()) visit("note", note);
  }
};

namespace {

template <class Record>
void writeLines(JsonWriter& json, std::string_view key, const std::vector<Record>& records) {
  json.key(key);
  json.beginArray(JsonWriter::Layout::spread);
  for (const auto& record : records) {
    json.beginObject(JsonWriter::Layout::line);
    writeJsonFields(json, record);
    json.endObject();
  }
  json.endArray();
}

std::string snapshotOf(auto&& writeLists) {
  JsonWriter json;
  json.beginObject(JsonWriter::Layout::spread);
  json.key("version");
  json.number(std::int64_t{1});
  writeLists(json);
  json.endObject();
  return std::move(json).text();
}

void writeSetting(JsonWriter& json, const UserDefaults::Value& value) {
  std::visit([&json](const auto& one) { writeJson(json, one); }, value);
}

void writeSettings(JsonWriter& json, std::span<const Setting> settings) {
  json.key("settings");
  json.beginObject(JsonWriter::Layout::spread);
  for (const auto& [key, value] : settings) {
    json.key(key);
    writeSetting(json, value);
  }
  json.endObject();
}

}  // namespace

std::string writeSnapshot(const History& history, std::span<const Setting> settings) {
  return snapshotOf([&](JsonWriter& json) {
    writeLines(json, "fasts", history.fasts);
    writeLines(json, "weights", history.weights);
    if (!settings.empty()) writeSettings(json, settings);
  });
}

std::string writeFasts(const std::vector<FastRecord>& fasts) {
  return snapshotOf([&](JsonWriter& json) { writeLines(json, "fasts", fasts); });
}

std::string writeWeights(const std::vector<BodyWeightSample>& weights) {
  return snapshotOf([&](JsonWriter& json) { writeLines(json, "weights", weights); });
}

}  // namespace mivo::host
