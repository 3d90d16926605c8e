// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

#include <optional>

#include "adapters/system/FileDescriptor.h"
#include "mivo/model/Date.h"

namespace mivo::app {

/// Rings at an instant of the wall clock: at once where it passed while the machine slept, and whenever the clock is
/// set, because the instant is then another while away than it was. It wakes the program for nothing else.
class WallClockAlarm : public QObject {
  Q_OBJECT

 public:
  /// Throws std::system_error where the system has no more timers to give.
  WallClockAlarm();

  /// In the place of any instant before; for none it rings within a day.
  void setTo(std::optional<Date> instant);

 Q_SIGNALS:
  void rang();

 private:
  void ring();

  adapters::FileDescriptor timer;
  QSocketNotifier notifier;
};

}  // namespace mivo::app
