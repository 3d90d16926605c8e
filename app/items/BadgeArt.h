// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include "mivo/achievements/Badges.h"

namespace mivo::app {

/// Where a badge's number stands on the grid of 96, and how it looks.
struct BadgeNumber {
  QString text;
  double size = 0;    ///< of the type, on the grid
  double middle = 0;  ///< y of its middle
  QString color;      ///< "#RRGGBB"
};

/// A badge as a picture without its number (type is set by the painter), on a grid of 96, and the number.
struct BadgeArt {
  QByteArray svg;
  BadgeNumber number;
};

BadgeArt badgeArt(const MilestoneBadge& badge, const QString& number, bool dark);
BadgeArt badgeArt(const StreakBadge& badge, const QString& number, bool dark);

}  // namespace mivo::app
