// SPDX-License-Identifier: MIT
#include "app/program/KeepReminding.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>

#include <filesystem>
#include <system_error>

#include "host/autostart/Autostart.h"

namespace mivo::app {
namespace {

namespace fs = std::filesystem;

host::Command reminderCommand(const std::string& database) {
  const fs::path program = fs::path{QCoreApplication::applicationDirPath().toStdString()} / "mivo-reminder";
  if (database.empty()) return {program.string()};
  return {program.string(), "--database", fs::absolute(database).string()};
}

bool start(const host::Command& command) {
  QStringList arguments;
  for (std::size_t place = 1; place < command.size(); ++place) arguments.append(QString::fromStdString(command[place]));
  return QProcess::startDetached(QString::fromStdString(command.front()), arguments);
}

}  // namespace

std::optional<std::string> keepReminding(const host::ReminderSettings& settings, const std::string& database,
                                         const TextLookup& texts) {
  const fs::path file = host::autostartFile();
  try {
    if (!settings.isAny()) {
      host::startNoLongerAtLogin(file);
      return std::nullopt;
    }
    const host::Command command = reminderCommand(database);
    if (!start(command))
      return filledIn(texts.text("Reminders will not come: {1} cannot be started."), {command.front()});
    host::startAtLogin(file, command);
  } catch (const std::system_error& error) {
    return filledIn(texts.text("Reminders will not come while the window is closed: {1}: {2}"),
                    {file.string(), error.code().message()});
  }
  return std::nullopt;
}

}  // namespace mivo::app
