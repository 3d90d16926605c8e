// SPDX-License-Identifier: MIT
#include "SettingsModel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "app/bridge/GoalTime.h"
#include "app/bridge/Text.h"
#include "app/bridge/ZoneTime.h"
#include "host/app/Settings.h"
#include "mivo/model/Translatable.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/statistics/CardTexts.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::app {
namespace {

using Flags = DashboardSettingsFeature::State;
using Entity = StreakSettings::CountingEntity;

constexpr int daysOfWeek = 7;

struct Language {
  const char *tag, *name;  // in itself, so that whoever reads only it finds it
};
constexpr std::array<Language, 4> offeredLanguages{
    {{"de", "Deutsch"}, {"en", "English"}, {"es", "Español"}, {"fr", "Français"}}};

const UserDefaults& defaults() { return *dependency(&Dependencies::userDefaults); }

QString text(std::string_view english) { return qString(dependency(&Dependencies::texts)->text(english)); }

std::vector<CardSwitch> cardRows() {
  return {{&Flags::showSummary, text(translatable("Summary"))},
          {&Flags::showDonations, text(translatable("Donations"))},
          {&Flags::showRoadmap, text(translatable("Roadmap"))},
          {&Flags::showWeightLogging, text(translatable("Add weight"))},
          {&Flags::showWeightGoal, text(translatable("Goal weight"))},
          {&Flags::showBadges, text(translatable("Badges"))}};
}

std::vector<CardSwitch> chartRows() {
  return {{&Flags::showFastingChart, text(translatable("Fasting")), {}, QStringLiteral("fasting")},
          {&Flags::showEatingChart, text(translatable("Eating")), {}, QStringLiteral("eating")},
          {&Flags::showWeightChart, text(translatable("Weight")), {}, QStringLiteral("weight")},
          {&Flags::showWeightFastingChart, text(translatable("Weight & fasting hours"))}};
}

std::vector<CardSwitch> trendRows() {
  constexpr std::array flags{&Flags::showTotalFastingHours, &Flags::showTotalEatingHours, &Flags::showAnabolicHours,
                             &Flags::showCatabolicHours,    &Flags::showFatBurningHours,  &Flags::showKetosisHours,
                             &Flags::showDeepKetosisHours};
  static_assert(flags.size() == allFastingZones.size());
  std::vector<CardSwitch> rows;
  for (std::size_t place = 0; place < flags.size(); ++place) {
    const LegacyFastingZone zone = allFastingZones[place];
    rows.push_back({flags[place], zoneName(zone), qString(zoneHours(zone, screenFormatters())), zoneKey(zone)});
  }
  return rows;
}

// Weeks in lists begin on Monday.
int weekdayAt(int place) { return place % daysOfWeek + 1; }
int placeOf(int weekday) { return weekday == 1 ? daysOfWeek : weekday - 1; }

QString weekdayName(int weekday) {
  const Date now = dependency(&Dependencies::date)->now();
  const auto day = dependency(&Dependencies::calendar)->lastMatch({.weekday = weekday}, now);
  return qString(dependency(&Dependencies::dateFormatter)->string(day.value_or(now), "EEEE").value_or(""));
}

}  // namespace

SettingsModel::SettingsModel(std::shared_ptr<host::WeekCalendar> week, About what,
                             std::function<void(host::AppFeature::Action)> sends, QObject* parent)
    : QObject{parent},
      calendar{std::move(week)},
      about{std::move(what)},
      send{std::move(sends)},
      cardSwitches{cardRows(), [this](const Flags& flags) { keepCards(flags); }},
      chartSwitches{chartRows(), [this](const Flags& flags) { keepCards(flags); }},
      trendSwitches{trendRows(), [this](const Flags& flags) { keepCards(flags); }},
      languageAtStart{language()} {}

void SettingsModel::follow(const StatisticsFeature::State& state) {
  cardSwitches.follow(state.dashboardSettings);
  chartSwitches.follow(state.dashboardSettings);
  trendSwitches.follow(state.dashboardSettings);
  streaks = state.streakSettings;
  unit = state.goalWeightCardState.weightUnit;
  Q_EMIT changed();
}

void SettingsModel::tell() {
  send(host::AppFeature::Action::didChangeSettings{});
  Q_EMIT changed();
}

void SettingsModel::keepCards(const Flags& flags) {
  flags.writeToDefaults();
  tell();
}

void SettingsModel::keepStreaks(const StreakSettings& settings) {
  dependency(&Dependencies::appGroupUserDefaults)->setStreakSettings(settings);
  tell();
}

