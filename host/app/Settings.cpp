// SPDX-License-Identifier: MIT
#include "host/app/Settings.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "host/history/FieldRules.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::host {
namespace {

constexpr std::string_view goalWeightKey = "goalWeightInKg", weightUnitKey = "weightUnit",
                           goalSecondsKey = "fastGoalSeconds", languageKey = "language",
                           firstWeekdayKey = "firstWeekday", appearanceKey = "appearance", textScaleKey = "textScale",
                           reducedMotionKey = "reducedMotion", windowSizeKey = "windowSize", windowTabKey = "windowTab";
constexpr std::array<std::string_view, 3> modeNames{"system", "light", "dark"};

}  // namespace

std::optional<double> goalWeight(const UserDefaults& defaults) {
  const double goal = defaults.number(goalWeightKey, 0);
  return goal > 0 ? std::optional{goal} : std::nullopt;
}

void setGoalWeight(const UserDefaults& defaults, std::optional<double> goalInKg) {
  defaults.setValue(goalWeightKey, goalInKg);
}

std::optional<WeightUnit> weightUnit(const UserDefaults& defaults) {
  return weightUnitNamed(defaults.text(weightUnitKey, ""));
}

void setWeightUnit(const UserDefaults& defaults, WeightUnit unit) {
  defaults.setValue(weightUnitKey, std::string{weightUnitSign(unit)});
}

std::int64_t goalSeconds(const UserDefaults& defaults) {
  return std::max<std::int64_t>(0, defaults.integer(goalSecondsKey, defaultGoalSeconds));
}

void setGoalSeconds(const UserDefaults& defaults, std::int64_t seconds) { defaults.setValue(goalSecondsKey, seconds); }

std::string language(const UserDefaults& defaults) { return defaults.text(languageKey, ""); }

void setLanguage(const UserDefaults& defaults, const std::string& tag) { defaults.setValue(languageKey, tag); }

WindowState windowState(const UserDefaults& defaults) {
  return {.size = defaults.text(windowSizeKey, ""), .tab = defaults.text(windowTabKey, "")};
}

void setWindowState(const UserDefaults& defaults, const WindowState& state) {
  const WindowState before = windowState(defaults);
  if (state.size != before.size) defaults.setValue(windowSizeKey, state.size);
  if (state.tab != before.tab) defaults.setValue(windowTabKey, state.tab);
}

std::string openingTab(const std::string& asked, bool isFasting, const std::string& last) {
  if (!asked.empty()) return asked;
  if (isFasting) return "fasting";
  return last == "fasting" || last == "settings" ? last : "statistics";
}

Appearance appearance(const UserDefaults& defaults) {
  const auto* const name = std::ranges::find(modeNames, defaults.text(appearanceKey, modeNames[0]));
  return {
      .mode = name == modeNames.end() ? AppearanceMode::system : static_cast<AppearanceMode>(name - modeNames.begin()),
      .textScale = withinTextScales(defaults.number(textScaleKey, 1)),
      .reducesMotion = defaults.boolean(reducedMotionKey, false)};
}

Appearance overridden(Appearance chosen, const AppearanceOverride& given) {
  return {.mode = given.mode.value_or(chosen.mode),
          .textScale = withinTextScales(given.textScale.value_or(chosen.textScale)),
          .reducesMotion = chosen.reducesMotion || given.still};
}

double withinTextScales(double scale) { return std::clamp(scale, smallestTextScale, largestTextScale); }

void setAppearanceMode(const UserDefaults& defaults, AppearanceMode mode) {
  defaults.setValue(appearanceKey, std::string{modeNames[static_cast<std::size_t>(mode)]});
}

void setTextScale(const UserDefaults& defaults, double scale) { defaults.setValue(textScaleKey, scale); }

void setReducedMotion(const UserDefaults& defaults, bool reduced) { defaults.setValue(reducedMotionKey, reduced); }

std::optional<int> firstWeekday(const UserDefaults& defaults) {
  const std::int64_t weekday = defaults.integer(firstWeekdayKey, 0);
  return weekday >= 1 && weekday <= 7 ? std::optional{static_cast<int>(weekday)} : std::nullopt;
}

void setFirstWeekday(const UserDefaults& defaults, std::optional<int> weekday) {
  defaults.setValue(firstWeekdayKey,
                    weekday ? std::optional<UserDefaults::Value>{std::int64_t{*weekday}} : std::nullopt);
}

}  // namespace mivo::host
