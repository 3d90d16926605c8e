// SPDX-License-Identifier: MIT
#include "drawing/badges/BadgeArt.h"
#include "web/drawing/Exchange.h"

extern "C" {

/// The size of the number's type and y of its middle; its colour, and behind a line break the picture.
[[clang::export_name("badge")]] const mivo::web::Answer* mivoBadge(bool isStreak, double threshold, bool isEarned,
                                                                   bool isDark, const char* number, std::size_t size) {
  using namespace mivo::drawing;
  const auto whole = static_cast<std::int64_t>(threshold);
  const BadgeArt art = badgeArt(isStreak ? BadgeShape::streak : BadgeShape::milestone, whole, isEarned ? whole : 0,
                                {number, size}, isDark);
  return mivo::web::answer({art.number.size, art.number.middle}, art.number.color + '\n' + art.svg);
}
}
