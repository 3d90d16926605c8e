// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace mivo::host {

/// What can be open: the page of a tab, a page that is pushed over it, a sheet over either. Each but a tab stands over
/// one other, so that the innermost that is open tells of all.
enum class Screen {
  statistics,
  badges,
  milestones,
  streaks,
  roadmap,
  feedback,
  donations,
  overlaps,
  goalWeight,
  weights,
  editWeight,
  weightMenu,
  date,
  table,
  fasting,
  editFast,
  addFast,
  severalFasts,
  fastGoal,
  fastStart,
  fastMenu,
  months,
  settings,
  cards,
  reminders,
  eatingWindow,
  about,
  importing,
  exporting,
  health,
  backups,
  restoring,
  firstWeekday,
  defaultGoal,
  weightUnit,
  language,
  appearance
};

enum class ScreenKind { tab, page, sheet };

inline constexpr std::size_t screenCount = static_cast<std::size_t>(Screen::appearance) + 1;

/// "editFast": by which it is asked for and told.
std::string_view rawValue(Screen screen);
std::optional<Screen> screenFrom(std::string_view rawValue);
std::array<Screen, screenCount> allScreens();

ScreenKind kindOf(Screen screen);
/// What it stands over; nothing for a tab.
std::optional<Screen> screenBelow(Screen screen);
Screen tabOf(Screen screen);
/// Whether `screen` is `base`, or stands over it.
bool standsOn(Screen screen, Screen base);

}  // namespace mivo::host
