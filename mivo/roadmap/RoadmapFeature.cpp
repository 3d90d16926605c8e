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

// What a terminal takes for a command: the control characters of ASCII but line feed and tab, and those of Unicode,
// which UTF-8 writes as 0xC2 and 0x80 to 0x9F.
bool hasControlCharacter(std::string_view text) {
  for (std::size_t index = 0; index < text.size(); ++index) {
    const auto byte = static_cast<unsigned char>(text[index]);
    const auto next = index + 1 < text.size() ? static_cast<unsigned char>(text[index + 1]) : 0;
    if (byte == 0x7f || (byte < 0x20 && byte != '\n' && byte != '\t')) return true;
    if (byte == 0xc2 && next >= 0x80 && next <= 0x9f) return true;
  }
  return false;
}

std::string printable(std::string text) {
  if (hasControlCharacter(text)) throw DecodingError{"expected a text without control characters"};
  return text;
}

std::string decodedId(const JSONValue& value) {
  if (const auto number = value.whole()) return std::to_string(*number);
  if (!value.text() || value.text()->empty()) throw DecodingError{"expected a text or a whole number"};
  // The id ends the path of an address, and must not end it earlier or lead elsewhere.
  if (value.text()->find_first_of("/?#&=%\\ \n\t") != std::string::npos)
    throw DecodingError{"expected an id without blanks and /, ?, #, &, =, %, \\, which mean something in an address"};
  return printable(*value.text());
}

LocalizedText decodedText(const JSONValue& value) {
  auto result = LocalizedText::decoded(value);
  for (auto& [language, text] : result.byLanguage) text = printable(std::move(text));
  return result;
}

LocalizedText decodedOptionalText(const JSONValue& value) {
  return value.isNull() ? LocalizedText{} : decodedText(value);
}

std::string decodedStatus(const JSONValue& value) {
  if (value.isNull()) return {};
  if (!value.text()) throw DecodingError{"expected a text"};
  return printable(*value.text());
}

RoadmapFile::Entry decodedEntry(const JSONValue& entry) {
  if (!entry.object()) throw DecodingError{"expected an object"};
  return {decodedMember(entry, "id", decodedId), decodedMember(entry, "title", decodedText),
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
