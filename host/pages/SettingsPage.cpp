// SPDX-License-Identifier: MIT
#include "host/pages/SettingsPage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "host/pages/BackupsPage.h"
#include "host/pages/HealthSheet.h"
#include "mivo/fasting/GoalTime.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::host {
namespace {

constexpr int daysOfWeek = 7;
constexpr std::int64_t textSizeStep = 5;

constexpr std::array<std::string_view, 3> unitTitles{translatable("Kilograms"), translatable("Pounds"),
                                                     translatable("Stones")};
constexpr std::array<std::string_view, 3> modeTitles{translatable("System"), translatable("Light"),
                                                     translatable("Dark")};

struct Language {
  std::string_view tag, name;  // in itself, so that whoever reads only it finds it
};
constexpr std::array<Language, 4> offeredLanguages{
    {{"de", "Deutsch"}, {"en", "English"}, {"es", "Español"}, {"fr", "Français"}}};

// Weeks in lists begin on Monday.
int weekdayOfRow(std::int64_t row) { return static_cast<int>(row % daysOfWeek) + 1; }
std::int64_t rowOfWeekday(int weekday) { return weekday == 1 ? daysOfWeek : weekday - 1; }

std::string weekdayName(int weekday, const PageClients& clients) {
  const auto day = clients.calendar.lastMatch({.weekday = weekday}, clients.now);
  return clients.dates.string(day.value_or(clients.now), "EEEE").value_or("");
}

template <class Titles>
std::vector<std::string> lookedUp(const Titles& titles, const TextLookup& texts) {
  std::vector<std::string> all;
  all.reserve(std::size(titles));
  for (const std::string_view title : titles) all.push_back(texts.text(title));
  return all;
}

std::int64_t percent(double scale) { return std::llround(scale * 100); }

Choice weightUnitChoice(const SettingsFacts& facts, const TextLookup& texts) {
  return {.title = texts.text("Weight unit"),
          .options = lookedUp(unitTitles, texts),
          .chosen = static_cast<std::int64_t>(facts.weightUnit),
          .value = std::string{weightUnitSign(facts.weightUnit)}};
}

Choice weekdayChoice(const SettingsFacts& facts, const PageClients& clients) {
  const std::string usual = weekdayName(facts.usualWeekday, clients);
  Choice choice{.title = clients.texts.text("First weekday"),
                .options = {filledIn(clients.texts.text("System ({1})"), {usual})},
                .chosen = facts.chosenWeekday ? rowOfWeekday(*facts.chosenWeekday) : 0,
                .value = {}};
  for (int row = 1; row <= daysOfWeek; ++row) choice.options.push_back(weekdayName(weekdayOfRow(row), clients));
  choice.value = choice.chosen == 0 ? usual : choice.options[static_cast<std::size_t>(choice.chosen)];
  return choice;
}

Choice languageChoice(const SettingsFacts& facts, const TextLookup& texts) {
  Choice choice{.title = texts.text("Language"), .options = {texts.text("System")}, .chosen = 0, .value = {}};
  for (const Language& one : offeredLanguages) {
    if (one.tag == facts.language) choice.chosen = static_cast<std::int64_t>(choice.options.size());
    choice.options.emplace_back(one.name);
  }
  choice.value = choice.options[static_cast<std::size_t>(choice.chosen)];
  return choice;
}

Choice appearanceChoice(const SettingsFacts& facts, const TextLookup& texts) {
  Choice choice{.title = texts.text("Appearance"),
                .options = lookedUp(modeTitles, texts),
                .chosen = static_cast<std::int64_t>(facts.appearance.mode),
                .value = {}};
  choice.value = choice.options[static_cast<std::size_t>(choice.chosen)];
  return choice;
}

}  // namespace

SettingsFacts settingsFacts(const AppFeature::State& state, int usualWeekday, std::string version,
                            const PageClients& clients) {
  return {.goalSeconds = state.nextGoalSeconds,
          .weightUnit = state.statistics.goalWeightCardState.weightUnit,
          .chosenWeekday = state.settings.firstWeekday,
          .usualWeekday = usualWeekday,
          .language = state.settings.language,
          .appearance = state.settings.appearance,
          .linkedHealth = linkedFileText(state.health, clients.texts),
          .newestBackup = newestBackupText(state.backups, clients),
          .version = std::move(version)};
}

SettingsPage composeSettings(const SettingsFacts& facts, const PageClients& clients) {
  const auto& texts = clients.texts;
  const auto goalSeconds = static_cast<double>(facts.goalSeconds);
  return {.title = texts.text("Settings"),
          .cardsLabel = texts.text("Statistics and Fasting Zones"),
          .general = texts.text("General"),
          .goalLabel = texts.text("Goal"),
          .goal = goalText(goalSeconds, clients.hour, clients.hourMin),
          .goalSeconds = goalSeconds,
          .weightUnit = weightUnitChoice(facts, texts),
          .firstWeekday = weekdayChoice(facts, clients),
          .language = languageChoice(facts, texts),
          .appearance = appearanceChoice(facts, texts),
          .textSize = {.title = texts.text("Text size"),
                       .value = percent(facts.appearance.textScale),
                       .least = percent(smallestTextScale),
                       .most = percent(largestTextScale),
                       .step = textSizeStep},
          .reducedMotionLabel = texts.text("Reduced motion"),
          .reducesMotion = facts.appearance.reducesMotion,
          .data = texts.text("Data"),
          .importLabel = texts.text("Import"),
          .healthLabel = facts.linkedHealth.empty() ? "" : texts.text("Health data"),
          .linkedHealth = facts.linkedHealth,
          .exportLabel = texts.text("Export"),
          .backupsLabel = texts.text("Backups"),
          .newestBackup = facts.newestBackup,
          .dataNote = texts.text("Everything stays on this device."),
          .aboutLabel = texts.text("About Mivo"),
          .version = facts.version};
}

WeightUnit weightUnitAt(std::int64_t place) { return static_cast<WeightUnit>(place); }

std::optional<int> weekdayAt(std::int64_t place) {
  return place == 0 ? std::nullopt : std::optional{weekdayOfRow(place)};
}

std::string languageAt(std::int64_t place) {
  return place == 0 ? std::string{} : std::string{offeredLanguages.at(static_cast<std::size_t>(place - 1)).tag};
}

AppearanceMode appearanceModeAt(std::int64_t place) { return static_cast<AppearanceMode>(place); }

std::string percentText(std::int64_t percent, const PageClients& clients) {
  return filledIn(clients.texts.text("{1}%"), {clients.numbers.string(percent)});
}

std::string hoursText(std::int64_t hours, const PageClients& clients) {
  return goalText(static_cast<double>(hours) * secondsPerHour, clients.hour, clients.hourMin);
}

}  // namespace mivo::host
