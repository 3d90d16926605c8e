// SPDX-License-Identifier: MIT
#include "app/program/Window.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QVariant>
#include <QtQml/QQmlExtensionPlugin>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include "app/bridge/EngineModels.h"
#include "app/program/SystemZone.h"
#include "host/database/Database.h"

Q_IMPORT_QML_PLUGIN(MivoPlugin)

namespace mivo::app {
namespace {

constexpr int drawnAtLastAfterMilliseconds = 5000;

std::optional<host::AppearanceMode> modeOf(const Options& options) {
  if (options.dark) return host::AppearanceMode::dark;
  if (options.light || !options.picture.empty()) return host::AppearanceMode::light;
  return std::nullopt;
}

std::function<std::optional<std::string>()> following(std::shared_ptr<SystemZone> zone) {
  if (!zone) return {};
  return [zone = std::move(zone)] { return zone->follow(); };
}

}  // namespace

void settle(QQuickWindow& window, int stillMilliseconds) {
  QElapsedTimer sinceFrame, sinceBegin;
  sinceFrame.start();
  sinceBegin.start();
  const auto drawn = QObject::connect(&window, &QQuickWindow::frameSwapped, [&] { sinceFrame.restart(); });
  while (sinceFrame.elapsed() < stillMilliseconds && sinceBegin.elapsed() < drawnAtLastAfterMilliseconds)
    QCoreApplication::processEvents(QEventLoop::AllEvents, stillMilliseconds / 4);
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

AppWindow::AppWindow(const Environment& environment, const Options& options, QSize size)
    : look{nullptr},
      app{{.history = environment.history,
           .tips = environment.tips,
           .usualWeightUnit = environment.usualWeightUnit,
           .feedbackAddress = options.feedback,
           .calendar = environment.calendar,
           .appearance = &look,
           .about = {MIVO_VERSION, environment.databaseFile.string(), host::exportCommand(environment.databaseFile)},
           .followZone = following(environment.systemZone)}},
      settingsFaults{environment.settingsFaults.subscribe([this](const std::string& fault) { app.say(fault); })} {
  look.setOverride({.mode = modeOf(options), .textScale = options.textScale, .still = !options.picture.empty()});
  app.say(environment.notice);
  app.appear();
  giveModel(engine, app);
  giveModel(engine, look);
  engine.addImportPath(QStringLiteral("qrc:/"));
  engine.setInitialProperties({{QStringLiteral("width"), size.width()},
                               {QStringLiteral("height"), size.height()},
                               {QStringLiteral("tab"), QString::fromStdString(options.tab)},
                               {QStringLiteral("screen"), QString::fromStdString(options.screen)}});
  engine.load(QUrl{QStringLiteral("qrc:/Mivo/Main.qml")});
  // What the screen asked for when it appeared was answered by now: nothing moves after the first frame.
  QCoreApplication::sendPostedEvents(QCoreApplication::instance(), QEvent::MetaCall);
  if (!window()) return;
  QObject::connect(window(), &QWindow::visibilityChanged, &app, [this](QWindow::Visibility now) {
    app.setWatched(now != QWindow::Hidden && now != QWindow::Minimized);
  });
}

AppWindow::~AppWindow() = default;

QQuickWindow* AppWindow::window() const {
  return engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
}

FaultWindow::FaultWindow(const std::string& sentence, std::function<std::string()> tryAgain)
    : look{nullptr}, attempt{std::move(tryAgain)} {
  giveModel(engine, look);
  engine.addImportPath(QStringLiteral("qrc:/"));
  engine.setInitialProperties({{QStringLiteral("sentence"), QString::fromStdString(sentence)}});
  engine.load(QUrl{QStringLiteral("qrc:/Mivo/FaultWindow.qml")});
  if (window()) QObject::connect(window(), SIGNAL(againWanted()), this, SLOT(tryAgain()));
}

QQuickWindow* FaultWindow::window() const {
  return engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
}

void FaultWindow::tryAgain() {
  const std::string sentence = attempt();
  if (sentence.empty()) return void(window()->close());
  window()->setProperty("sentence", QString::fromStdString(sentence));
}

std::optional<std::string> drawInto(AppWindow& shown, const Options& options) {
  QQuickWindow& window = *shown.window();
  settle(window);
  if (options.whole) {
    window.setHeight(window.property("wholeHeight").toInt());
    settle(window);
  }
  if (window.grabWindow().save(QString::fromStdString(options.picture))) return std::nullopt;
  return options.picture + ": the picture could not be written";
}

}  // namespace mivo::app
