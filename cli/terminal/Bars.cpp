// SPDX-License-Identifier: MIT
#include "cli/terminal/Bars.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace mivo::cli {

std::string bar(double fraction, int width) {
  static constexpr std::array<std::string_view, 8> ends{"", "▏", "▎", "▍", "▌", "▋", "▊", "▉"};
  if (!(fraction > 0)) return {};
  const auto eighths = std::max(std::lround(std::min(fraction, 1.0) * width * 8), 1L);
  std::string result;
  for (long column = 0; column < eighths / 8; ++column) result += "█";
  return result + std::string{ends[static_cast<std::size_t>(eighths % 8)]};
}

}  // namespace mivo::cli
