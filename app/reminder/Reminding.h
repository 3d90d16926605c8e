// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>

#include <filesystem>
#include <optional>
#include <set>
#include <string>

#include "adapters/system/FileUserDefaults.h"
#include "app/reminder/FileWatch.h"
#include "app/reminder/Notifications.h"
#include "app/reminder/WallClockAlarm.h"
#include "host/reminders/Reminder.h"

namespace mivo::app {

/// Tells the user of what they asked for, when it is due. It looks at the history and the settings whenever one of
/// them, or the clock, has changed, and sleeps between.
class Reminding : public QObject {
  Q_OBJECT

 public:
  explicit Reminding(std::filesystem::path database);

  /// Tells what is due, and waits for what comes next; once the user wants nothing more, emits `done` and does nothing.
  void look();

 Q_SIGNALS:
  /// There is nothing left to do for this program: nothing is to be told, or another one tells it.
  void done();

 private:
  std::optional<host::History> history();
  bool tell(const host::Reminder& reminder);
  void complain(const std::string& sentence);

  std::filesystem::path database;
  adapters::FileUserDefaults defaults;
  FileWatch files;
  WallClockAlarm alarm;
  Notifications notifications;
  std::set<std::string> complaints;  // each is said once
};

}  // namespace mivo::app
