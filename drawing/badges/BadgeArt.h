// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace mivo::drawing {

/// Where a badge's number stands on the grid of 96, and how it looks.
struct BadgeNumber {
  std::string text;
  double size = 0;         ///< of the type, on the grid
  double middle = 0;       ///< y of its middle
  std::string color = {};  ///< "#RRGGBB"
};

/// A badge as an SVG picture without its number (type is set by the painter), on a grid of 96, and the number.
struct BadgeArt {
  std::string svg;
  BadgeNumber number;
};

inline constexpr double badgeGrid = 96;
/// Below it, in points, a badge is drawn without its number.
inline constexpr double smallestBadgeWithNumber = 48;

enum class BadgeShape { milestone, streak };

/// threshold  of the badge: its shape's colours and marks follow from it, and whether it is earned from the count.
/// number     the threshold as the user's locale writes it; longer ones are set smaller.
BadgeArt badgeArt(BadgeShape shape, std::int64_t threshold, std::int64_t count, const std::string& number, bool dark);

}  // namespace mivo::drawing
