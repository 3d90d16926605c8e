// SPDX-License-Identifier: MIT
#include "app/program/Window.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtCore/QVariant>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtQml/QQmlExtensionPlugin>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtSvg/QSvgRenderer>

#include <algorithm>

#include "app/bridge/EngineModels.h"
#include "app/program/KeepReminding.h"
#include "app/program/Print.h"
#include "app/program/SystemZone.h"
#include "host/app/Settings.h"
#include "host/disk/DatabaseFile.h"
#include "host/reminders/ReminderSettings.h"

Q_IMPORT_QML_PLUGIN(MivoPlugin)

namespace mivo::app {
namespace {

constexpr int drawnAtLastAfterMilliseconds = 5000;

std::optional<host::AppearanceMode> modeOf(const Options& options) {
  if (options.dark) return host::AppearanceMode::dark;
  if (options.light || !options.picture.empty()) return host::AppearanceMode::light;
  return std::nullopt;
}

TimeRange rangeOf(const Options& options) {
  const auto wanted =
      std::ranges::find_if(allTimeRanges, [&](TimeRange range) { return rawValue(range) == options.range; });
  return wanted == allTimeRanges.end() ? TimeRange::week : *wanted;
}

std::optional<host::PrintedWeights> printedOf(const Options& options) {
  if (options.printed.empty()) return std::nullopt;
  return options.withWeights ? host::PrintedWeights::shown : host::PrintedWeights::hidden;
}

std::string openingTabOf(const AppModel& app, const UserDefaults& defaults, const Options& options) {
  if (!options.picture.empty()) return host::openingTab(options.tab, false, "");
  return host::openingTab(options.tab, app.state().runningFast() != nullptr, host::windowState(defaults).tab);
}

// The sign of the app, in the sizes that task bars and switchers have.
QIcon windowIcon() {
  QSvgRenderer sign{QStringLiteral(":/Mivo/icons/mivo.svg")};
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    QPixmap drawn{size, size};
    drawn.fill(Qt::transparent);
    QPainter painter{&drawn};
    sign.render(&painter);
    painter.end();
    icon.addPixmap(drawn);
  }
  return icon;
}

std::function<std::optional<std::string>()> following(std::shared_ptr<SystemZone> zone) {
  if (!zone) return {};
  return [zone = std::move(zone)] { return zone->follow(); };
}

// A sample is told of nowhere.
std::function<std::optional<std::string>(const host::ReminderSettings&)> keepingReminders(
    const Environment& environment, const Options& options) {
  if (environment.sampleFolder) return {};
  return [clients = environment.dependencies, database = options.database](const host::ReminderSettings& settings) {
    return keepReminding(settings, database, *clients->texts);
  };
}

}  // namespace

// Counts looks at the events, not time alone: a busy machine may let all of the time pass before it lets us draw.
void settle(QQuickWindow& window, int stillMilliseconds) {
  constexpr int looks = 4;
  int still = 0;
  const auto drawn = QObject::connect(&window, &QQuickWindow::frameSwapped, [&] { still = 0; });
  const QDeadlineTimer deadline{drawnAtLastAfterMilliseconds};
  while (still < looks && !deadline.hasExpired()) {
    ++still;
    QEventLoop events;
    QTimer::singleShot(stillMilliseconds / looks, &events, &QEventLoop::quit);
    events.exec();
  }
  QObject::disconnect(drawn);
}

std::optional<QSize> sizeOf(const std::string& text) {
  const auto parts = QString::fromStdString(text).split(QLatin1Char{'x'});
  if (parts.size() != 2) return std::nullopt;
  const QSize size{parts[0].toInt(), parts[1].toInt()};
  constexpr QSize least{320, 240}, most{8000, 8000};
  const bool isFit = size.expandedTo(least) == size && size.boundedTo(most) == size;
  return isFit ? std::optional{size} : std::nullopt;
}

void choosePainting(const Options& options) {
  if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND")) QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  if (!options.picture.empty()) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (options.scale != 1) qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
}

std::optional<QSize> openingSize(const Options& options, const UserDefaults& defaults) {
  if (!options.size.empty()) return sizeOf(options.size);
  if (!options.picture.empty()) return usualSize;
  return sizeOf(host::windowState(defaults).size).value_or(usualSize);
}

