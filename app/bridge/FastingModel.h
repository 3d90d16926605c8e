// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <functional>
#include <vector>

#include "app/bridge/DateTimeChoiceModel.h"
#include "app/bridge/FastDraftModel.h"
#include "app/bridge/FastHistoryModel.h"
#include "app/bridge/GoalChoiceModel.h"
#include "app/bridge/RecordRows.h"
#include "host/app/AppFeature.h"
#include "host/pages/FastingPage.h"

namespace mivo::app {

/// A `host::FastingPage`, composed anew whenever it says something else; its buttons, the history and the draft of the
/// fast that is edited.
class FastingModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(bool isRunning MEMBER isRunning NOTIFY changed)
  Q_PROPERTY(bool isEating MEMBER isEating NOTIFY changed)
  Q_PROPERTY(QString elapsed MEMBER elapsed NOTIFY elapsedChanged)
  Q_PROPERTY(QString duration MEMBER duration NOTIFY durationChanged)
  Q_PROPERTY(QString zone MEMBER zone NOTIFY zoneChanged)
  Q_PROPERTY(QString zoneName MEMBER zoneName NOTIFY zoneChanged)
  Q_PROPERTY(QString goalText MEMBER goalText NOTIFY durationChanged)
  Q_PROPERTY(QString invitation MEMBER invitation NOTIFY changed)
  Q_PROPERTY(QString invitationDetail MEMBER invitationDetail NOTIFY changed)
  Q_PROPERTY(QString warning MEMBER warning NOTIFY warningChanged)
  Q_PROPERTY(mivo::app::RecordRows* zones READ zones CONSTANT)
  Q_PROPERTY(QString startLabel MEMBER startLabel NOTIFY changed)
  Q_PROPERTY(QString startText MEMBER startText NOTIFY startChanged)
  Q_PROPERTY(QString startSpoken MEMBER startSpoken NOTIFY startChanged)
  Q_PROPERTY(double started MEMBER started NOTIFY startChanged)
  Q_PROPERTY(QString goalLabel MEMBER goalLabel NOTIFY changed)
  Q_PROPERTY(QString goal MEMBER goal NOTIFY goalChanged)
  Q_PROPERTY(QString goalSpoken MEMBER goalSpoken NOTIFY goalChanged)
  Q_PROPERTY(qreal goalSeconds MEMBER goalSeconds NOTIFY goalChanged)
  Q_PROPERTY(QString button MEMBER button NOTIFY changed)
  Q_PROPERTY(QString spoken MEMBER spoken NOTIFY durationChanged)
  Q_PROPERTY(qreal ringSeconds MEMBER ringSeconds NOTIFY ringChanged)
  Q_PROPERTY(qreal ringSpan MEMBER ringSpan NOTIFY ringChanged)
  Q_PROPERTY(QList<qreal> markPlaces MEMBER markPlaces NOTIFY marksChanged)
  Q_PROPERTY(QStringList markTexts MEMBER markTexts NOTIFY marksChanged)
  /// Whether anybody sees the seconds; else only the minutes go on.
  Q_PROPERTY(bool watched MEMBER watched WRITE setWatched NOTIFY watchedChanged)
  Q_PROPERTY(mivo::app::FastHistoryModel* history READ history CONSTANT)
  Q_PROPERTY(mivo::app::FastDraftModel* draft READ draft CONSTANT)

 public:
  using Action = host::AppFeature::Action;
  FastingModel(std::function<PageClients()> clients, std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const host::AppFeature::State& state);
  /// Every text may read differently, though no record was changed.
  void retell();

  void setWatched(bool isNow);
  RecordRows* zones() { return &zoneRows; }
  FastHistoryModel* history() { return &ended; }
  FastDraftModel* draft() { return &edited; }

  Q_INVOKABLE void start();
  /// The button: starts a fast, or stops the one that runs.
  Q_INVOKABLE void press();
  /// Why the running fast cannot begin at an instant, in a sentence; empty where it can.
  Q_INVOKABLE QString startProblem(double instant) const;
  Q_INVOKABLE void changeStart(double instant);
  /// Of the running fast, and of those to come.
  Q_INVOKABLE void changeGoal(double seconds);
  /// Begins the draft of a new fast.
  Q_INVOKABLE void add();
  /// For a sheet that has a goal or a date to choose, which owns them.
  Q_INVOKABLE mivo::app::GoalChoiceModel* goalChoice() const { return new GoalChoiceModel{clients}; }
  Q_INVOKABLE mivo::app::DateTimeChoiceModel* dateTimeChoice() const { return new DateTimeChoiceModel{clients}; }

 Q_SIGNALS:
  void changed();
  void elapsedChanged();
  void durationChanged();
  void zoneChanged();
  void warningChanged();
  void startChanged();
  void goalChanged();
  void ringChanged();
  void marksChanged();
  void watchedChanged();

 private:
  void tick();
  void showMarks(const std::vector<host::RingMark>& marks);

  std::function<PageClients()> clients;
  std::function<void(Action)> send;
  List<host::FastRecord> fasts;
  host::FastingPageFacts facts;
  std::vector<Stamp> seen;
  FastHistoryModel ended;
  FastDraftModel edited;
  RecordRows zoneRows{rolesOf<host::ZoneTimeText>()};
  QString title, elapsed, duration, zone, zoneName, goalText, invitation, invitationDetail, warning, startLabel,
      startText, startSpoken, goalLabel, goal, goalSpoken, button, spoken;
  bool isRunning = false, isEating = false, watched = false;
  double started = 0;
  qreal goalSeconds = 0, ringSeconds = 0, ringSpan = 0;
  QList<qreal> markPlaces;
  QStringList markTexts;
  QTimer timer;
};

}  // namespace mivo::app
