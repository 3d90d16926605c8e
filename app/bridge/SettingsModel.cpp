// SPDX-License-Identifier: MIT
#include "SettingsModel.h"

#include <cmath>
#include <utility>

namespace mivo::app {

void CardSettingsModel::follow(const StatisticsFeature::State& state, const PageClients& clients) {
  if (std::exchange(isShown, true) && flags == state.dashboardSettings && streaks == *state.streakSettings) return;
  flags = state.dashboardSettings;
  streaks = state.streakSettings;
  show(host::composeCardSettings(flags, streaks, clients));
}

void CardSettingsModel::toggle(host::CardGroup group, int row) {
  host::toggled(flags, group, row).writeToDefaults();
  told();
}

void CardSettingsModel::keep(const StreakSettings& settings) {
  shared->setStreakSettings(settings);
  told();
}

void CardSettingsModel::count(int place) {
  StreakSettings settings = streaks;
  settings.countingEntity = host::countingEntityAt(place);
  keep(settings);
}

void CardSettingsModel::toggleBelowGoal() {
  StreakSettings settings = streaks;
  settings.ignoreFastGoal = !settings.ignoreFastGoal;
  keep(settings);
}

void CardSettingsModel::changeLongestBreak(int hours) {
  StreakSettings settings = streaks;
  settings.maxBreakHours = hours;
  keep(settings);
}

SettingsModel::SettingsModel(std::function<PageClients()> present, const Dependencies& all,
                             std::shared_ptr<host::WeekCalendar> week, Appearance& looks,
                             const host::AboutFacts& aboutFacts, std::function<void()> tells,
                             std::function<void()> tellsReminders, QObject* parent)
    : mivo::app::SettingsPageRecord{parent},
      clients{std::move(present)},
      defaults{all.userDefaults},
      calendar{std::move(week)},
      look{looks},
      told{std::move(tells)},
      cards{new CardSettingsModel{all.appGroupUserDefaults, told, this}},
      reminders{new RemindersModel{clients, all.userDefaults, std::move(tellsReminders), this}} {
  about->show(host::composeAbout(aboutFacts, {{std::string{"Qt "} + qVersion(), "LGPL-3.0"}}, clients().texts));
  facts.usualWeekday = calendar->usualFirstWeekday();
  facts.version = aboutFacts.version;
  connect(&look, &Appearance::changed, this, &SettingsModel::compose);
}

void SettingsModel::follow(const host::AppFeature::State& state) {
  cards->follow(state.statistics, clients());
  reminders->follow();
  facts.weightUnit = state.statistics.goalWeightCardState.weightUnit;
  facts.linkedHealth = linkedFileText(state.health, clients().texts);
  facts.newestBackup = newestBackupText(state.backups, clients());
  compose();
}

void SettingsModel::compose() {
  facts.goalSeconds = host::goalSeconds(*defaults);
  facts.chosenWeekday = host::firstWeekday(*defaults);
  facts.language = host::language(*defaults);
  facts.appearance = look.present();
  if (composed == facts) return;
  composed = facts;
  show(host::composeSettings(facts, clients()));
}

void SettingsModel::chooseGoal(double seconds) {
  host::setGoalSeconds(*defaults, std::llround(seconds));
  told();
}

void SettingsModel::chooseWeightUnit(int place) {
  host::setWeightUnit(*defaults, host::weightUnitAt(place));
  told();
}

void SettingsModel::chooseFirstWeekday(int place) {
  host::setFirstWeekday(*defaults, host::weekdayAt(place));
  calendar->choose(host::weekdayAt(place));
  told();
}

void SettingsModel::chooseLanguage(int place) {
  const std::string tag = host::languageAt(place);
  if (tag == host::language(*defaults)) return;
  host::setLanguage(*defaults, tag);
  compose();
  Q_EMIT languageChosen();
}

void SettingsModel::chooseAppearance(int place) { look.choose(host::appearanceModeAt(place)); }

void SettingsModel::changeTextSize(int percent) { look.changeTextScale(percent / 100.0); }

void SettingsModel::toggleReducedMotion() { look.reduceMotion(!reducesMotion); }

QString SettingsModel::hoursText(int hours) const { return qString(host::hoursText(hours, clients())); }

QString SettingsModel::percentText(int percent) const { return qString(host::percentText(percent, clients())); }

}  // namespace mivo::app
