// SPDX-License-Identifier: MIT
#include "cli/terminal/DotPlot.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mivo::cli {
namespace {

constexpr int dotsWide = 2, dotsHigh = 4;

/// The bit of a dot in U+2800 to U+28FF, by line and column.
constexpr std::array<std::array<int, dotsWide>, dotsHigh> bits{
    {{0x01, 0x08}, {0x02, 0x10}, {0x04, 0x20}, {0x40, 0x80}}};

std::string braille(int pattern) {
  return {static_cast<char>(0xE2), static_cast<char>(0xA0 | pattern >> 6), static_cast<char>(0x80 | (pattern & 0x3F))};
}

}  // namespace

DotPlot::DotPlot(int widthInColumns, int heightInLines)
    : width{widthInColumns * dotsWide},
      height{heightInLines * dotsHigh},
      dots(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

std::size_t DotPlot::index(long row, long column) const { return static_cast<std::size_t>(row * width + column); }

void DotPlot::point(double x, double y) {
  if (!(x >= 0 && x <= 1 && y >= 0 && y <= 1)) return;
  const auto column = std::lround(x * (width - 1)), row = std::lround((1 - y) * (height - 1));
  dots[index(row, column)] = true;
}

void DotPlot::line(double fromX, double fromY, double toX, double toY) {
  const double steps = std::ceil(std::max(std::abs(toX - fromX) * width, std::abs(toY - fromY) * height));
  if (!(steps < 2.0 * (width + height))) return point(toX, toY);
  for (double step = 0; step <= steps; ++step) {
    const double along = steps > 0 ? step / steps : 0;
    point(fromX + (toX - fromX) * along, fromY + (toY - fromY) * along);
  }
}

std::vector<std::string> DotPlot::lines() const {
  std::vector<std::string> result;
  for (int top = 0; top < height; top += dotsHigh) {
    std::string& text = result.emplace_back();
    for (int left = 0; left < width; left += dotsWide) {
      int pattern = 0;
      for (int row = 0; row < dotsHigh; ++row)
        for (int column = 0; column < dotsWide; ++column)
          if (dots[index(top + row, left + column)])
            pattern |= bits[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
      text += pattern == 0 ? " " : braille(pattern);
    }
  }
  return result;
}

}  // namespace mivo::cli
