// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <functional>
#include <optional>

#include "app/bridge/FastDraftModel.h"
#include "app/bridge/FastHistoryModel.h"
#include "app/bridge/ZoneTime.h"
#include "host/app/AppFeature.h"

namespace mivo::app {

/// The fast that runs, or the eating window since the last one, second by second; the buttons under it, the history and
/// the draft of the fast that is edited.
class FastingModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(bool running READ isRunning NOTIFY changed)
  /// No fast runs, but one has ended.
  Q_PROPERTY(bool eating READ isEating NOTIFY changed)
  /// Whether anybody sees the seconds; else only the minutes go on.
  Q_PROPERTY(bool watched MEMBER watched WRITE setWatched NOTIFY watchedChanged)
  /// "16:42:08": how long the fast runs, or how long ago the last one ended; empty before the first one.
  Q_PROPERTY(QString elapsed READ elapsed NOTIFY ticked)
  /// "16h 42m": the same in words.
  Q_PROPERTY(QString duration READ duration NOTIFY ticked)
  Q_PROPERTY(QString zone READ zone NOTIFY ticked)
  Q_PROPERTY(QString zoneName READ presentZoneName NOTIFY ticked)
  /// "3h 17m to your goal", "1h 2m past your goal", "since your last fast".
  Q_PROPERTY(QString goalText READ goalText NOTIFY ticked)
  /// What is wrong with the running fast, in a sentence: it begins in the future, or overlaps another one.
  Q_PROPERTY(QString warning READ warning NOTIFY ticked)
  /// How long the running fast was in each zone.
  Q_PROPERTY(QList<mivo::app::ZoneTime> zones MEMBER shownZones NOTIFY zonesChanged)
  /// "Today, 20:14"
  Q_PROPERTY(QString startedText READ startedText NOTIFY ticked)
  Q_PROPERTY(double started READ started NOTIFY changed)
  /// "20h, today 16:42"; "20h" where no fast runs.
  Q_PROPERTY(QString goal READ goal NOTIFY ticked)
  Q_PROPERTY(qreal goalSeconds READ goalSeconds NOTIFY changed)
  /// "16h 31m"; empty where none has ended.
  Q_PROPERTY(QString lastFast READ lastFast NOTIFY changed)
  /// Seconds since the start, in steps of ten, and what the ring spans.
  Q_PROPERTY(qreal seconds READ ringSeconds NOTIFY ticked)
  Q_PROPERTY(qreal spanSeconds READ spanSeconds NOTIFY ticked)
  /// Where the ring names hours, in seconds, and what it says there.
  Q_PROPERTY(QList<qreal> marks READ marks NOTIFY ticked)
  Q_PROPERTY(QStringList markTexts READ markTexts NOTIFY ticked)
  Q_PROPERTY(mivo::app::FastHistoryModel* history READ history CONSTANT)
  Q_PROPERTY(mivo::app::FastDraftModel* draft READ draft CONSTANT)

 public:
  using Action = host::AppFeature::Action;
  FastingModel(std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const host::AppFeature::State& state);
  /// Every text may read differently, though no record was changed.
  void retell();

  bool isRunning() const { return running.has_value(); }
  bool isEating() const { return !running && last; }
  void setWatched(bool seen);
  QString elapsed() const;
  QString duration() const { return durationText(seconds()); }
  QString zone() const { return zoneKey(presentZone()); }
  QString presentZoneName() const { return zoneName(presentZone()); }
  QString goalText() const;
  QString warning() const;
  QString startedText() const;
  double started() const { return running ? secondsSince1970(running->fast.start) : 0; }
  QString goal() const;
  qreal goalSeconds() const;
  QString lastFast() const;
  qreal ringSeconds() const;
  qreal spanSeconds() const;
  QList<qreal> marks() const;
  QStringList markTexts() const;
  FastHistoryModel* history() { return &ended; }
  FastDraftModel* draft() { return &edited; }

  Q_INVOKABLE void start();
  Q_INVOKABLE void stop();
  /// Why the running fast cannot begin at an instant, in a sentence; empty where it can.
  Q_INVOKABLE QString startProblem(double instant) const;
  Q_INVOKABLE void changeStart(double instant);
  /// Of the running fast, and of those to come.
  Q_INVOKABLE void changeGoal(double seconds);
  /// Begins the draft with the fast of a row, or with a new one.
  Q_INVOKABLE void edit(int row);
  Q_INVOKABLE void add();
  /// "16h" for a goal, for a button; "16:30" for one that is typed.
  Q_INVOKABLE QString hoursText(double seconds) const;
  Q_INVOKABLE QString typedGoal(double seconds) const;
  /// The seconds that "17", "16.5", "16,5" or "16:30" say; 0 for any other text.
  Q_INVOKABLE double parsedGoal(const QString& text) const;

 Q_SIGNALS:
  void changed();
  void ticked();
  void watchedChanged();
  void zonesChanged();

 private:
  double seconds() const;
  LegacyFastingZone presentZone() const { return running ? zoneAfter(seconds()) : LegacyFastingZone::eating; }
  void tick();
  void waitForTheNextTick();

  std::function<void(Action)> send;
  List<host::FastRecord> fasts;
  std::optional<host::FastRecord> running;
  std::optional<FinishedFastingDataEntry> last;  // the one that ended last
  std::int64_t nextGoalSeconds = 0;
  FastHistoryModel ended;
  FastDraftModel edited;
  QString overlap;
  QList<ZoneTime> shownZones;
  bool watched = false;
  QTimer timer;
};

}  // namespace mivo::app
