// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "mivo/model/Record.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

// The host's own settings in the user's defaults, beside those that the module reads itself.

/// The weight that the user is heading for, in kilograms.
std::optional<double> goalWeight(const UserDefaults& defaults);
void setGoalWeight(const UserDefaults& defaults, std::optional<double> goalInKg);

/// Nothing where the user never chose one: the locale decides then.
std::optional<WeightUnit> weightUnit(const UserDefaults& defaults);
void setWeightUnit(const UserDefaults& defaults, WeightUnit unit);

/// How long the next fast is meant to be, in seconds: the last choice, 16 hours at first.
std::int64_t goalSeconds(const UserDefaults& defaults);
void setGoalSeconds(const UserDefaults& defaults, std::int64_t seconds);

/// The language tag that the user chose, in force from the next start; empty where the system decides.
std::string language(const UserDefaults& defaults);
void setLanguage(const UserDefaults& defaults, const std::string& tag);

/// How the window was when it closed.
struct WindowState {
  std::string size;  ///< "390x844", in points; empty before the first time
  std::string tab;   ///< "fasting", "statistics" or "settings"
  bool operator==(const WindowState&) const = default;
};

WindowState windowState(const UserDefaults& defaults);
void setWindowState(const UserDefaults& defaults, const WindowState& state);

/// The tab that the app opens on: the one that was asked for; else the running fast, where there is one; else the last
/// one.
std::string openingTab(const std::string& asked, bool isFasting, const std::string& last);

enum class AppearanceMode { system, light, dark };

/// How the screens are to look.
struct Appearance {
  AppearanceMode mode = AppearanceMode::system;
  double textScale = 1;  ///< 0.85 to 2
  bool reducesMotion = false;
  bool operator==(const Appearance&) const = default;
};

template <RecordOf<Appearance> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [mode, textScale, reducesMotion] = record;
  visit("mode", mode);
  visit("textScale", textScale);
  visit("reducesMotion", reducesMotion);
}

inline constexpr double smallestTextScale = 0.85, largestTextScale = 2;

/// The nearest scale within these.
double withinTextScales(double scale);

Appearance appearance(const UserDefaults& defaults);

/// What holds for this run instead of what was chosen; mode and scale until another is.
struct AppearanceOverride {
  std::optional<AppearanceMode> mode = {};
  std::optional<double> textScale = {};
  bool still = false;  ///< nothing moves
  bool operator==(const AppearanceOverride&) const = default;
};

Appearance overridden(Appearance chosen, const AppearanceOverride& given);

void setAppearanceMode(const UserDefaults& defaults, AppearanceMode mode);
void setTextScale(const UserDefaults& defaults, double scale);
void setReducedMotion(const UserDefaults& defaults, bool reduced);

/// What weeks begin with, 1 = Sunday to 7 = Saturday; nothing where the locale decides.
std::optional<int> firstWeekday(const UserDefaults& defaults);
void setFirstWeekday(const UserDefaults& defaults, std::optional<int> weekday);

}  // namespace mivo::host
