// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/app/AppFeature.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// What the settings page is made of.
struct SettingsFacts {
  std::int64_t goalSeconds = 0;
  WeightUnit weightUnit = WeightUnit::kilograms;  ///< in force, chosen or the locale's
  std::optional<int> chosenWeekday = {};          ///< 1 = Sunday to 7 = Saturday
  int usualWeekday = 2;                           ///< the locale's
  std::string language = {};                      ///< as chosen; empty for the system's
  Appearance appearance = {};
  std::string linkedHealth = {};  ///< the linked file, as `linkedFileText` says it
  std::string newestBackup = {};  ///< when that was made, as `newestBackupText` says it
  std::string version = {};
  bool operator==(const SettingsFacts&) const = default;
};

/// One of a few to choose.
struct Choice {
  std::string title;
  std::vector<std::string> options;
  std::int64_t chosen = 0;  ///< its place
  std::string value;        ///< what is in force, as the row says it: "kg"
  bool operator==(const Choice&) const = default;
};

template <RecordOf<Choice> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, options, chosen, value] = record;
  visit("title", title);
  visit("options", options);
  visit("chosen", chosen);
  visit("value", value);
}

/// A number between minus and plus. What it reads while it changes, `percentText` and `hoursText` say.
struct Steps {
  std::string title = {};
  std::int64_t value = 0, least = 0, most = 0, step = 1;
  bool operator==(const Steps&) const = default;
};

template <RecordOf<Steps> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, value, least, most, step] = record;
  visit("title", title);
  visit("value", value);
  visit("least", least);
  visit("most", most);
  visit("step", step);
}

/// What the user can choose for the whole app.
struct SettingsPage {
  std::string title;       ///< "Settings"
  std::string cardsLabel;  ///< leads to the cards of the statistics
  std::string general;     ///< over the rest
  std::string goalLabel;   ///< "Goal"
  std::string goal;        ///< "16h", of the fasts to come
  double goalSeconds = 0;
  Choice weightUnit, firstWeekday, language, appearance;
  Steps textSize;  ///< in percent
  std::string reducedMotionLabel;
  bool reducesMotion = false;
  std::string data;  ///< over what is done with the records as a whole
  std::string importLabel;
  std::string healthLabel;   ///< "Health data"; none where no file can be linked
  std::string linkedHealth;  ///< "export.zip"
  std::string exportLabel, backupsLabel;
  std::string newestBackup;  ///< "Today, 03:00"
  std::string dataNote;
  std::string aboutLabel;  ///< leads to what the app is
  std::string version;
  bool operator==(const SettingsPage&) const = default;
};

template <RecordOf<SettingsPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, cardsLabel, general, goalLabel, goal, goalSeconds, weightUnit, firstWeekday, language, appearance,
         textSize, reducedMotionLabel, reducesMotion, data, importLabel, healthLabel, linkedHealth, exportLabel,
         backupsLabel, newestBackup, dataNote, aboutLabel, version] = record;
  visit("title", title);
  visit("cardsLabel", cardsLabel);
  visit("general", general);
  visit("goalLabel", goalLabel);
  visit("goal", goal);
  visit("goalSeconds", goalSeconds);
  visit("weightUnit", weightUnit);
  visit("firstWeekday", firstWeekday);
  visit("language", language);
  visit("appearance", appearance);
  visit("textSize", textSize);
  visit("reducedMotionLabel", reducedMotionLabel);
  visit("reducesMotion", reducesMotion);
  visit("data", data);
  visit("importLabel", importLabel);
  visit("healthLabel", healthLabel);
  visit("linkedHealth", linkedHealth);
  visit("exportLabel", exportLabel);
  visit("backupsLabel", backupsLabel);
  visit("newestBackup", newestBackup);
  visit("dataNote", dataNote);
  visit("aboutLabel", aboutLabel);
  visit("version", version);
}

SettingsFacts settingsFacts(const AppFeature::State& state, int usualWeekday, std::string version,
                            const PageClients& clients);

SettingsPage composeSettings(const SettingsFacts& facts, const PageClients& clients);

// What a place in a choice of the page means.

WeightUnit weightUnitAt(std::int64_t place);
std::optional<int> weekdayAt(std::int64_t place);  ///< nothing for the locale's
std::string languageAt(std::int64_t place);        ///< its tag; empty for the system's
AppearanceMode appearanceModeAt(std::int64_t place);

/// "115%", "24h": what the number of `Steps` reads, in the user's language.
std::string percentText(std::int64_t percent, const PageClients& clients);
std::string hoursText(std::int64_t hours, const PageClients& clients);

}  // namespace mivo::host
