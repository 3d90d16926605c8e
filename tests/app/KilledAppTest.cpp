// SPDX-License-Identifier: MIT
// The app is killed while somebody records fasts with it, again and again: what it had shown is still there, and it
// starts again as if nothing had been.
#include <gtest/gtest.h>

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <map>
#include <sstream>

#include "host/disk/DatabaseFile.h"
#include "host/fasting/Fasting.h"
#include "tests/app/ShownApp.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/ChildProcess.h"

namespace mivo::app {
namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr const char* recording = "--record";

void clickOnce(ShownApp& app, const QString& text) {
  const QQuickItem* button = nullptr;
  if (!eventually([&] { return (button = app.button(text)) != nullptr; })) throw std::runtime_error{"no button"};
  const QPointF middle{button->width() / 2, button->height() / 2};
  QTest::mouseClick(&app.window(), Qt::LeftButton, Qt::NoModifier, button->mapToScene(middle).toPoint());
}

// Starts and stops fasts until it is killed, and says which, once the screen has said so. Each is moved an hour back,
// or nothing would be kept of one that is stopped at once.
[[noreturn]] void recordUntilKilled(const std::string& database) {
  Options options = ShownApp::optionsFor("");
  options.database = database;
  options.now.clear();
  options.tab = "fasting";
  ShownApp app{options, {390, 1400}};
  std::cout << "ready " << app.model().failure().toStdString() << std::endl;
  if (app.state().runningFast()) clickOnce(app, QStringLiteral("Stop fast"));
  for (;;) {
    clickOnce(app, QStringLiteral("Start fast"));
    if (!eventually([&] { return app.button(QStringLiteral("Stop fast")) != nullptr; })) std::abort();
    const UUID id = app.state().runningFast()->fast.id;
    const Date start = host::startOfMinute(app.state().runningFast()->fast.start - Duration{secondsPerHour});
    app.model().fasting->changeStart(secondsSince1970(start));
    if (!eventually([&] { return app.state().runningFast()->fast.start == start; })) std::abort();
    std::cout << "started " << text(id) << std::endl;
    clickOnce(app, QStringLiteral("Stop fast"));
    if (!eventually([&] { return app.button(QStringLiteral("Start fast")) != nullptr; })) std::abort();
    std::cout << "stopped " << text(id) << std::endl;
  }
}

/// Fasts that a screen has shown, by id: whether it has shown their end too.
using Confirmed = std::map<std::string, bool>;

// Lines that are cut off were not said.
void read(const std::string& said, Confirmed& confirmed) {
  std::istringstream lines{said.substr(0, said.rfind('\n') + 1)};
  for (std::string word, id; lines >> word;) {
    if (word == "started" && lines >> id) confirmed.emplace(id, false);
    if (word == "stopped" && lines >> id) confirmed[id] = true;
  }
}

int rounds() {
  const std::string wanted = qEnvironmentVariable("MIVO_KILLS", "20").toStdString();
  int count = 0;
  std::from_chars(wanted.data(), wanted.data() + wanted.size(), count);
  return count;
}

// Every other time it is killed while it starts, after anything from no time at all to what a start takes, and else
// while it records. `MIVO_KILLS=200` kills as often.
TEST(KilledApp, losesNothingThatWasShown) {
  const tests::TemporaryFolder folder;
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString((folder.path / "settings").string()));
  const std::filesystem::path data = folder.path / "data", database = data / "mivo.sqlite";
  const std::vector<std::string> command{"/proc/self/exe", recording, database.string()};
  const auto begin = steady_clock::now();
  tally::test::ChildProcess{command}.waitForLine("started ");
  const auto usual = duration_cast<milliseconds>(steady_clock::now() - begin);

  Confirmed confirmed;
  int starts = 0;
  for (int round = 1; round <= rounds(); ++round) {
    tally::test::ChildProcess app{command};
    const bool isRecording = round % 2 == 1;
    if (isRecording) app.waitForLine("started ");
    const std::string said = app.killAfter(isRecording ? milliseconds{round * 37 % 200} : usual * (round % 20) / 20);
    if (const auto ready = said.find("ready "); ready != std::string::npos) {
      ++starts;
      EXPECT_EQ(said.substr(ready, 7), "ready \n") << "something is wrong with the database";
    }
    read(said, confirmed);
  }
  EXPECT_LT(starts, rounds()) << "some should be killed before they are ready";
  EXPECT_GE(confirmed.size(), static_cast<std::size_t>(rounds() / 2));

  std::map<std::string, bool> kept;
  for (const auto& record : host::openDatabase(database).history().fasts)
    kept[text(record.fast.id)] = record.fast.finished.has_value();
  for (const auto& [id, hasEnded] : confirmed) {
    EXPECT_TRUE(kept.contains(id)) << id << " is lost";
    EXPECT_TRUE(!hasEnded || kept[id]) << "the end of " << id << " is lost";
  }
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator{data}) files.push_back(entry.path().filename());
  EXPECT_EQ(files, std::vector<std::string>{"mivo.sqlite"}) << "something was set aside or left behind";
  std::cout << rounds() << " kills, " << rounds() - starts << " of them before a window was there; " << confirmed.size()
            << " fasts were shown, and are there" << std::endl;
}

}  // namespace
}  // namespace mivo::app

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  if (count == 3 && std::string{arguments[1]} == mivo::app::recording) {
    const QGuiApplication application{count, arguments};
    mivo::app::recordUntilKilled(arguments[2]);
  }
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
