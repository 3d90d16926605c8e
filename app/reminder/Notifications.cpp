// SPDX-License-Identifier: MIT
#include "app/reminder/Notifications.h"

#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusServiceWatcher>

namespace mivo::app {
namespace {

constexpr int longestWaitMilliseconds = 10'000;
const QString connectionName = QStringLiteral("mivo"), ownName = QStringLiteral("app.mivo.Reminder"),
              service = QStringLiteral("org.freedesktop.Notifications");

QString qString(const std::string& text) { return QString::fromStdString(text); }

QDBusMessage messageOf(const host::ReminderText& text) {
  constexpr unsigned replacesNone = 0;
  constexpr int asLongAsUsual = -1;
  constexpr uchar normalUrgency = 1;
  const QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("mivo")},
                          {QStringLiteral("urgency"), QVariant::fromValue(normalUrgency)}};
  auto message = QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"), service,
                                                QStringLiteral("Notify"));
  message << QStringLiteral("Mivo") << replacesNone << QStringLiteral("mivo") << qString(text.title)
          << qString(text.sentence) << QStringList{} << hints << asLongAsUsual;
  return message;
}

}  // namespace

Notifications::Notifications() : bus{connectionName} { connectToBus(Name::takenOver); }

Notifications::~Notifications() {
  services.reset();
  QDBusConnection::disconnectFromBus(connectionName);
}

std::optional<std::string> Notifications::connectToBus(Name name) {
  services.reset();
  QDBusConnection::disconnectFromBus(connectionName);
  bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
  if (!bus.isConnected()) return bus.lastError().message().toStdString();
  connect(bus.interface(), &QDBusConnectionInterface::serviceUnregistered, this, [this](const QString& lost) {
    if (lost == ownName) Q_EMIT handedOver();
  });
  services = std::make_unique<QDBusServiceWatcher>(service, bus, QDBusServiceWatcher::WatchForRegistration);
  connect(services.get(), &QDBusServiceWatcher::serviceRegistered, this, &Notifications::cameUp);
  const auto asked = name == Name::takenOver ? QDBusConnectionInterface::ReplaceExistingService
                                             : QDBusConnectionInterface::DontQueueService;
  const auto answer = bus.interface()->registerService(ownName, asked, QDBusConnectionInterface::AllowReplacement);
  if (answer.value() != QDBusConnectionInterface::ServiceNotRegistered) return std::nullopt;
  Q_EMIT handedOver();
  return "another program of its kind tells already";
}

std::optional<std::string> Notifications::show(const host::ReminderText& text) {
  if (!bus.isConnected())
    if (auto fault = connectToBus(Name::leftToOthers)) return fault;
  const QDBusMessage answer = bus.call(messageOf(text), QDBus::Block, longestWaitMilliseconds);
  if (answer.type() == QDBusMessage::ReplyMessage) return std::nullopt;
  return answer.errorMessage().toStdString();
}

}  // namespace mivo::app
