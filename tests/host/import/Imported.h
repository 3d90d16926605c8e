// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <charconv>
#include <string>
#include <string_view>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/dates/DateText.h"
#include "host/import/ImportReader.h"
#include "host/import/ImportText.h"
#include "mivo/store/Print.h"
#include "tests/support/FixedClients.h"

namespace mivo::tests {

inline std::string shortest(double number) {
  std::array<char, 32> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

inline host::ImportSettings berlin(std::optional<WeightUnit> unit = {}, std::optional<host::DateOrder> order = {}) {
  static const auto zone = adapters::loadTimeZone("Europe/Berlin").value();
  return {.zone = zone, .weightUnit = unit, .dateOrder = order};
}

/// A line for each record, "2026-03-01T20:00:00Z 2026-03-02T12:00:00Z 16h tea"; then those refused, and the notes.
inline std::string described(const host::ImportedFile& file) {
  std::string text;
  for (const auto& [fast, note] : file.fasts) {
    text += host::rfc3339(fast.start) + ' ' + (fast.finished ? host::rfc3339(fast.finished->end) : "running") + ' ' +
            shortest(static_cast<double>(fast.goalSeconds) / 3600) + 'h' + (note.empty() ? "" : ' ' + note) + '\n';
  }
  for (const auto& sample : file.weights) text += host::rfc3339(sample.date) + ' ' + shortest(sample.weightInKg) + '\n';
  for (const auto& bad : file.refused.first()) text += describe(bad) + '\n';
  for (const auto& note : importNotes(file, EnglishTexts{}, PlainNumbers{})) text += note + '\n';
  return text;
}

/// The same of a text, fed in pieces of some size; or the fault, and what it asks for.
inline std::string imported(std::string_view content, const host::ImportSettings& settings,
                            std::size_t piece = std::string_view::npos) {
  const CountingUUIDs ids;
  host::ImportReader reader{"a.csv", settings, ids};
  for (std::string_view rest = content; !rest.empty() && reader.wantsMore();
       rest.remove_prefix(std::min(piece, rest.size())))
    reader.feed(rest.substr(0, piece));
  const auto file = reader.finish();
  if (file) return described(*file);
  constexpr std::array<const char*, 3> asked{"", " (order of dates?)", " (unit?)"};
  return describe(file.error().bad) + asked[static_cast<std::size_t>(file.error().asks)] + '\n';
}

}  // namespace mivo::tests
