// SPDX-License-Identifier: MIT
#pragma once
#include <algorithm>
#include <string_view>

namespace mivo::tally {

/// Whether two texts differ in nothing but the case of ASCII letters.
inline bool equalsIgnoringCase(std::string_view one, std::string_view other) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return std::ranges::equal(one, other, {}, lower, lower);
}

}  // namespace mivo::tally
