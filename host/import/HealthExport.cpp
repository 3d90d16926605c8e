// SPDX-License-Identifier: MIT
#include "host/import/HealthExport.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <new>
#include <utility>

#include "host/dates/WrittenDate.h"
#include "host/history/FieldRules.h"
#include "host/history/Header.h"
#include "host/history/SameWeighing.h"

namespace mivo::host {
namespace {

constexpr std::string_view root = "<HealthData";
constexpr std::size_t mostWeights = 10'000'000;
constexpr int deepest = 64;

/// The attributes of a record that matter; null where it has none such.
struct Attributes {
  const char* type = nullptr;
  const char* unit = nullptr;
  const char* startDate = nullptr;
  const char* value = nullptr;
};

Attributes attributesOf(const XML_Char** list) {
  Attributes found;
  for (; *list != nullptr; list += 2) {
    const std::string_view name = list[0];
    if (name == "type")
      found.type = list[1];
    else if (name == "unit")
      found.unit = list[1];
    else if (name == "startDate")
      found.startDate = list[1];
    else if (name == "value")
      found.value = list[1];
  }
  return found;
}

struct Unit {
  std::string_view name;
  double kilograms;
};

std::optional<double> kilogramsPerUnit(std::string_view name) {
  static constexpr std::array<Unit, 4> units{
      {{"kg", 1}, {"g", 0.001}, {"lb", kilogramsPer(WeightUnit::pounds)}, {"st", kilogramsPer(WeightUnit::stones)}}};
  const auto* const unit = std::ranges::find(units, name, &Unit::name);
  return unit == units.end() ? std::nullopt : std::optional{unit->kilograms};
}

/// Leaves one of those that several sources have told, and says how many are gone. Ascending by date afterwards.
std::int64_t dropRepeats(std::vector<BodyWeightSample>& weights) {
  std::ranges::stable_sort(weights, {}, &BodyWeightSample::date);
  std::vector<BodyWeightSample> kept;
  kept.reserve(weights.size());
  for (const BodyWeightSample& sample : weights)
    if (!isAmongItsMinute(sample, kept.rbegin(), kept.rend())) kept.push_back(sample);
  weights.swap(kept);
  return static_cast<std::int64_t>(kept.size() - weights.size());
}

// Newer releases of the parser have other names for these, which the older ones lack.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
auto currentLine(XML_Parser xml) { return XML_GetCurrentLineNumber(xml); }

/// Negative where the parser waits for more.
auto currentByte(XML_Parser xml) { return XML_GetCurrentByteIndex(xml); }
#pragma GCC diagnostic pop

}  // namespace

std::optional<std::size_t> rootElement(std::string_view beginning) {
  const auto beginsName = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
  for (std::size_t at = beginning.find('<'); at != std::string_view::npos; at = beginning.find('<', at + 1))
    if (at + 1 < beginning.size() && beginsName(beginning[at + 1])) return at;
  return std::nullopt;
}

bool isHealthExport(std::string_view fromRoot) {
  if (!fromRoot.starts_with(root)) return false;
  const std::string_view rest = fromRoot.substr(root.size());
  return rest.empty() || std::string_view{" \t\r\n/>"}.find(rest.front()) != std::string_view::npos;
}

struct HealthExport::Parser {
  Parser(std::string fileName, std::int64_t firstLine, ImportSettings importSettings, const UUIDGenerator& uuids)
      : linesBefore{firstLine - 1},
        settings{std::move(importSettings)},
        ids{uuids},
        file{.name = std::move(fileName), .kind = ImportKind::healthExport},
        xml{XML_ParserCreate("UTF-8")} {
    if (xml == nullptr) throw std::bad_alloc{};
    XML_SetUserData(xml, this);
    XML_SetElementHandler(
        xml,
        [](void* parser, const XML_Char* name, const XML_Char** attributes) {
          static_cast<Parser*>(parser)->element(name, attributes);
        },
        [](void* parser, const XML_Char*) { --static_cast<Parser*>(parser)->depth; });
  }
  ~Parser() { XML_ParserFree(xml); }
  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;

