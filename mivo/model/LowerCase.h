// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace mivo {

/// Of ASCII letters only, in every locale; all else stays as it is.
constexpr char lowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

inline std::string lowerCase(std::string_view text) {
  std::string result{text};
  std::ranges::transform(result, result.begin(), [](char c) { return lowerCase(c); });
  return result;
}

}  // namespace mivo
