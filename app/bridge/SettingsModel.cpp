// SPDX-License-Identifier: MIT
#include "SettingsModel.h"

#include <cmath>

#include "host/app/Stamps.h"

namespace mivo::app {

void CardSettingsModel::follow(const StatisticsFeature::State& state) {
  auto read = host::stampsOf(state.dashboardSettings);
  read.push_back(state.streakSettings.stamp());
  if (std::exchange(seen, read) == read) return;
  show(host::composeCardSettings(state.dashboardSettings, state.streakSettings, app.clients()));
}

void CardSettingsModel::toggle(host::CardGroup group, int row) {
  choose(Chosen::didChooseCards{host::toggled(app.state().statistics.dashboardSettings, group, row)});
}

void RemindersModel::follow(const AppState& state) {
  const Stamp written = state.settings.reminders.stamp();
  if (std::exchange(seen, written) != written) show(host::composeReminders(state.settings.reminders, app.clients()));
}

SettingsModel::SettingsModel(AppLink to, const host::AboutFacts& aboutFacts, int usualFirstWeekday, QObject* parent)
    : mivo::app::SettingsPageRecord{parent},
      app{std::move(to)},
      version{aboutFacts.version},
      usualWeekday{usualFirstWeekday},
      cards{new CardSettingsModel{app, this}},
      reminders{new RemindersModel{app, this}} {
  about->show(host::composeAbout(aboutFacts,
                                 {{std::string{"Qt "} + qVersion(), "LGPL-3.0"},
                                  {"Inter", "OFL-1.1"},
                                  {"ICU", "Unicode-DFS-2016"},
                                  {"cctz", "Apache-2.0"},
                                  {"Boost.Locale", "BSL-1.0"},
                                  {"libcurl", "curl"},
                                  {"libzip", "BSD-3-Clause"},
                                  {"CLI11", "BSD-3-Clause"}},
                                 app.clients().texts));
}

void SettingsModel::follow(const AppState& state) {
  cards->follow(state.statistics);
  reminders->follow(state);
  auto facts = host::settingsFacts(state, usualWeekday, version, app.clients());
  if (std::exchange(composed, facts) != facts) show(host::composeSettings(facts, app.clients()));
}

void SettingsModel::chooseGoal(double seconds) { choose(Chosen::didChooseGoal{std::llround(seconds)}); }

void SettingsModel::chooseLanguage(int place) {
  const Stamp before = app.state().settings.language.stamp();
  choose(Chosen::didChooseLanguage{host::languageAt(place)});
  if (app.state().settings.language.stamp() != before) Q_EMIT languageChosen();
}

}  // namespace mivo::app
