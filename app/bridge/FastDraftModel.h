// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <optional>
#include <vector>

#include "app/bridge/RecordRows.h"
#include "host/app/AppFeature.h"
#include "host/pages/FastSheet.h"

namespace mivo::app {

/// The `host::FastSheet` of the draft; once there is none any more, as it was last.
class FastDraftModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString title MEMBER title NOTIFY titleChanged)
  Q_PROPERTY(bool isNew MEMBER isNew NOTIFY titleChanged)
  Q_PROPERTY(double start MEMBER start NOTIFY startChanged)
  Q_PROPERTY(QString startLabel MEMBER startLabel NOTIFY startChanged)
  Q_PROPERTY(QString startText MEMBER startText NOTIFY startChanged)
  Q_PROPERTY(QString startSpoken MEMBER startSpoken NOTIFY startChanged)
  Q_PROPERTY(QString startProblem MEMBER startProblem NOTIFY startChanged)
  Q_PROPERTY(double end MEMBER end NOTIFY endChanged)
  Q_PROPERTY(QString endLabel MEMBER endLabel NOTIFY endChanged)
  Q_PROPERTY(QString endText MEMBER endText NOTIFY endChanged)
  Q_PROPERTY(QString endSpoken MEMBER endSpoken NOTIFY endChanged)
  Q_PROPERTY(QString endProblem MEMBER endProblem NOTIFY endChanged)
  Q_PROPERTY(QString lengthLabel MEMBER lengthLabel NOTIFY lengthChanged)
  Q_PROPERTY(QString length MEMBER length NOTIFY lengthChanged)
  Q_PROPERTY(QString lengthSpoken MEMBER lengthSpoken NOTIFY lengthChanged)
  Q_PROPERTY(qreal seconds MEMBER seconds NOTIFY lengthChanged)
  Q_PROPERTY(QString overlap MEMBER overlap NOTIFY overlapChanged)
  Q_PROPERTY(qreal goalSeconds MEMBER goalSeconds NOTIFY goalChanged)
  Q_PROPERTY(QString goalProblem MEMBER goalProblem NOTIFY goalChanged)
  Q_PROPERTY(QString noteLabel MEMBER noteLabel NOTIFY titleChanged)
  Q_PROPERTY(QString note MEMBER note NOTIFY noteChanged)
  Q_PROPERTY(QString noteProblem MEMBER noteProblem NOTIFY noteChanged)
  Q_PROPERTY(QString zonesLabel MEMBER zonesLabel NOTIFY titleChanged)
  Q_PROPERTY(mivo::app::RecordRows* zones READ zones CONSTANT)
  Q_PROPERTY(QString failure MEMBER failure NOTIFY failureChanged)
  Q_PROPERTY(QString saveLabel MEMBER saveLabel NOTIFY titleChanged)
  Q_PROPERTY(QString removeLabel MEMBER removeLabel NOTIFY titleChanged)

 public:
  using Action = host::AppFeature::Action;
  FastDraftModel(std::function<PageClients()> clients, std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const host::AppFeature::State& state);
  /// Every text may read differently, though nothing was changed.
  void retell();
  RecordRows* zones() { return &zoneRows; }

  Q_INVOKABLE void setStart(double instant) { send(Action::didChangeDraftStart{dateSince1970(instant)}); }
  Q_INVOKABLE void setEnd(double instant) { send(Action::didChangeDraftEnd{dateSince1970(instant)}); }
  Q_INVOKABLE void setGoal(double seconds);
  Q_INVOKABLE void setNote(const QString& text) { send(Action::didChangeDraftNote{text.toStdString()}); }
  Q_INVOKABLE void save() { send(Action::didTapSaveDraft{}); }
  Q_INVOKABLE void remove();
  Q_INVOKABLE void dismiss() { send(Action::didDismissDraft{}); }

 Q_SIGNALS:
  void titleChanged();
  void startChanged();
  void endChanged();
  void lengthChanged();
  void overlapChanged();
  void goalChanged();
  void noteChanged();
  void failureChanged();
  /// It was saved or dismissed.
  void ended();

 private:
  std::function<PageClients()> clients;
  std::function<void(Action)> send;
  std::optional<host::FastDraft> draft;
  List<host::FastRecord> fasts;
  std::vector<Stamp> seen;
  RecordRows zoneRows{rolesOf<host::ZoneTimeText>()};
  QString title, startLabel, startText, startSpoken, startProblem, endLabel, endText, endSpoken, endProblem,
      lengthLabel, length, lengthSpoken, overlap, goalProblem, noteLabel, note, noteProblem, zonesLabel, failure,
      saveLabel, removeLabel;
  bool isNew = false;
  double start = 0, end = 0;
  qreal seconds = 0, goalSeconds = 0;
};

}  // namespace mivo::app
