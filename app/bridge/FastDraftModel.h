// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

#include "app/bridge/RecordRows.h"
#include "host/app/AppFeature.h"
#include "host/pages/FastingPage.h"

namespace mivo::app {

/// The draft of a fast; once there is none any more, as it was last. Instants are seconds since 1970.
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
  Q_PROPERTY(mivo::app::RecordRows* zones READ zones CONSTANT)
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
  FastDraftModel(std::function<host::PageClients()> clients, std::function<void(Action)> send,
                 QObject* parent = nullptr);

  void follow(const host::AppFeature::State& state);
  /// Every text may read differently, though nothing was changed.
  void retell();

  bool isNew() const { return !draft.before; }
  double start() const { return secondsSince1970(draft.record.fast.start); }
  double end() const { return secondsSince1970(finished().end); }
  QString startText() const;
  QString endText() const;
  QString length() const;
  qreal seconds() const { return finished().duration(); }
  qreal goalSeconds() const { return static_cast<qreal>(draft.record.fast.goalSeconds); }
  RecordRows* zones() { return &zoneRows; }
  QString startProblem() const;
  QString endProblem() const;
  QString goalProblem() const;
  QString failure() const { return QString::fromStdString(draft.failure); }
  QString overlap() const;

  Q_INVOKABLE void setStart(double instant) { send(Action::didChangeDraftStart{dateSince1970(instant)}); }
  Q_INVOKABLE void setEnd(double instant) { send(Action::didChangeDraftEnd{dateSince1970(instant)}); }
  Q_INVOKABLE void setGoal(double seconds);
  Q_INVOKABLE void save() { send(Action::didTapSaveDraft{}); }
  Q_INVOKABLE void remove();
  Q_INVOKABLE void dismiss() { send(Action::didDismissDraft{}); }

 Q_SIGNALS:
  void changed();
  /// It was saved or dismissed.
  void ended();

 private:
  const FinishedFastingDataEntry& finished() const { return *draft.record.fast.finished; }

  std::function<host::PageClients()> clients;
  std::function<void(Action)> send;
  host::FastDraft draft;
  List<host::FastRecord> fasts;
  RecordRows zoneRows{rolesOf<host::ZoneTimeText>()};
  bool isOpen = false;
};

}  // namespace mivo::app
