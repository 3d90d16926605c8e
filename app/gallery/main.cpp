// SPDX-License-Identifier: MIT
// Draws every screen in every size, appearance, language and with every kind of history, or only measures them.
#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QAnimationDriver>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QUrl>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlIncubationController>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <utility>

#include "app/gallery/Faults.h"
#include "app/program/Environment.h"
#include "app/program/Options.h"
#include "app/program/Window.h"

namespace mivo::app {
namespace {

struct Size {
  const char* name;
  QSize size;
};
constexpr std::array<Size, 4> sizes{
    {{"360x640", {360, 640}}, {"390x844", {390, 844}}, {"768x1024", {768, 1024}}, {"1280x800", {1280, 800}}}};

struct Language {
  const char *name, *locale;
  bool mirrored;
};
constexpr std::array<Language, 3> languages{
    {{"english", "en-GB", false}, {"german", "de-DE", false}, {"mirrored", "en-US", true}}};

struct History {
  const char *name, *snapshot;  // the snapshot itself; empty for the shipped ten years
};
constexpr std::array<History, 4> histories{{
    {"none", R"({"version":1,"fasts":[],"weights":[]})"},
    {"one", R"({"version":1,"fasts":[{"start":"2026-02-27T19:00:00Z","end":"2026-02-28T11:30:00Z"}],
                "weights":[{"date":"2026-02-28T07:00:00Z","weightInKg":72.4}]})"},
    {"overlapping", R"({"version":1,"fasts":[{"start":"2026-02-25T19:00:00Z","end":"2026-02-26T12:00:00Z"},
                {"start":"2026-02-26T11:00:00Z","end":"2026-02-27T03:00:00Z"},
                {"start":"2026-02-27T19:00:00Z","end":"2026-02-28T12:00:00Z"},
                {"start":"2026-02-27T19:05:00Z","end":"2026-02-28T12:10:00Z"},
                {"start":"2026-02-28T19:00:00Z","end":null}],"weights":[]})"},
    {"ten-years", ""},
}};

struct Look {
  const char* name;
  host::AppearanceMode mode;
  qreal textScale;
};
constexpr std::array<Look, 3> looks{{{"light", host::AppearanceMode::light, 1},
                                     {"dark", host::AppearanceMode::dark, 1},
                                     {"large-text", host::AppearanceMode::light, 2}}};

struct Wanted {
  std::string folder;  // none only measures
  double scale = 1;
  std::string data = "data";
  std::string tally;  // a vote server that runs
  std::string only;   // what the name of a picture contains
  int half = 0;       // 1 or 2 for every second history of each language
};

Options optionsFor(const Wanted& wanted, const History& history, const Language& language, const QDir& scratch) {
  Options options;
  options.now = "2026-03-01T12:00:00Z";
  options.timeZone = "Europe/Berlin";
  options.locale = language.locale;
  options.donations = wanted.data + "/donations.json";
  // Port 9: nobody listens, and the roadmap says that it is offline.
  const bool isOnline = !wanted.tally.empty() && &history != &histories[0];
  options.tally = isOnline ? wanted.tally : "http://127.0.0.1:9";
  options.picture = "-";  // a clock that stands still, and no motion
  options.sample = wanted.data + "/ten-years.json";
  if (*history.snapshot) {
    options.sample = scratch.filePath(QStringLiteral("history.json")).toStdString();
    std::ofstream{options.sample} << history.snapshot;
  }
  return options;
}

/// Takes every motion to its end in one step, whatever it lasts for users.
class Motion : public QAnimationDriver {
 public:
  qint64 elapsed() const override { return now; }
  void advance() override {
    now += 10'000;  // ms, more than any lasts
    advanceAnimation();
  }

 private:
  qint64 now = 0;
};

// What Qt and the app's QML warned of since a picture began; it is a fault of that picture.
QStringList warnings;

void noteWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
  const bool isOfTheDisplay = message.contains(QLatin1String{"This plugin does not support"});
  if (type != QtDebugMsg && type != QtInfoMsg && !isOfTheDisplay) warnings.append(message);
}

struct Gallery {
  const Wanted& wanted;
  Motion& motion;
  int drawn = 0, faulty = 0;
};

/// Runs events while a roadmap is loading.
void awaitRoadmap(AppModel& app) {
  const QDeadlineTimer deadline{5000};
  while (app.roadmap() && app.roadmap()->page().isLoading && !deadline.hasExpired())
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

/// Runs events until none is left, nothing moves and no item is still being made; a frame that was asked for is an
/// event.
void awaitFrames(const QQuickWindow& window, Motion& motion) {
  const QDeadlineTimer deadline{5000};
  QAbstractEventDispatcher& events = *QAbstractEventDispatcher::instance();
  QQmlIncubationController* making = qmlEngine(&window)->incubationController();
  while (!deadline.hasExpired()) {
    if (events.processEvents(QEventLoop::AllEvents)) continue;
    if (making && making->incubatingObjectCount() > 0)
      making->incubateFor(10);
    else if (motion.isRunning())
      motion.advance();
    else
      return;
  }
}

/// Draws what a window shows, where that is wanted, and measures it.
void drawAndMeasure(QQuickWindow& window, const QString& name, bool isColumn, Gallery& gallery) {
  awaitFrames(window, gallery.motion);
  const std::string& folder = gallery.wanted.folder;
  if (!folder.empty())
    window.grabWindow().save(QString::fromStdString(folder) + QLatin1Char{'/'} + name + QStringLiteral(".png"));
  if (isColumn) window.setHeight(window.property("wholeHeight").toInt());
  if (isColumn) awaitFrames(window, gallery.motion);
  for (const QString& fault : faultsOf(window) + std::exchange(warnings, {})) {
    std::cout << name.toStdString() << ": " << fault.toStdString() << '\n';
    ++gallery.faulty;
  }
  ++gallery.drawn;
}

// In the dark only colours differ, so one language tells; large text is tried where words are longest.
bool isMeasured(const Look& look, const Language& language) {
  if (look.mode == host::AppearanceMode::dark) return &language == &languages[0];
  return look.textScale == 1 || &language == &languages[1];
}

// What these show is answered by another thread or a server.
bool isAnsweredLater(host::Screen screen) {
  return screen == host::Screen::roadmap || screen == host::Screen::donations || screen == host::Screen::backups;
}

/// Each size and look that a window is to be seen in.
template <class Draw>
void inEachLook(const Wanted& wanted, const Language& language, Draw draw) {
  for (const Size& size : sizes)
    for (const Look& look : looks)
      if (!wanted.folder.empty() || isMeasured(look, language)) draw(size, look);
}

QString nameOf(const std::string& screen, const Size& size, const Look& look, const Language& language,
               const char* history) {
  return QStringList{QString::fromStdString(screen), QLatin1String{size.name}, QLatin1String{look.name},
                     QLatin1String{language.name}, QLatin1String{history}}
      .join(QLatin1Char{'-'});
}

bool isWanted(const QString& name, const Wanted& wanted) { return name.contains(QString::fromStdString(wanted.only)); }

void drawScreens(AppWindow& app, Gallery& gallery, const Language& language, const History& history) {
  QQuickWindow& window = *app.window();
  inEachLook(gallery.wanted, language, [&](const Size& size, const Look& shown) {
    app.overrideAppearance({.mode = shown.mode, .textScale = shown.textScale, .still = true});
    for (const host::Screen wanted : host::allScreens()) {
      const std::string screen{rawValue(wanted)};
      const QString name = nameOf(screen, size, shown, language, history.name);
      if (!isWanted(name, gallery.wanted)) continue;
      window.resize(size.size);
      if (wanted == host::Screen::restoring) {  // of one that is listed
        app.model().present(QStringLiteral("backups"));
        settle(window, 40);
      }
      app.model().present(QString::fromStdString(screen));
      awaitRoadmap(app.model());
      if (isAnsweredLater(wanted)) settle(window, 40);
      drawAndMeasure(window, name, wanted == host::Screen::statistics, gallery);
    }
  });
}

/// What stands in for the app where it cannot start.
void drawFault(Gallery& gallery, const Language& language) {
  const std::string sentence =
      filledIn(dependency(&Dependencies::texts)->text("{1} cannot be used: {2}"),
               {"/home/alexandra/.local/share/mivo/mivo.sqlite", "unable to open database file"});
  FaultWindow fault{{sentence}, {}};
  if (!fault.window()) throw std::runtime_error{"the window could not be made"};
  inEachLook(gallery.wanted, language, [&](const Size& size, const Look& shown) {
    for (const bool isDamaged : {false, true}) {
      const QString name = nameOf(isDamaged ? "fault-damaged" : "fault", size, shown, language, "none");
      if (!isWanted(name, gallery.wanted)) continue;
      fault.appearance().show({.mode = shown.mode, .textScale = shown.textScale, .reducesMotion = true});
      fault.window()->setProperty("isDamaged", isDamaged);
      fault.window()->resize(size.size);
      drawAndMeasure(*fault.window(), name, false, gallery);
    }
  });
}

struct BroughtFile {
  const char *name, *fileName, *content;
};
constexpr std::array<BroughtFile, 3> broughtFiles{
    {{"import-preview", "fasts of the last two years, from another app.csv",
      "start,end,mood\n2025-02-25T20:00Z,2025-02-26T12:00Z,fine\n2025-02-26T20:00Z,soon,\n"
      "2025-02-27T20:00Z,2025-02-27T12:00Z,\n2025-02-28T20:00Z,2025-03-01T12:00Z,tired\n"},
     {"import-question", "fasts.csv", "start,end\n02/03/2025 20:00,03/03/2025 12:00\n"},
     {"import-fault", "photo.png", "\x89PNG\r\n"}}};

/// What files would bring, in each state of that sheet.
void drawImports(AppWindow& app, Gallery& gallery, const Language& language, const History& history,
                 const QDir& scratch) {
  QQuickWindow& window = *app.window();
  ImportModel& sheet = *app.model().importing;
  inEachLook(gallery.wanted, language, [&](const Size& size, const Look& shown) {
    app.overrideAppearance({.mode = shown.mode, .textScale = shown.textScale, .still = true});
    for (const auto& [kind, fileName, content] : broughtFiles) {
      const QString name = nameOf(kind, size, shown, language, history.name);
      if (!isWanted(name, gallery.wanted)) continue;
      const QString path = scratch.filePath(QString::fromLatin1(fileName));
      std::ofstream{path.toStdString(), std::ios::binary} << content;
      window.resize(size.size);
      app.model().present({});
      sheet.choose({QUrl::fromLocalFile(path)});
      const QDeadlineTimer deadline{5000};
      while (sheet.property("progress").toDouble() >= 0 && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
      drawAndMeasure(window, name, false, gallery);
    }
  });
}

/// Lines that were pasted, and what of them is refused.
void drawTypedFasts(AppWindow& app, Gallery& gallery, const Language& language, const History& history) {
  QQuickWindow& window = *app.window();
  inEachLook(gallery.wanted, language, [&](const Size& size, const Look& shown) {
    const QString name = nameOf("severalFasts-preview", size, shown, language, history.name);
    if (!isWanted(name, gallery.wanted)) return;
    app.overrideAppearance({.mode = shown.mode, .textScale = shown.textScale, .still = true});
    window.resize(size.size);
    app.model().present({});
    app.model().present(QStringLiteral("severalFasts"));
    awaitFrames(window, gallery.motion);
    window.activeFocusItem()->setProperty(
        "text", QStringLiteral("- 2026-02-20 20:00 \u2013 2026-02-21 12:30\n- 2026-02-25 20:00, 16h\n"
                               "- 2026-02-26 20:00 \u2013 2026-02-26 25:00\n- 2025-10-26 02:30 \u2013 18:00"));
    drawAndMeasure(window, name, false, gallery);
  });
}

bool isInHalf(std::size_t number, const Wanted& wanted) {
  return wanted.half == 0 || number % 2 == static_cast<std::size_t>(wanted.half - 1);
}

int drawAll(Gallery gallery) {
  const Wanted& wanted = gallery.wanted;
  QDir scratch{QDir::temp().filePath(QStringLiteral("mivo-gallery-%1").arg(QCoreApplication::applicationPid()))};
  scratch.mkpath(QStringLiteral("."));
  std::size_t number = 0;
  for (const Language& language : languages) {
    ++number;  // so that neither half gets the longest history in every language
    for (const History& history : histories) {
      if (!isInHalf(number++, wanted)) continue;
      const Options options = optionsFor(wanted, history, language, scratch);
      const auto environment = makeEnvironment(options);
      if (!environment) throw std::runtime_error{environment.error()};
      const DependencyScope scope{environment->dependencies};
      QGuiApplication::setLayoutDirection(language.mirrored ? Qt::RightToLeft : Qt::LeftToRight);
      if (&history == &histories[0]) drawFault(gallery, language);
      if (&history != &histories[0])
        environment->files->backUp(environment->history->load(), environment->dependencies->date->now());
      AppWindow app{*environment, options, sizes[0].size};
      if (!app.window()) throw std::runtime_error{"the window could not be made"};
      settle(*app.window(), 40);
      drawScreens(app, gallery, language, history);
      if (&history == &histories[1]) drawImports(app, gallery, language, history, scratch);
      if (&history == &histories[1]) drawTypedFasts(app, gallery, language, history);
    }
  }
  scratch.removeRecursively();
  std::cout << gallery.drawn << " pictures, " << gallery.faulty << " faults\n";
  return gallery.faulty == 0 ? 0 : 1;
}

int run(int count, char** arguments) {
  CLI::App program{"Every screen of the app, drawn and measured.", "mivo-gallery"};
  Wanted wanted;
  program.add_option("--out", wanted.folder, "The folder for the pictures; without one they are only measured")
      ->type_name("FOLDER");
  program.add_option("--scale", wanted.scale, "Pixels of a picture to a point")->check(CLI::Range(0.5, 4.0));
  program.add_option("--only", wanted.only, "Only the pictures whose name contains this: 390x844-dark-german")
      ->type_name("TEXT");
  program.add_option("--half", wanted.half, "Only this half of the histories, so that two programs share the work")
      ->check(CLI::Range(1, 2))
      ->type_name("1|2");
  program.add_option("--data", wanted.data, "Where the sample histories are")->type_name("FOLDER");
  program.add_option("--tally", wanted.tally, "A vote server that runs; without one the roadmap is drawn offline")
      ->type_name("URL");
  CLI11_PARSE(program, count, arguments);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");  // frames come at once
  if (wanted.scale != 1) qputenv("QT_SCALE_FACTOR", QByteArray::number(wanted.scale));
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  int qtCount = 1;
  const QGuiApplication application{qtCount, arguments};
  if (!wanted.folder.empty()) QDir{}.mkpath(QString::fromStdString(wanted.folder));
  qInstallMessageHandler(noteWarning);
  Motion motion;
  motion.install();
  return drawAll({.wanted = wanted, .motion = motion});
}

}  // namespace
}  // namespace mivo::app

int main(int count, char** arguments) {
  try {
    return mivo::app::run(count, arguments);
  } catch (const std::exception& error) {
    std::cerr << "mivo-gallery: " << error.what() << '\n';
    return 1;
  }
}
