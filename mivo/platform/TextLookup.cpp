// SPDX-License-Identifier: MIT
#include "mivo/platform/TextLookup.h"

#include <cstddef>

namespace mivo {

std::string filledIn(std::string_view pattern, std::initializer_list<std::string_view> arguments) {
  std::string result;
  result.reserve(pattern.size());
  for (std::size_t index = 0; index < pattern.size(); ++index) {
    const bool isPlace = pattern[index] == '{' && index + 2 < pattern.size() && pattern[index + 2] == '}';
    const int number = isPlace ? pattern[index + 1] - '0' : 0;
    if (number < 1 || static_cast<std::size_t>(number) > arguments.size()) {
      result += pattern[index];
      continue;
    }
    result += arguments.begin()[number - 1];
    index += 2;
  }
  return result;
}

}  // namespace mivo
