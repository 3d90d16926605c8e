// SPDX-License-Identifier: MIT
#include "cli/options/OptionValues.h"

#include <array>
#include <charconv>

namespace mivo::cli {

Read<bool> readFormat(std::string_view text) {
  constexpr std::array<Choice<bool>, 2> formats{{{"text", false}, {"json", true}}};
  return readChoice<bool>("--format", "expected text or json", formats, text);
}

Read<std::int64_t> readNumber(std::string_view option, std::string_view expected, std::string_view text,
                              std::int64_t low, std::int64_t high) {
  std::int64_t value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc{} || read.ptr != text.data() + text.size() || value < low || value > high)
    return wrong(option, expected, text);
  return value;
}

}  // namespace mivo::cli
