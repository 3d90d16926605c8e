// SPDX-License-Identifier: MIT
// mivo-reminder: tells the user of what they asked for while the app's window is closed, and while it is open.
#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <CLI/CLI.hpp>
#include <iostream>
#include <string>

#include "adapters/manual/ManualPage.h"
#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/UserDirectories.h"
#include "app/reminder/Reminding.h"
#include "host/autostart/Autostart.h"
#include "host/disk/DatabaseFile.h"
#include "host/versions/Versions.h"

namespace mivo::app {
namespace {

constexpr int atFault = 1, wrongUsage = 2;

constexpr const char* footer =
    "The app starts it when a reminder is switched on in its settings, and the desktop at every login after that. It "
    "ends when the last one is switched off.\n\n"
    "Examples:\n"
    "  mivo-reminder\n"
    "  mivo-reminder --database ~/history.sqlite\n\n"
    "Exit status: 0 there was nothing to be told, or another of its kind was started, 1 something stood against it, 2 "
    "the command line did.";

int refused(int status, const std::string& sentence) {
  std::cerr << "mivo-reminder: " << sentence << '\n';
  return status;
}

int remind(int count, char** arguments, const std::string& database) {
  if (!host::reminderSettings(adapters::FileUserDefaults{adapters::appDefaultsFile()}).isAny()) return 0;
  const QCoreApplication application{count, arguments};
  Reminding reminding{database.empty() ? host::ownDatabaseFile() : std::filesystem::absolute(database)};
  QObject::connect(&reminding, &Reminding::done, &application, &QCoreApplication::quit, Qt::QueuedConnection);
  QTimer::singleShot(0, &reminding, &Reminding::look);
  return QCoreApplication::exec();
}

int run(int count, char** arguments) {
  CLI::App program{"Tells when a fast has reached its goal, or an eating window its length.", "mivo-reminder"};
  std::string database;
  program.add_option("--database", database, "The history; default: your own")->type_name("FILE");
  program.set_version_flag("--version", [] { return host::versionText("mivo-reminder " MIVO_VERSION, {}); });
  program.footer(footer);
  adapters::addManualPage(program, {MIVO_VERSION,
                                    {{host::ownDatabaseFile(), "The fasts that it tells of; it changes nothing there"},
                                     {adapters::appDefaultsFile(), "The settings, and which fast was told of last"},
                                     {host::autostartFile(), "Has the desktop start it at login"}}});
  try {
    program.parse(count, arguments);
  } catch (const CLI::Success& asked) {
    return program.exit(asked);
  } catch (const CLI::ParseError& error) {
    return refused(wrongUsage, std::string{error.what()} + "; mivo-reminder --help tells what can be asked");
  }
  return remind(1, arguments, database);  // the options are ours
}

}  // namespace
}  // namespace mivo::app

int main(int count, char** arguments) {
  try {
    return mivo::app::run(count, arguments);
  } catch (const std::exception& error) {
    return mivo::app::refused(mivo::app::atFault, error.what());
  }
}
