// SPDX-License-Identifier: MIT
#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstring>
#include <exception>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "adapters/manual/ManualPage.h"
#include "adapters/system/FreedMemory.h"
#include "adapters/system/UserDirectories.h"
#include "app/program/Environment.h"
#include "app/program/Options.h"
#include "app/program/Restart.h"
#include "app/program/Window.h"
#include "host/disk/DatabaseFile.h"
#include "host/versions/Versions.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::app {
namespace {

constexpr int atFault = 1, wrongUsage = 2;

int refused(int status, const std::string& sentence) {
  std::cerr << "mivo-app: " << sentence << '\n';
  return status;
}

// Until the history is open, or the user gives up.
bool askUntilOpen(Environment& environment, const Options& options) {
  const auto attempt = [&](bool (*open)(Environment&, const Options&)) {
    return [&environment, &options, open] {
      return open(environment, options) ? Obstacle{} : Obstacle{environment.notice, environment.isDamaged};
    };
  };
  FaultWindow shown{{environment.notice, environment.isDamaged},
                    {attempt(openHistory), attempt(restoreNewestBackup), attempt(beginAnew)}};
  if (shown.window()) QGuiApplication::exec();
  return environment.history != nullptr;
}

int show(QGuiApplication& application, const Options& options) {
  auto environment = makeEnvironment(options);
  if (!environment) return refused(atFault, environment.error());
  const auto size = openingSize(options, *environment->dependencies->userDefaults);
  if (!size) return refused(wrongUsage, "--size: expected a width of 320 and a height of 240 or more, as in 390x844");
  const DependencyScope scope{environment->dependencies};
  if (options.mirrored || environment->rightToLeft) QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  if (!environment->history && (!options.picture.empty() || !askUntilOpen(*environment, options)))
    return refused(atFault, environment->notice);
  AppWindow shown{*environment, options, *size};
  if (!shown.window()) return refused(atFault, "the window could not be made");
  if (options.picture.empty()) {
    QObject::connect(shown.model().settings, &SettingsModel::languageChosen, &application,
                     [] { QGuiApplication::exit(startAnew); });
    const int status = application.exec();
    if (status == startAnew && environment->sampleFolder) environment->sampleFolder->bequeath();
    return status;
  }
  if (const auto fault = drawInto(shown, options)) return refused(atFault, *fault);
  if (!options.printed.empty())
    std::cout << filledIn(environment->dependencies->texts->text("Exported to {1}"), {options.printed}) << std::endl;
  return 0;
}

int run(int count, char** arguments) {
  CLI::App program{"Mivo: intermittent fasting, and the statistics of it.", "mivo-app"};
  bool isVerbose = false;  // looked at before --version is answered
  CLI::Option* const verbose = program.add_flag("--verbose", isVerbose, "With --version: the libraries and the zones");
  verbose->needs(program.set_version_flag("--version", [&isVerbose] {
    auto details = isVerbose ? host::versionsInUse() : std::vector<host::Version>{};
    if (isVerbose) details.push_back({"Qt", qVersion()});
    return host::versionText("mivo-app " MIVO_VERSION, details);
  }));
  Options options;
  addOptions(program, options);
  adapters::addManualPage(program,
                          {MIVO_VERSION,
                           {{host::ownDatabaseFile(), "The fasts and weights, the app's and the command line's"},
                            {adapters::appDefaultsFile(), "The settings"}}});
  try {
    program.parse(count, arguments);
  } catch (const CLI::Success& asked) {
    return program.exit(asked);
  } catch (const CLI::ParseError& error) {
    return refused(wrongUsage, std::string{error.what()} + "; mivo-app --help tells what can be asked");
  }
  if (!options.printed.empty()) options = asPrinted(std::move(options));
  choosePainting(options);
  int qtCount = 1;  // the options are ours
  QGuiApplication application{qtCount, arguments};
  QGuiApplication::setApplicationName(QStringLiteral("mivo"));
  QGuiApplication::setApplicationDisplayName(QStringLiteral("Mivo"));
  QGuiApplication::setDesktopFileName(QStringLiteral("mivo"));
  return show(application, options);
}

}  // namespace
}  // namespace mivo::app

int main(int count, char** arguments) {
  mivo::adapters::keepFreedMemory();
  try {
    const std::vector<std::string> asked(arguments, arguments + count);
    const int status = mivo::app::run(count, arguments);
    if (status != mivo::app::startAnew) return status;
    mivo::app::becomeAnew(asked);
    return mivo::app::refused(mivo::app::atFault,
                              std::string{"the language cannot be changed now: "} + std::strerror(errno));
  } catch (const std::exception& error) {
    return mivo::app::refused(mivo::app::atFault, error.what());
  }
}
