// SPDX-License-Identifier: MIT
#include "mivo/roadmap/RoadmapFeature.h"

#include <algorithm>
#include <array>
#include <utility>

namespace mivo {
namespace {

constexpr std::string_view finished = "finished";

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> statusTexts{
    {{"planned", translatable("Planned")},
     {"in progress", translatable("In progress")},
     {finished, translatable("Finished")}}};

std::string decodedId(const JSONValue& value) {
  if (const auto number = value.whole()) return std::to_string(*number);
  if (!value.text() || value.text()->empty()) throw DecodingError{"expected a text or a whole number"};
  return *value.text();
}

LocalizedText decodedOptionalText(const JSONValue& value) {
  return value.isNull() ? LocalizedText{} : LocalizedText::decoded(value);
}

std::string decodedStatus(const JSONValue& value) {
  if (value.isNull()) return {};
  if (!value.text()) throw DecodingError{"expected a text"};
  return *value.text();
}

RoadmapFile::Entry decodedEntry(const JSONValue& entry) {
  if (!entry.object()) throw DecodingError{"expected an object"};
  return {decodedMember(entry, "id", decodedId), decodedMember(entry, "title", LocalizedText::decoded),
          decodedMember(entry, "description", decodedOptionalText), decodedMember(entry, "status", decodedStatus)};
}

}  // namespace

bool isOpenForVotes(const RoadmapFeature& feature) { return feature.status != finished; }

std::string statusText(std::string_view status, const TextLookup& texts) {
  for (const auto& [known, english] : statusTexts)
    if (known == status) return texts.text(english);
  return std::string{status};
}

std::size_t statusRank(std::string_view status) {
  const auto known = std::ranges::find(statusTexts, status, [](const auto& entry) { return entry.first; });
  return static_cast<std::size_t>(known - statusTexts.begin());
}

RoadmapFile RoadmapFile::decoded(const JSONValue& file) {
  const JSONValue::Array* list = file.array();
  if (!list) throw DecodingError{"the roadmap: expected a list of features"};
  RoadmapFile result;
  for (const JSONValue& entry : *list)
    result.entries.push_back(decodedAt("the roadmap: feature " + std::to_string(result.entries.size() + 1),
                                       [&entry] { return decodedEntry(entry); }));
  return result;
}

std::vector<RoadmapFeature> RoadmapFile::features(std::string_view languageTag) const {
  std::vector<RoadmapFeature> result;
  for (const Entry& entry : entries) {
    if (std::ranges::find(result, entry.id, &RoadmapFeature::id) != result.end()) continue;
    result.push_back({entry.id, std::string{entry.title.in(languageTag)},
                      std::string{entry.description.in(languageTag)}, entry.status});
  }
  return result;
}

}  // namespace mivo
