// SPDX-License-Identifier: MIT
#include "tests/app/reminder/SessionBus.h"

#include <QtDBus/QDBusError>
#include <QtTest/QTest>
#include <fstream>
#include <stdexcept>

namespace mivo::app {
namespace {

constexpr const char* configuration = R"(<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
</busconfig>
)";
const QString name = QStringLiteral("org.freedesktop.Notifications"),
              path = QStringLiteral("/org/freedesktop/Notifications");

QDBusConnection connectedTo(const QString& address) {
  auto bus = QDBusConnection::connectToBus(address, QStringLiteral("tests"));
  if (!bus.isConnected()) throw std::runtime_error{bus.lastError().message().toStdString()};
  return bus;
}

QString started(QProcess& daemon, const std::string& file) {
  std::ofstream{file} << configuration;
  daemon.setStandardErrorFile(QProcess::nullDevice());  // says that it may not have as many files as it would like
  daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file"), QString::fromStdString(file),
                                               QStringLiteral("--nofork"), QStringLiteral("--print-address")});
  while (!daemon.canReadLine())
    if (!daemon.waitForReadyRead()) throw std::runtime_error{"dbus-daemon does not start"};
  return QString::fromLatin1(daemon.readLine()).trimmed();
}

}  // namespace

SessionBus::SessionBus() : at{started(daemon, folder.file("bus.conf"))}, connected{connectedTo(at)} {}

SessionBus::~SessionBus() {
  QDBusConnection::disconnectFromBus(QStringLiteral("tests"));
  daemon.terminate();
  daemon.waitForFinished();
}

NotificationService::NotificationService(SessionBus& session) : bus{session.connection()} {
  if (!bus.registerObject(path, this, QDBusConnection::ExportAllSlots) || !bus.registerService(name))
    throw std::runtime_error{bus.lastError().message().toStdString()};
}

NotificationService::~NotificationService() {
  bus.unregisterService(name);
  bus.unregisterObject(path);
}

uint NotificationService::Notify(const QString& program, uint, const QString& icon, const QString& title,
                                 const QString& sentence, const QStringList&, const QVariantMap& hints, int) {
  shown.append({program, icon, title, sentence, hints});
  return static_cast<uint>(shown.size());
}

bool NotificationService::awaits(int count) const {
  return QTest::qWaitFor([&] { return shown.size() >= count; }, 30'000);
}

}  // namespace mivo::app