void SettingsModel::setCountsFasts(bool counts) {
  StreakSettings settings = streaks;
  settings.countingEntity = counts ? Entity::fasts : Entity::days;
  keepStreaks(settings);
}

void SettingsModel::setCountsBelowGoal(bool counts) {
  StreakSettings settings = streaks;
  settings.ignoreFastGoal = counts;
  keepStreaks(settings);
}

int SettingsModel::maxBreakHours() const {
  return static_cast<int>(std::clamp<std::int64_t>(streaks.maxBreakHours, leastBreakHours, mostBreakHours));
}

void SettingsModel::setMaxBreakHours(int hours) {
  StreakSettings settings = streaks;
  settings.maxBreakHours = hours;
  keepStreaks(settings);
}

qreal SettingsModel::goalSeconds() const { return static_cast<qreal>(host::goalSeconds(defaults())); }

void SettingsModel::setGoalSeconds(qreal seconds) {
  host::setGoalSeconds(defaults(), std::llround(seconds));
  tell();
}

QString SettingsModel::goal() const { return goalText(goalSeconds()); }

QStringList SettingsModel::weightUnits() const {
  return {text(translatable("Kilograms")), text(translatable("Pounds")), text(translatable("Stones"))};
}

void SettingsModel::setWeightUnit(int place) {
  host::setWeightUnit(defaults(), static_cast<WeightUnit>(place));
  tell();
}

QString SettingsModel::weightUnitText() const { return qString(std::string{weightUnitSign(unit)}); }

QStringList SettingsModel::firstWeekdays() const {
  const std::string usual = dependency(&Dependencies::texts)->text("System ({1})");
  QStringList names{qString(filledIn(usual, {weekdayName(calendar->usualFirstWeekday()).toStdString()}))};
  for (int place = 1; place <= daysOfWeek; ++place) names.append(weekdayName(weekdayAt(place)));
  return names;
}

int SettingsModel::firstWeekday() const {
  const auto chosen = host::firstWeekday(defaults());
  return chosen ? placeOf(*chosen) : 0;
}

void SettingsModel::setFirstWeekday(int place) {
  const auto chosen = place == 0 ? std::nullopt : std::optional{weekdayAt(place)};
  host::setFirstWeekday(defaults(), chosen);
  calendar->choose(chosen);
  tell();
}

QString SettingsModel::firstWeekdayText() const { return weekdayName(calendar->firstWeekday()); }

QStringList SettingsModel::languages() const {
  QStringList names{text(translatable("System"))};
  for (const Language& one : offeredLanguages) names.append(QString::fromUtf8(one.name));
  return names;
}

int SettingsModel::language() const {
  const auto chosen = std::ranges::find(offeredLanguages, host::language(defaults()), &Language::tag);
  return chosen == offeredLanguages.end() ? 0 : static_cast<int>(chosen - offeredLanguages.begin()) + 1;
}

void SettingsModel::setLanguage(int place) {
  host::setLanguage(defaults(), place == 0 ? "" : offeredLanguages.at(static_cast<std::size_t>(place - 1)).tag);
  Q_EMIT changed();
}

QList<UsedLibrary> SettingsModel::libraries() const {
  return {{QStringLiteral("Qt ") + QString::fromLatin1(qVersion()), QStringLiteral("LGPL-3.0")},
          {QStringLiteral("ICU"), QStringLiteral("Unicode-DFS-2016")},
          {QStringLiteral("cctz"), QStringLiteral("Apache-2.0")},
          {QStringLiteral("Boost.Locale"), QStringLiteral("BSL-1.0")},
          {QStringLiteral("SQLite"), text(translatable("Public domain"))},
          {QStringLiteral("SQLiteCpp"), QStringLiteral("MIT")},
          {QStringLiteral("JSON for Modern C++"), QStringLiteral("MIT")},
          {QStringLiteral("libcurl"), QStringLiteral("curl")},
          {QStringLiteral("libcsv"), QStringLiteral("LGPL-2.1")},
          {QStringLiteral("CLI11"), QStringLiteral("BSD-3-Clause")},
          {QStringLiteral("expected"), QStringLiteral("CC0-1.0")},
          {QStringLiteral("Inter"), QStringLiteral("OFL-1.1")}};
}

QString SettingsModel::hoursText(int hours) const { return goalText(hours * secondsPerHour); }

QString SettingsModel::percentText(int percent) const {
  const std::string number = dependency(&Dependencies::numberFormatter)->string(std::int64_t{percent});
  return qString(filledIn(dependency(&Dependencies::texts)->text("{1}%"), {number}));
}

}  // namespace mivo::app
