// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/bridge/Appearance.h"
#include "app/bridge/RecordRows.h"
#include "app/bridge/Records.h"
#include "host/app/AppFeature.h"
#include "host/pages/AboutPage.h"
#include "host/pages/CardSettingsPage.h"
#include "host/place/WeekCalendar.h"

namespace mivo::app {

/// A `host::CardSettingsPage`.
class CardSettingsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the settings have it")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString cardsTitle MEMBER cardsTitle NOTIFY changed)
  Q_PROPERTY(QString chartsTitle MEMBER chartsTitle NOTIFY changed)
  Q_PROPERTY(QString trendsTitle MEMBER trendsTitle NOTIFY changed)
  Q_PROPERTY(mivo::app::RecordRows* cards READ cards CONSTANT)
  Q_PROPERTY(mivo::app::RecordRows* charts READ charts CONSTANT)
  Q_PROPERTY(mivo::app::RecordRows* trends READ trends CONSTANT)
  Q_PROPERTY(QString streaksTitle MEMBER streaksTitle NOTIFY changed)
  Q_PROPERTY(QString streaksNote MEMBER streaksNote NOTIFY changed)
  Q_PROPERTY(mivo::app::Choice counted MEMBER counted NOTIFY changed)
  Q_PROPERTY(QString countsBelowGoalLabel MEMBER countsBelowGoalLabel NOTIFY changed)
  Q_PROPERTY(bool countsBelowGoal MEMBER countsBelowGoal NOTIFY changed)
  Q_PROPERTY(mivo::app::Steps longestBreak MEMBER longestBreak NOTIFY changed)

 public:
  /// `changed` is called once something was written to the user's defaults.
  explicit CardSettingsModel(std::function<void()> changed) : told{std::move(changed)} {}

  void follow(const StatisticsFeature::State& state, const PageClients& clients);

  RecordRows* cards() { return &cardRows; }
  RecordRows* charts() { return &chartRows; }
  RecordRows* trends() { return &trendRows; }

  Q_INVOKABLE void toggleCard(int row) { toggle(host::CardGroup::cards, row); }
  Q_INVOKABLE void toggleChart(int row) { toggle(host::CardGroup::charts, row); }
  Q_INVOKABLE void toggleTrend(int row) { toggle(host::CardGroup::trends, row); }
  Q_INVOKABLE void count(int place);
  Q_INVOKABLE void toggleBelowGoal();
  Q_INVOKABLE void changeLongestBreak(int hours);

 Q_SIGNALS:
  void changed();

 private:
  void toggle(host::CardGroup group, int row);
  void keep(const StreakSettings& settings);

  std::function<void()> told;
  DashboardSettingsFeature::State flags;
  StreakSettings streaks;
  QString title, cardsTitle, chartsTitle, trendsTitle, streaksTitle, streaksNote, countsBelowGoalLabel;
  RecordRows cardRows{rolesOf<host::CardSwitch>()}, chartRows{rolesOf<host::CardSwitch>()},
      trendRows{rolesOf<host::CardSwitch>()};
  Choice counted;
  Steps longestBreak;
  bool countsBelowGoal = false, isShown = false;
};

/// A `host::AboutPage`.
class AboutModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the settings have it")
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QString note MEMBER note CONSTANT)
  Q_PROPERTY(mivo::app::RecordRows* facts READ facts CONSTANT)
  Q_PROPERTY(QString librariesTitle MEMBER librariesTitle CONSTANT)
  Q_PROPERTY(mivo::app::RecordRows* libraries READ libraries CONSTANT)

 public:
  explicit AboutModel(const host::AboutPage& page);
  RecordRows* facts() { return &factRows; }
  RecordRows* libraries() { return &libraryRows; }

 private:
  QString title, note, librariesTitle;
  RecordRows factRows{rolesOf<host::Fact>()}, libraryRows{rolesOf<host::Fact>()};
};

/// A `host::SettingsPage`, and the pages that it leads to. What is chosen is kept in the user's defaults.
class SettingsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  /// What is pushed over the settings: "cards", "about", or nothing.
  Q_PROPERTY(QString page MEMBER page NOTIFY pageChanged)
  Q_PROPERTY(mivo::app::CardSettingsModel* cards READ cards CONSTANT)
  Q_PROPERTY(mivo::app::AboutModel* about READ about CONSTANT)
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString cardsLabel MEMBER cardsLabel NOTIFY changed)
  Q_PROPERTY(QString general MEMBER general NOTIFY changed)
  Q_PROPERTY(QString goalLabel MEMBER goalLabel NOTIFY changed)
  Q_PROPERTY(QString goal MEMBER goal NOTIFY changed)
  Q_PROPERTY(qreal goalSeconds MEMBER goalSeconds NOTIFY changed)
  Q_PROPERTY(mivo::app::Choice weightUnit MEMBER weightUnit NOTIFY changed)
  Q_PROPERTY(mivo::app::Choice firstWeekday MEMBER firstWeekday NOTIFY changed)
  Q_PROPERTY(mivo::app::Choice language MEMBER language NOTIFY changed)
  Q_PROPERTY(mivo::app::Choice appearance MEMBER appearance NOTIFY changed)
  Q_PROPERTY(mivo::app::Steps textSize MEMBER textSize NOTIFY changed)
  Q_PROPERTY(QString reducedMotionLabel MEMBER reducedMotionLabel NOTIFY changed)
  Q_PROPERTY(bool reducesMotion MEMBER reducesMotion NOTIFY changed)
  Q_PROPERTY(QString aboutLabel MEMBER aboutLabel NOTIFY changed)
  Q_PROPERTY(QString version MEMBER version NOTIFY changed)

 public:
  /// `changed` is called once something was written that the statistics read.
  SettingsModel(std::function<PageClients()> clients, std::shared_ptr<host::WeekCalendar> calendar, Appearance& look,
                const host::AboutFacts& about, std::function<void()> changed);

  void follow(const StatisticsFeature::State& state);

  CardSettingsModel* cards() { return &shownCards; }
  AboutModel* about() { return &app; }

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
  void pageChanged();
  void changed();
  /// It holds from the next start of the program.
  void languageChosen();

 private:
  void show();

  QString page, title, cardsLabel, general, goalLabel, goal, reducedMotionLabel, aboutLabel, version;
  qreal goalSeconds = 0;
  Choice weightUnit, firstWeekday, language, appearance;
  Steps textSize;
  bool reducesMotion = false;
  std::function<PageClients()> clients;
  std::shared_ptr<host::WeekCalendar> calendar;
  Appearance& look;
  std::function<void()> told;
  CardSettingsModel shownCards;
  AboutModel app;
  host::SettingsFacts facts;
  std::optional<host::SettingsFacts> shown;
};

}  // namespace mivo::app
