// SPDX-License-Identifier: MIT
#include "mivo/platform/LocalizedText.h"

#include <algorithm>
#include <array>

namespace mivo {

LocalizedText LocalizedText::decoded(const JSONValue& value) {
  if (const std::string* text = value.text()) return {{{"", *text}}};
  const JSONValue::Object* languages = value.object();
  if (!languages || languages->empty()) throw DecodingError{"expected a text, or an object of texts by language"};
  LocalizedText result;
  for (const auto& [language, text] : *languages) {
    if (!text.text()) throw DecodingError{language + ": expected a text"};
    result.byLanguage.emplace_back(language, *text.text());
  }
  return result;
}

std::string_view LocalizedText::in(std::string_view languageTag) const {
  const std::string_view language = languageTag.substr(0, languageTag.find_first_of("-_"));
  for (const std::string_view wanted : std::array{languageTag, language, std::string_view{"en"}}) {
    const auto found = std::ranges::find(byLanguage, wanted, [](const auto& entry) { return entry.first; });
    if (found != byLanguage.end()) return found->second;
  }
  return byLanguage.empty() ? std::string_view{} : byLanguage.front().second;
}

}  // namespace mivo
