// SPDX-License-Identifier: MIT
#pragma once
#include <string_view>

namespace mivo::tally {

/// The text without the blanks and tabs around it, which lists in header fields may have around each part.
inline std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace mivo::tally
