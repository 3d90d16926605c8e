// SPDX-License-Identifier: MIT
#include "RemindersModel.h"

#include <utility>

namespace mivo::app {

RemindersModel::RemindersModel(std::function<PageClients()> present, Client<UserDefaults> userDefaults,
                               std::function<void()> tells, QObject* parent)
    : mivo::app::RemindersPageRecord{parent},
      clients{std::move(present)},
      defaults{std::move(userDefaults)},
      told{std::move(tells)} {}

void RemindersModel::follow() {
  const host::ReminderSettings settings = host::reminderSettings(*defaults);
  if (composed == settings) return;
  composed = settings;
  show(host::composeReminders(settings, clients()));
}

void RemindersModel::tell() {
  follow();
  told();
}

void RemindersModel::toggleGoal() {
  host::setTellsGoal(*defaults, !tellsGoal);
  tell();
}

void RemindersModel::toggleEatingWindow() {
  host::setTellsEatingWindow(*defaults, !tellsEatingWindow);
  tell();
}

void RemindersModel::chooseEatingWindow(int place) {
  host::setEatingWindowHours(*defaults, host::eatingWindowHoursAt(place));
  tell();
}

}  // namespace mivo::app
