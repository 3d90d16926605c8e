// SPDX-License-Identifier: MIT
#include "host/app/Settings.h"

#include <algorithm>
#include <string_view>

#include "host/history/FieldRules.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::host {
namespace {

constexpr std::string_view goalWeightKey = "goalWeightInKg", weightUnitKey = "weightUnit",
                           goalSecondsKey = "fastGoalSeconds", languageKey = "language",
                           firstWeekdayKey = "firstWeekday";

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

std::optional<int> firstWeekday(const UserDefaults& defaults) {
  const std::int64_t weekday = defaults.integer(firstWeekdayKey, 0);
  return weekday >= 1 && weekday <= 7 ? std::optional{static_cast<int>(weekday)} : std::nullopt;
}

void setFirstWeekday(const UserDefaults& defaults, std::optional<int> weekday) {
  defaults.setValue(firstWeekdayKey,
                    weekday ? std::optional<UserDefaults::Value>{std::int64_t{*weekday}} : std::nullopt);
}

}  // namespace mivo::host
