// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QTimer>

#include <vector>

#include "app/bridge/AppLink.h"
#include "app/bridge/DateTimeChoiceModel.h"
#include "app/bridge/FastDraftModel.h"
#include "app/bridge/FastHistoryModel.h"
#include "app/bridge/GoalChoiceModel.h"
#include "app/records/Records.h"

namespace mivo::app {

/// A `host::FastingPage`, composed anew whenever it says something else; its buttons, the history and the draft of the
/// fast that is edited.
class FastingModel : public mivo::app::FastingPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  /// Whether anybody sees the seconds; else only the minutes go on.
  Q_PROPERTY(bool watched MEMBER watched WRITE setWatched NOTIFY watchedChanged)
  Q_PROPERTY(mivo::app::FastHistoryModel* history MEMBER history CONSTANT)
  Q_PROPERTY(mivo::app::FastDraftModel* draft MEMBER draft CONSTANT)

 public:
  FastingModel(AppLink to, QObject* parent);

  void follow(const host::AppFeature::State& state);
  /// Every text may read differently, though no record was changed.
  void retell();

  void setWatched(bool isNow);

  Q_INVOKABLE void start();
  /// The button: starts a fast, or stops the one that runs.
  Q_INVOKABLE void press();
  /// Why the running fast cannot begin at an instant, in a sentence; empty where it can.
  Q_INVOKABLE QString startProblem(double instant) const;
  Q_INVOKABLE void changeStart(double instant);
  /// Of the running fast, and of those to come.
  Q_INVOKABLE void changeGoal(double seconds);
  /// For a sheet that has a goal or a date to choose, which owns them.
  Q_INVOKABLE mivo::app::GoalChoiceModel* goalChoice() const { return new GoalChoiceModel{app.clients}; }
  Q_INVOKABLE mivo::app::DateTimeChoiceModel* dateTimeChoice() const { return new DateTimeChoiceModel{app.clients}; }

 Q_SIGNALS:
  void watchedChanged();

 private:
  void tick();

  AppLink app;
  host::FastingPageFacts facts;
  std::vector<Stamp> seen;
  bool watched = false;
  QTimer timer;

 public:
  // Below the link that they are made with.
  FastHistoryModel* const history;
  FastDraftModel* const draft;
};

}  // namespace mivo::app
