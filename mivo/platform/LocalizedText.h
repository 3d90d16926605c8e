// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "mivo/platform/JSONValue.h"

namespace mivo {

/// A text that a file brings in one language or in several.
///
///     "Weekly plan"   or   {"en": "Weekly plan", "de": "Wochenplan", "pt-BR": "Plano semanal"}
struct LocalizedText {
  /// In the file's order; under no language where the file has only one text.
  std::vector<std::pair<std::string, std::string>> byLanguage;

  /// Throws DecodingError.
  static LocalizedText decoded(const JSONValue& value);

  /// The text for a language tag, for its language without the region, in English, or else the file's first.
  std::string_view in(std::string_view languageTag) const;

  bool operator==(const LocalizedText&) const = default;
};

}  // namespace mivo
