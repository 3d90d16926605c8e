// SPDX-License-Identifier: MIT
#include "host/app/Screens.h"

#include <algorithm>
#include <cstddef>

namespace mivo::host {
namespace {

using enum Screen;
using enum ScreenKind;

struct Row {
  Screen screen;
  std::string_view rawValue;
  ScreenKind kind;
  Screen below;  // itself for a tab
};

constexpr std::array<Row, screenCount> rows{{{statistics, "statistics", tab, statistics},
                                             {badges, "badges", page, statistics},
                                             {milestones, "milestones", page, badges},
                                             {streaks, "streaks", page, badges},
                                             {roadmap, "roadmap", page, statistics},
                                             {feedback, "feedback", sheet, roadmap},
                                             {donations, "donations", sheet, statistics},
                                             {overlaps, "overlaps", sheet, statistics},
                                             {goalWeight, "goalWeight", sheet, statistics},
                                             {weights, "weights", page, statistics},
                                             {editWeight, "editWeight", sheet, weights},
                                             {weightMenu, "weightMenu", sheet, weights},
                                             {date, "date", sheet, statistics},
                                             {table, "table", sheet, statistics},
                                             {fasting, "fasting", tab, fasting},
                                             {editFast, "editFast", sheet, fasting},
                                             {addFast, "addFast", sheet, fasting},
                                             {severalFasts, "severalFasts", sheet, fasting},
                                             {fastGoal, "fastGoal", sheet, fasting},
                                             {fastStart, "fastStart", sheet, fasting},
                                             {fastMenu, "fastMenu", sheet, fasting},
                                             {months, "months", sheet, fasting},
                                             {settings, "settings", tab, settings},
                                             {cards, "cards", page, settings},
                                             {reminders, "reminders", page, settings},
                                             {eatingWindow, "eatingWindow", sheet, reminders},
                                             {about, "about", page, settings},
                                             {importing, "import", sheet, settings},
                                             {exporting, "export", sheet, settings},
                                             {health, "health", sheet, settings},
                                             {backups, "backups", page, settings},
                                             {restoring, "restore", sheet, backups},
                                             {firstWeekday, "firstWeekday", sheet, settings},
                                             {defaultGoal, "defaultGoal", sheet, settings},
                                             {weightUnit, "weightUnit", sheet, settings},
                                             {language, "language", sheet, settings},
                                             {appearance, "appearance", sheet, settings}}};

constexpr const Row& row(Screen screen) { return rows[static_cast<std::size_t>(screen)]; }

constexpr bool areInOrder() {
  return std::ranges::all_of(rows, [](const Row& one) { return &row(one.screen) == &one; });
}
static_assert(areInOrder());

}  // namespace

std::string_view rawValue(Screen screen) { return row(screen).rawValue; }

std::optional<Screen> screenFrom(std::string_view rawValue) {
  const auto* const found = std::ranges::find(rows, rawValue, &Row::rawValue);
  return found == rows.end() ? std::nullopt : std::optional{found->screen};
}

std::array<Screen, screenCount> allScreens() {
  std::array<Screen, screenCount> all{};
  std::ranges::transform(rows, all.begin(), &Row::screen);
  return all;
}

ScreenKind kindOf(Screen screen) { return row(screen).kind; }

std::optional<Screen> screenBelow(Screen screen) {
  return kindOf(screen) == tab ? std::nullopt : std::optional{row(screen).below};
}

Screen tabOf(Screen screen) {
  while (const auto below = screenBelow(screen)) screen = *below;
  return screen;
}

bool standsOn(Screen screen, Screen base) {
  for (std::optional<Screen> at = screen; at; at = screenBelow(*at))
    if (*at == base) return true;
  return false;
}

}  // namespace mivo::host
