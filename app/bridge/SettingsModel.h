// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/bridge/Appearance.h"
#include "app/bridge/RemindersModel.h"
#include "app/records/Records.h"
#include "host/app/AppFeature.h"
#include "host/place/WeekCalendar.h"

namespace mivo::app {

/// A `host::CardSettingsPage`.
class CardSettingsModel : public mivo::app::CardSettingsPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the settings have it")

 public:
  /// `changed` is called once something was written to the user's defaults, of which the app's extensions see `shared`.
  CardSettingsModel(Client<UserDefaults> sharedDefaults, std::function<void()> changed, QObject* parent)
      : mivo::app::CardSettingsPageRecord{parent}, shared{std::move(sharedDefaults)}, told{std::move(changed)} {}

  void follow(const StatisticsFeature::State& state, const PageClients& clients);

  Q_INVOKABLE void toggleCard(int row) { toggle(host::CardGroup::cards, row); }
  Q_INVOKABLE void toggleChart(int row) { toggle(host::CardGroup::charts, row); }
  Q_INVOKABLE void toggleTrend(int row) { toggle(host::CardGroup::trends, row); }
  Q_INVOKABLE void count(int place);
  Q_INVOKABLE void toggleBelowGoal();
  Q_INVOKABLE void changeLongestBreak(int hours);

 private:
  void toggle(host::CardGroup group, int row);
  void keep(const StreakSettings& settings);

  Client<UserDefaults> shared;
  std::function<void()> told;
  DashboardSettingsFeature::State flags;
  StreakSettings streaks;
  bool isShown = false;
};

/// A `host::SettingsPage`, and the pages that it leads to. What is chosen is kept in the user's defaults.
class SettingsModel : public mivo::app::SettingsPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(mivo::app::CardSettingsModel* cards MEMBER cards CONSTANT)
  Q_PROPERTY(mivo::app::RemindersModel* reminders MEMBER reminders CONSTANT)
  Q_PROPERTY(mivo::app::AboutPageRecord* about MEMBER about CONSTANT)

 public:
  /// `changed` is called once something was written that the statistics read, `remindersChanged` once something was of
  /// what the user wants to be told of.
  SettingsModel(std::function<PageClients()> clients, const Dependencies& all,
                std::shared_ptr<host::WeekCalendar> calendar, Appearance& look, const host::AboutFacts& aboutFacts,
                std::function<void()> changed, std::function<void()> remindersChanged, QObject* parent);

  void follow(const host::AppFeature::State& state);

  Q_INVOKABLE void chooseGoal(double seconds);
  Q_INVOKABLE void chooseWeightUnit(int place);
  Q_INVOKABLE void chooseFirstWeekday(int place);
  Q_INVOKABLE void chooseLanguage(int place);
  Q_INVOKABLE void chooseAppearance(int place);
  Q_INVOKABLE void changeTextSize(int percent);
  Q_INVOKABLE void toggleReducedMotion();

  /// "24h", "115%" in the user's language.
  Q_INVOKABLE QString hoursText(int hours) const;
  Q_INVOKABLE QString percentText(int percent) const;

 Q_SIGNALS:
  /// It holds from the next start of the program.
  void languageChosen();

 private:
  void compose();

  std::function<PageClients()> clients;
  Client<UserDefaults> defaults;
  std::shared_ptr<host::WeekCalendar> calendar;
  Appearance& look;
  std::function<void()> told;
  CardSettingsModel* const cards;
  RemindersModel* const reminders;
  AboutPageRecord* const about = new AboutPageRecord{this};
  host::SettingsFacts facts;
  std::optional<host::SettingsFacts> composed;
};

}  // namespace mivo::app
