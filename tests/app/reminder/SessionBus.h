// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QProcess>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>

#include "tests/support/TemporaryFolder.h"

namespace mivo::app {

/// A session bus that nothing of this machine is on, and that starts nothing by itself.
class SessionBus {
 public:
  /// Throws where there is no dbus-daemon.
  SessionBus();
  ~SessionBus();
  SessionBus(const SessionBus&) = delete;
  SessionBus& operator=(const SessionBus&) = delete;

  QString address() const { return at; }
  /// This process's own connection.
  QDBusConnection& connection() { return connected; }

 private:
  tests::TemporaryFolder folder;
  QProcess daemon;
  QString at;
  QDBusConnection connected;
};

struct ShownNotification {
  QString program, icon, title, sentence;
  QVariantMap hints;
};

/// What a desktop has in this place: it keeps what it was to show.
class NotificationService : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

 public:
  explicit NotificationService(SessionBus& bus);
  ~NotificationService() override;

  /// True once so many were shown; false where that takes too long.
  bool awaits(int count) const;

  QList<ShownNotification> shown;

 public Q_SLOTS:
  uint Notify(const QString& program, uint replaces, const QString& icon, const QString& title, const QString& sentence,
              const QStringList& actions, const QVariantMap& hints, int milliseconds);

 private:
  QDBusConnection bus;
};

}  // namespace mivo::app