  void element(const char* name, const char** attributes) {
    if (++depth > deepest) return stop("expected elements in at most 64 others");
    if (std::strcmp(name, "Record") != 0) return;
    const Attributes found = attributesOf(attributes);
    if (found.type == nullptr || std::strcmp(found.type, "HKQuantityTypeIdentifierBodyMass") != 0) return;
    bodyMass(found);
  }

  void bodyMass(const Attributes& found) {
    const auto date = found.startDate ? readWrittenDate(found.startDate) : std::nullopt;
    const auto text = date ? ordered(*date, DateOrder::dayFirst) : std::nullopt;
    const auto when = text && text->hasTime ? instant(*text, *settings.zone) : std::nullopt;
    if (!when) return refuse("startDate", found.startDate, expectedDate);
    const auto perUnit = kilogramsPerUnit(found.unit ? found.unit : "");
    if (!perUnit) return refuse("unit", found.unit, "expected kg, g, lb or st");
    const auto number = decimalNumber(found.value ? found.value : "", false);
    if (!number || !isBodyWeight(*number * *perUnit)) return refuse("value", found.value, expectedWeight);
    if (file.weights.size() >= mostWeights) return stop("expected at most 10000000 weighings");
    file.weights.push_back({ids.next(), *when, *number * *perUnit});
  }

  void refuse(const char* attribute, const char* value, std::string_view reason) {
    if (file.refused.first().size() == RefusedRecords::mostKept) return file.refused.addUnseen(1);
    BadRecord bad = here(std::string{reason});
    bad.column = attribute;
    bad.value = quotable(value ? value : "");
    file.refused.add(std::move(bad));
  }

  void stop(std::string reason) {
    if (!fault) fault = ImportFault{here(std::move(reason))};
    XML_StopParser(xml, XML_FALSE);
  }

  BadRecord here(std::string reason) const {
    const auto line = linesBefore + static_cast<std::int64_t>(currentLine(xml));
    return {.file = file.name, .line = line, .reason = std::move(reason)};
  }

  std::optional<ImportFault> parse(std::string_view piece, bool isFinal) {
    const bool isWellFormed = XML_Parse(xml, piece.data(), static_cast<int>(piece.size()), isFinal) == XML_STATUS_OK;
    if (fault) return fault;
    if (!isWellFormed && isFinal) return ImportFault{here("expected </HealthData>, found the end of the file")};
    if (!isWellFormed)
      return ImportFault{here(std::string{"expected well-formed XML: "} + XML_ErrorString(XML_GetErrorCode(xml)))};
    fed += piece.size();
    if (const auto at = currentByte(xml); at >= 0) reached = static_cast<std::size_t>(at);
    if (!isFinal && fed > reached + longestElementInBytes)
      return ImportFault{here("expected elements of at most 1 MiB")};
    return std::nullopt;
  }

  std::int64_t linesBefore;
  ImportSettings settings;
  const UUIDGenerator& ids;
  ImportedFile file;
  XML_Parser xml;
  int depth = 0;
  std::size_t fed = 0, reached = 0;  // bytes
  std::optional<ImportFault> fault;
};

HealthExport::HealthExport(std::string file, std::int64_t firstLine, ImportSettings settings, const UUIDGenerator& ids)
    : parser{std::make_unique<Parser>(std::move(file), firstLine, std::move(settings), ids)} {}

HealthExport::~HealthExport() = default;
HealthExport::HealthExport(HealthExport&&) noexcept = default;
HealthExport& HealthExport::operator=(HealthExport&&) noexcept = default;

std::optional<ImportFault> HealthExport::feed(std::string_view piece) {
  constexpr std::size_t mostAtOnce = std::size_t{1} << 16;
  for (; !piece.empty(); piece.remove_prefix(std::min(mostAtOnce, piece.size())))
    if (auto fault = parser->parse(piece.substr(0, mostAtOnce), false)) return fault;
  return std::nullopt;
}

tl::expected<ImportedFile, ImportFault> HealthExport::finish() {
  if (auto fault = parser->parse({}, true)) return tl::unexpected{std::move(*fault)};
  parser->file.notes.toldTwice = dropRepeats(parser->file.weights);
  return std::move(parser->file);
}

}  // namespace mivo::host
