// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>

#include <memory>
#include <optional>
#include <string>

#include "host/reminders/ReminderText.h"

class QDBusServiceWatcher;

namespace mivo::app {

/// The desktop's notifications, over the user's session bus. There this program has a name, which one program at a time
/// can have: whichever was started last takes it over, so that nobody is told twice.
class Notifications : public QObject {
  Q_OBJECT

 public:
  Notifications();
  ~Notifications() override;

  /// Shows a notification and waits until the desktop has taken it; a sentence where it did not. A bus that was not
  /// there, or has gone, is looked for again. Waits 10 seconds at most.
  std::optional<std::string> show(const host::ReminderText& text);

 Q_SIGNALS:
  /// There is somebody to show notifications now.
  void cameUp();
  /// Another program tells from now on.
  void handedOver();

 private:
  enum class Name { takenOver, leftToOthers };
  std::optional<std::string> connectToBus(Name name);

  QDBusConnection bus;
  std::unique_ptr<QDBusServiceWatcher> services;
};

}  // namespace mivo::app
