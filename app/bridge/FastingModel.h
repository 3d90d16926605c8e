// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>

#include <functional>
#include <optional>

#include "host/app/AppFeature.h"
#include "mivo/model/LegacyFastingZone.h"

namespace mivo::app {

/// The fast that runs, second by second, and the buttons under it.
class FastingModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(bool running READ isRunning NOTIFY changed)
  /// "16:42:08": how long the fast runs, or how long ago the last one ended; empty before the first one.
  Q_PROPERTY(QString elapsed READ elapsed NOTIFY ticked)
  /// "16h 42m": the same in words.
  Q_PROPERTY(QString duration READ duration NOTIFY ticked)
  Q_PROPERTY(QString zone READ zone NOTIFY ticked)
  Q_PROPERTY(QString zoneName READ zoneName NOTIFY ticked)
  /// "3h 17m to your goal", "1h 2m past your goal".
  Q_PROPERTY(QString goalText READ goalText NOTIFY ticked)
  /// "Today, 20:14"
  Q_PROPERTY(QString startedText READ startedText NOTIFY changed)
  Q_PROPERTY(QString goalLength READ goalLength NOTIFY changed)
  /// Seconds since the start, and what the ring spans.
  Q_PROPERTY(qreal seconds READ seconds NOTIFY ticked)
  Q_PROPERTY(qreal spanSeconds READ spanSeconds NOTIFY ticked)

 public:
  using Action = host::AppFeature::Action;
  FastingModel(std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const host::AppFeature::State& state);

  bool isRunning() const { return running.has_value(); }
  QString elapsed() const;
  QString duration() const;
  QString zone() const;
  QString zoneName() const;
  QString goalText() const;
  QString startedText() const;
  QString goalLength() const;
  qreal seconds() const;
  qreal spanSeconds() const;

  Q_INVOKABLE void start();
  Q_INVOKABLE void stop();
  Q_INVOKABLE void changeGoal(int hours);

 Q_SIGNALS:
  void changed();
  void ticked();

 private:
  LegacyFastingZone presentZone() const;
  std::int64_t goalSeconds() const;

  std::function<void(Action)> send;
  std::optional<host::FastRecord> running;
  std::optional<Date> lastEnd;
  QTimer timer;
};

}  // namespace mivo::app