AppWindow::AppWindow(const Environment& environment, const Options& options, QSize size)
    : isPicture{!options.picture.empty()},
      defaults{environment.dependencies->userDefaults},
      look{host::appearance(*defaults)},
      words{*environment.dependencies->texts},
      app{{.dependencies = environment.dependencies,
           .history = environment.history,
           .files = environment.files,
           .health = environment.health,
           .tips = environment.tips,
           .timeRange = rangeOf(options),
           .printed = printedOf(options),
           .usualWeightUnit = environment.usualWeightUnit,
           .feedbackAddress = options.feedback,
           .calendar = environment.calendar,
           .appearance = &look,
           .about = {MIVO_VERSION, environment.databaseFile.string(), host::exportCommand(environment.databaseFile)},
           .followZone = following(environment.systemZone),
           .keepReminding = keepingReminders(environment, options)}},
      faults{environment.faults.subscribe([this](const std::string& fault) { app.say(fault); })} {
  overrideAppearance({.mode = modeOf(options), .textScale = options.textScale, .still = !options.picture.empty()});
  app.say(environment.notice);
  app.appear();
  app.present(QString::fromStdString(openingTabOf(app, *defaults, options)));
  giveModel(engine, app);
  giveModel(engine, look);
  giveModel(engine, words);
  engine.addImportPath(QStringLiteral("qrc:/"));
  engine.setInitialProperties({{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}});
  engine.load(QUrl{QStringLiteral("qrc:/Mivo/Main.qml")});
  if (!options.screen.empty()) app.present(QString::fromStdString(options.screen));
  // What the screen asked for when it appeared was answered by now: nothing moves after the first frame.
  QCoreApplication::sendPostedEvents(QCoreApplication::instance(), QEvent::MetaCall);
  if (!window()) return;
  QObject::connect(window(), &QWindow::visibilityChanged, &app, [this](QWindow::Visibility now) {
    app.setWatched(now != QWindow::Hidden && now != QWindow::Minimized);
  });
  // The first frame need not wait for these.
  QTimer::singleShot(0, &app, [this] {
    window()->setIcon(windowIcon());
    if (!isPicture) app.send(AppModel::Action::didStart{});
  });
  end.emplace(*window());
}

void AppWindow::overrideAppearance(host::AppearanceOverride given) {
  app.send(AppModel::Action::settings{host::SettingsFeature::Action::didOverrideAppearance{given}});
}

AppWindow::~AppWindow() { keepState(); }

void AppWindow::keepState() const {
  const QQuickWindow* shown = window();
  if (isPicture || !shown) return;
  host::WindowState state = host::windowState(*defaults);
  const bool fillsTheScreen = shown->visibility() == QWindow::Maximized || shown->visibility() == QWindow::FullScreen;
  if (!fillsTheScreen) state.size = std::to_string(shown->width()) + "x" + std::to_string(shown->height());
  state.tab = rawValue(tabOf(openScreen(app.state())));
  host::setWindowState(*defaults, state);
}

QQuickWindow* AppWindow::window() const {
  return engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
}

FaultWindow::FaultWindow(const Obstacle& obstacle, Attempts ways)
    : look{host::appearance(*dependency(&Dependencies::userDefaults))},
      words{*dependency(&Dependencies::texts)},
      attempts{std::move(ways)} {
  giveModel(engine, look);
  giveModel(engine, words);
  engine.addImportPath(QStringLiteral("qrc:/"));
  engine.setInitialProperties({{QStringLiteral("sentence"), QString::fromStdString(obstacle.sentence)},
                               {QStringLiteral("isDamaged"), obstacle.isDamaged}});
  engine.load(QUrl{QStringLiteral("qrc:/Mivo/FaultWindow.qml")});
  if (!window()) return;
  QObject::connect(window(), SIGNAL(againWanted()), this, SLOT(tryAgain()));
  QObject::connect(window(), SIGNAL(backupWanted()), this, SLOT(restore()));
  QObject::connect(window(), SIGNAL(newWanted()), this, SLOT(beginAnew()));
}

QQuickWindow* FaultWindow::window() const {
  return engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
}

void FaultWindow::show(const Obstacle& obstacle) {
  if (obstacle.sentence.empty()) return void(window()->close());
  window()->setProperty("sentence", QString::fromStdString(obstacle.sentence));
  window()->setProperty("isDamaged", obstacle.isDamaged);
}

std::optional<std::string> drawInto(AppWindow& shown, const Options& options) {
  QQuickWindow& window = *shown.window();
  settle(window);
  if (options.whole) {
    window.setHeight(window.property("wholeHeight").toInt());
    settle(window);
  }
  if (!options.printed.empty()) return print(window, options.printed);
  if (window.grabWindow().save(QString::fromStdString(options.picture))) return std::nullopt;
  return options.picture + ": the picture could not be written";
}

}  // namespace mivo::app
