// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/bridge/AppLink.h"
#include "app/records/Records.h"

namespace mivo::app {

using Chosen = host::SettingsFeature::Action;

/// A `host::CardSettingsPage`.
class CardSettingsModel : public mivo::app::CardSettingsPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the settings have it")

 public:
  CardSettingsModel(AppLink to, QObject* parent) : mivo::app::CardSettingsPageRecord{parent}, app{std::move(to)} {}

  void follow(const StatisticsFeature::State& state);

  Q_INVOKABLE void toggleCard(int row) { toggle(host::CardGroup::cards, row); }
  Q_INVOKABLE void toggleChart(int row) { toggle(host::CardGroup::charts, row); }
  Q_INVOKABLE void toggleTrend(int row) { toggle(host::CardGroup::trends, row); }
  Q_INVOKABLE void count(int place) { choose(Chosen::didChooseCountingEntity{host::countingEntityAt(place)}); }
  Q_INVOKABLE void toggleBelowGoal() { choose(Chosen::didToggleBelowGoal{}); }
  Q_INVOKABLE void changeLongestBreak(int hours) { choose(Chosen::didChooseLongestBreak{hours}); }

 private:
  void choose(Chosen chosen) { app.send(AppAction::settings{std::move(chosen)}); }
  void toggle(host::CardGroup group, int row);

  AppLink app;
  std::vector<Stamp> seen;
};

/// A `host::RemindersPage`.
class RemindersModel : public mivo::app::RemindersPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the settings have it")

 public:
  RemindersModel(AppLink to, QObject* parent) : mivo::app::RemindersPageRecord{parent}, app{std::move(to)} {}

  void follow(const AppState& state);

  Q_INVOKABLE void toggleGoal() { choose(Chosen::didToggleGoalReminder{}); }
  Q_INVOKABLE void toggleEatingWindow() { choose(Chosen::didToggleEatingWindowReminder{}); }
  Q_INVOKABLE void chooseEatingWindow(int place) {
    choose(Chosen::didChooseEatingWindow{host::eatingWindowHoursAt(place)});
  }

 private:
  void choose(Chosen chosen) { app.send(AppAction::settings{std::move(chosen)}); }

  AppLink app;
  Stamp seen = 0;
};

/// A `host::SettingsPage`, and the pages that it leads to.
class SettingsModel : public mivo::app::SettingsPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(mivo::app::CardSettingsModel* cards MEMBER cards CONSTANT)
  Q_PROPERTY(mivo::app::RemindersModel* reminders MEMBER reminders CONSTANT)
  Q_PROPERTY(mivo::app::AboutPageRecord* about MEMBER about CONSTANT)

 public:
  SettingsModel(AppLink to, const host::AboutFacts& aboutFacts, int usualFirstWeekday, QObject* parent);

  void follow(const AppState& state);

  Q_INVOKABLE void chooseGoal(double seconds);
  Q_INVOKABLE void chooseWeightUnit(int place) { choose(Chosen::didChooseWeightUnit{host::weightUnitAt(place)}); }
  Q_INVOKABLE void chooseFirstWeekday(int place) { choose(Chosen::didChooseFirstWeekday{host::weekdayAt(place)}); }
  Q_INVOKABLE void chooseLanguage(int place);
  Q_INVOKABLE void chooseAppearance(int place) {
    choose(Chosen::didChooseAppearanceMode{host::appearanceModeAt(place)});
  }
  Q_INVOKABLE void changeTextSize(int percent) { choose(Chosen::didChooseTextScale{percent / 100.0}); }
  Q_INVOKABLE void toggleReducedMotion() { choose(Chosen::didToggleReducedMotion{}); }

  /// "24h", "115%" in the user's language.
  Q_INVOKABLE QString hoursText(int hours) const { return qString(host::hoursText(hours, app.clients())); }
  Q_INVOKABLE QString percentText(int percent) const { return qString(host::percentText(percent, app.clients())); }

 Q_SIGNALS:
  /// It holds from the next start of the program.
  void languageChosen();

 private:
  void choose(Chosen chosen) { app.send(AppAction::settings{std::move(chosen)}); }

  AppLink app;
  std::string version;
  int usualWeekday;
  CardSettingsModel* const cards;
  RemindersModel* const reminders;
  AboutPageRecord* const about = new AboutPageRecord{this};
  std::optional<host::SettingsFacts> composed;
};

}  // namespace mivo::app
