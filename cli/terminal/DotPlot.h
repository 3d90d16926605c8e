// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace mivo::cli {

/// A line chart of Braille characters, two dots wide and four high a character.
class DotPlot {
 public:
  DotPlot(int widthInColumns, int heightInLines);

  /// Coordinates from 0 to 1, from the lower left corner; what lies outside is not drawn.
  void point(double x, double y);
  void line(double fromX, double fromY, double toX, double toY);

  /// From top to bottom, each exactly as wide as the plot.
  std::vector<std::string> lines() const;

 private:
  std::size_t index(long row, long column) const;

  int width, height;  // in dots
  std::vector<bool> dots;
};

}  // namespace mivo::cli
