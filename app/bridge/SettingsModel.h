// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <string>

#include "app/bridge/CardSwitchesModel.h"
#include "host/app/AppFeature.h"
#include "host/place/WeekCalendar.h"

namespace mivo::app {

/// A library that the app stands on.
struct UsedLibrary {
  Q_GADGET
  QML_VALUE_TYPE(usedLibrary)
  Q_PROPERTY(QString name MEMBER name CONSTANT)
  Q_PROPERTY(QString licence MEMBER licence CONSTANT)

 public:
  QString name, licence;
  bool operator==(const UsedLibrary&) const = default;
};

/// What the user can choose, kept in the user's defaults. A choice of a few is the place of the chosen one in a list of
/// names. How the screens look is chosen at `Appearance`.
class SettingsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  /// What is pushed over the settings: "cards", "about", or nothing.
  Q_PROPERTY(QString page MEMBER page NOTIFY pageChanged)
  Q_PROPERTY(mivo::app::CardSwitchesModel* cards READ cards CONSTANT)
  Q_PROPERTY(mivo::app::CardSwitchesModel* charts READ charts CONSTANT)
  Q_PROPERTY(mivo::app::CardSwitchesModel* trends READ trends CONSTANT)
  /// Streaks count fasts, not days.
  Q_PROPERTY(bool countsFasts READ countsFasts WRITE setCountsFasts NOTIFY changed)
  Q_PROPERTY(bool countsBelowGoal READ countsBelowGoal WRITE setCountsBelowGoal NOTIFY changed)
  Q_PROPERTY(int maxBreakHours READ maxBreakHours WRITE setMaxBreakHours NOTIFY changed)
  Q_PROPERTY(int leastBreakHours MEMBER leastBreakHours CONSTANT)
  Q_PROPERTY(int mostBreakHours MEMBER mostBreakHours CONSTANT)
  /// Of the fasts to come; a running one keeps its own.
  Q_PROPERTY(qreal goalSeconds READ goalSeconds WRITE setGoalSeconds NOTIFY changed)
  Q_PROPERTY(QString goal READ goal NOTIFY changed)
  Q_PROPERTY(QList<QString> weightUnits READ weightUnits CONSTANT)
  Q_PROPERTY(int weightUnit READ weightUnit WRITE setWeightUnit NOTIFY changed)
  /// "kg"
  Q_PROPERTY(QString weightUnitText READ weightUnitText NOTIFY changed)
  Q_PROPERTY(QList<QString> firstWeekdays READ firstWeekdays CONSTANT)
  Q_PROPERTY(int firstWeekday READ firstWeekday WRITE setFirstWeekday NOTIFY changed)
  /// "Monday", be it chosen or the locale's.
  Q_PROPERTY(QString firstWeekdayText READ firstWeekdayText NOTIFY changed)
  Q_PROPERTY(QList<QString> languages READ languages CONSTANT)
  Q_PROPERTY(int language READ language WRITE setLanguage NOTIFY changed)
  /// Another language than that of the texts was chosen; it shows from the next start.
  Q_PROPERTY(bool languageWaits READ languageWaits NOTIFY changed)
  Q_PROPERTY(QString version READ version CONSTANT)
  Q_PROPERTY(QString databaseFile READ databaseFile CONSTANT)
  Q_PROPERTY(QString exportCommand READ exportCommand CONSTANT)
  Q_PROPERTY(QList<mivo::app::UsedLibrary> libraries READ libraries CONSTANT)

 public:
  struct About {
    std::string version, databaseFile, exportCommand;
  };

  /// `send` takes the action that a setting was changed.
  SettingsModel(std::shared_ptr<host::WeekCalendar> calendar, About about,
                std::function<void(host::AppFeature::Action)> send, QObject* parent = nullptr);

  void follow(const StatisticsFeature::State& state);

  CardSwitchesModel* cards() { return &cardSwitches; }
  CardSwitchesModel* charts() { return &chartSwitches; }
  CardSwitchesModel* trends() { return &trendSwitches; }
  bool countsFasts() const { return streaks.countingEntity == StreakSettings::CountingEntity::fasts; }
  void setCountsFasts(bool counts);
  bool countsBelowGoal() const { return streaks.ignoreFastGoal; }
  void setCountsBelowGoal(bool counts);
  int maxBreakHours() const;
  void setMaxBreakHours(int hours);
  qreal goalSeconds() const;
  void setGoalSeconds(qreal seconds);
  QString goal() const;
  QStringList weightUnits() const;
  int weightUnit() const { return static_cast<int>(unit); }
  void setWeightUnit(int place);
  QString weightUnitText() const;
  QStringList firstWeekdays() const;
  int firstWeekday() const;
  void setFirstWeekday(int place);
  QString firstWeekdayText() const;
  QStringList languages() const;
  int language() const;
  void setLanguage(int place);
  bool languageWaits() const { return language() != languageAtStart; }
  QString version() const { return QString::fromStdString(about.version); }
  QString databaseFile() const { return QString::fromStdString(about.databaseFile); }
  QString exportCommand() const { return QString::fromStdString(about.exportCommand); }
  QList<UsedLibrary> libraries() const;

  /// "24h", "115%" in the user's language.
  Q_INVOKABLE QString hoursText(int hours) const;
  Q_INVOKABLE QString percentText(int percent) const;

 Q_SIGNALS:
  void pageChanged();
  void changed();

 private:
  void keepCards(const DashboardSettingsFeature::State& settings);
  void keepStreaks(const StreakSettings& settings);
  void tell();

  static constexpr int leastBreakHours = 1, mostBreakHours = 8760;

  QString page;
  std::shared_ptr<host::WeekCalendar> calendar;
  About about;
  std::function<void(host::AppFeature::Action)> send;
  CardSwitchesModel cardSwitches, chartSwitches, trendSwitches;
  StreakSettings streaks;
  WeightUnit unit = WeightUnit::kilograms;
  int languageAtStart;
};

}  // namespace mivo::app
