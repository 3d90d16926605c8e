// SPDX-License-Identifier: MIT
#include "host/app/SettingsFeature.h"

#include <variant>

namespace mivo::host {
namespace {

template <class... Cases>
bool isOneOf(const SettingsFeature::Action& action) {
  return (std::holds_alternative<Cases>(action) || ...);
}

template <class Change>
void changeStreaks(const UserDefaults& defaults, Change change) {
  StreakSettings settings{.countingEntity = defaults.streakCountingEntity(),
                          .ignoreFastGoal = defaults.streakIgnoreFastGoal(),
                          .maxBreakHours = defaults.streakMaxBreakHours()};
  change(settings);
  defaults.setStreakSettings(settings);
}

}  // namespace

bool isReadByStatistics(const SettingsFeature::Action& action) {
  using Action = SettingsFeature::Action;
  return isOneOf<Action::didChooseGoal, Action::didChooseWeightUnit, Action::didChooseCards,
                 Action::didChooseCountingEntity, Action::didToggleBelowGoal, Action::didChooseLongestBreak,
                 Action::didChooseFirstWeekday>(action);
}

bool isOfReminders(const SettingsFeature::Action& action) {
  using Action = SettingsFeature::Action;
  return isOneOf<Action::didToggleGoalReminder, Action::didToggleEatingWindowReminder, Action::didChooseEatingWindow>(
      action);
}

auto SettingsFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  std::visit([&](const auto& sent) { on(state, sent); }, action);
  return {};
}

void SettingsFeature::on(State& state, const Action::onAppear&) const {
  state.firstWeekday = host::firstWeekday(*userDefaults);
  state.language = host::language(*userDefaults);
  state.appearance = overridden(host::appearance(*userDefaults), state.given);
  state.reminders = reminderSettings(*userDefaults);
}

void SettingsFeature::on(State&, const Action::didChooseGoal& chosen) const {
  setGoalSeconds(*userDefaults, chosen.seconds);
}

void SettingsFeature::on(State&, const Action::didChooseWeightUnit& chosen) const {
  setWeightUnit(*userDefaults, chosen.unit);
}

void SettingsFeature::on(State&, const Action::didChooseCards& chosen) const { chosen.cards.writeToDefaults(); }

void SettingsFeature::on(State&, const Action::didChooseCountingEntity& chosen) const {
  changeStreaks(*appGroupUserDefaults, [&](StreakSettings& streaks) { streaks.countingEntity = chosen.entity; });
}

void SettingsFeature::on(State&, const Action::didToggleBelowGoal&) const {
  changeStreaks(*appGroupUserDefaults,
                [](StreakSettings& streaks) { streaks.ignoreFastGoal = !streaks.ignoreFastGoal; });
}

void SettingsFeature::on(State&, const Action::didChooseLongestBreak& chosen) const {
  changeStreaks(*appGroupUserDefaults, [&](StreakSettings& streaks) { streaks.maxBreakHours = chosen.hours; });
}

void SettingsFeature::on(State& state, const Action::didChooseFirstWeekday& chosen) const {
  setFirstWeekday(*userDefaults, chosen.weekday);
  state.firstWeekday = chosen.weekday;
  if (chooseFirstWeekday) chooseFirstWeekday(chosen.weekday);
}

void SettingsFeature::on(State& state, const Action::didChooseLanguage& chosen) const {
  if (chosen.tag == *state.language) return;
  setLanguage(*userDefaults, chosen.tag);
  state.language = chosen.tag;
}

void SettingsFeature::on(State& state, const Action::didChooseAppearanceMode& chosen) const {
  setAppearanceMode(*userDefaults, chosen.mode);
  AppearanceOverride left = state.given;
  left.mode.reset();
  on(state, Action::didOverrideAppearance{left});
}

void SettingsFeature::on(State& state, const Action::didChooseTextScale& chosen) const {
  setTextScale(*userDefaults, chosen.scale);
  AppearanceOverride left = state.given;
  left.textScale.reset();
  on(state, Action::didOverrideAppearance{left});
}

void SettingsFeature::on(State& state, const Action::didToggleReducedMotion&) const {
  setReducedMotion(*userDefaults, !state.appearance->reducesMotion);
  on(state, Action::didOverrideAppearance{state.given});
}

void SettingsFeature::on(State& state, const Action::didOverrideAppearance& sent) const {
  state.given = sent.given;
  state.appearance = overridden(host::appearance(*userDefaults), sent.given);
}

void SettingsFeature::on(State& state, const Action::didToggleGoalReminder&) const {
  setTellsGoal(*userDefaults, !state.reminders->tellsGoal);
  state.reminders = reminderSettings(*userDefaults);
}

void SettingsFeature::on(State& state, const Action::didToggleEatingWindowReminder&) const {
  setTellsEatingWindow(*userDefaults, !state.reminders->tellsEatingWindow);
  state.reminders = reminderSettings(*userDefaults);
}

void SettingsFeature::on(State& state, const Action::didChooseEatingWindow& chosen) const {
  setEatingWindowHours(*userDefaults, chosen.hours);
  state.reminders = reminderSettings(*userDefaults);
}

}  // namespace mivo::host
