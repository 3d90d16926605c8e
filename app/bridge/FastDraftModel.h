// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <optional>

#include "app/bridge/ZoneTime.h"
#include "host/app/AppFeature.h"
#include "host/history/RecordFault.h"

namespace mivo::app {

/// A fast that is being edited, or a new one, before it is saved. Instants are seconds since 1970.
class FastDraftModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(bool isNew READ isNew NOTIFY changed)
  Q_PROPERTY(double start READ start NOTIFY changed)
  Q_PROPERTY(double end READ end NOTIFY changed)
  Q_PROPERTY(QString startText READ startText NOTIFY changed)
  Q_PROPERTY(QString endText READ endText NOTIFY changed)
  Q_PROPERTY(QString length READ length NOTIFY changed)
  Q_PROPERTY(qreal seconds READ seconds NOTIFY changed)
  Q_PROPERTY(qreal goalSeconds READ goalSeconds NOTIFY changed)
  Q_PROPERTY(QList<mivo::app::ZoneTime> zones READ zones NOTIFY changed)
  /// What is wrong with a field, in a sentence; empty where nothing is.
  Q_PROPERTY(QString startProblem READ startProblem NOTIFY changed)
  Q_PROPERTY(QString endProblem READ endProblem NOTIFY changed)
  Q_PROPERTY(QString goalProblem READ goalProblem NOTIFY changed)
  /// Why it could not be written.
  Q_PROPERTY(QString failure READ failure NOTIFY changed)
  /// "Overlaps the fast of Sat 6 Jun"
  Q_PROPERTY(QString overlap READ overlap NOTIFY changed)

 public:
  using Action = host::AppFeature::Action;
  explicit FastDraftModel(std::function<void(Action)> send, QObject* parent = nullptr);

  /// Begins with a record, for an edit.
  void edit(const host::FastRecord& record);
  /// Begins a new one that reaches its goal just now, or as the running fast begins.
  void add(std::int64_t goalSeconds);
  void follow(const host::AppFeature::State& state);

  bool isNew() const { return !before; }
  double start() const { return secondsSince1970(draft.fast.start); }
  double end() const { return secondsSince1970(finished().end); }
  QString startText() const;
  QString endText() const;
  QString length() const { return durationText(seconds()); }
  qreal seconds() const { return finished().duration(); }
  qreal goalSeconds() const { return static_cast<qreal>(draft.fast.goalSeconds); }
  QList<ZoneTime> zones() const { return zoneTimes(seconds()); }
  QString startProblem() const;
  QString endProblem() const;
  QString goalProblem() const;
  QString failure() const { return failureText; }
  QString overlap() const;

  /// The seconds of an end stay as they are where the minute does.
  Q_INVOKABLE void setStart(double instant);
  Q_INVOKABLE void setEnd(double instant);
  Q_INVOKABLE void setGoal(double seconds);
  /// Saves what has no fault; `saved` follows once it is on disk.
  Q_INVOKABLE void save();
  Q_INVOKABLE void remove();

 Q_SIGNALS:
  void changed();
  void saved();

 private:
  const FinishedFastingDataEntry& finished() const { return *draft.fast.finished; }
  std::optional<host::RecordFault> fault() const;
  void change(Date start, Date end, std::int64_t goalSeconds);

  std::function<void(Action)> send;
  host::FastRecord draft;
  std::optional<host::FastRecord> before;
  List<host::FastRecord> fasts;
  bool isSaving = false, hasFailure = false;
  QString failureText;
};

/// `chosen`, or `old` where both lie in the same minute: whoever chooses minutes does not mean to change seconds.
Date keepingSeconds(Date old, double chosen);

}  // namespace mivo::app
