// SPDX-License-Identifier: MIT
// What can go wrong around the app: each is said on the screen in the user's language, and nothing is lost.
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "host/disk/DatabaseFile.h"
#include "tests/app/ShownApp.h"
#include "tests/support/FullDisk.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

namespace fs = std::filesystem;

/// The app on a database of its own.
class Failures : public testing::Test {
 protected:
  Failures() { qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.path.string())); }
  ~Failures() override {
    if (inSystemZone) qputenv("TZ", usualZone);
    fs::permissions(data, fs::perms::owner_all);
  }

  void open(const std::string& locale = "en-GB") {
    Options options = ShownApp::optionsFor("");
    options.database = file.string();
    options.locale = locale;
    options.tab = "fasting";
    if (inSystemZone) options.timeZone.clear();
    app.reset();
    app = std::make_unique<ShownApp>(options, QSize{390, 1400});
  }

  void click(const QString& button) { app->click(button); }

  bool eventuallySays(const std::string& sentence) {
    const QString text = QString::fromStdString(sentence);
    return eventually([&] { return app->text(text) != nullptr; });
  }

  /// As another program sees it.
  std::vector<host::FastRecord> onDisk() const {
    return host::openDatabase(file, host::Database::Access::readOnly).history().fasts;
  }

  static host::FastRecord fastOf(std::uint64_t id, double day) {
    const Date start = dateSince1970(1.772e9 + day * secondsPerDay);
    return {finishedFast({1, id}, start, start + Duration{57600}, 57600), ""};
  }

  tests::TemporaryFolder folder;
  fs::path data = folder.path / "data", file = data / "mivo.sqlite";
  QByteArray usualZone = qEnvironmentVariable("TZ", "UTC").toUtf8();
  bool inSystemZone = false;
  std::unique_ptr<ShownApp> app;
};

TEST_F(Failures, aFullDiskIsSaidAndTheFastCanBeStartedLater) {
  open("de-DE");
  {
    const tests::FullDisk full;
    click("Fasten starten");
    EXPECT_TRUE(eventuallySays(
        "Es wurde nichts gespeichert: Der Datenträger ist voll. Schaffe Platz und versuche es noch einmal."));
    EXPECT_EQ(app->state().runningFast(), nullptr);
  }
  EXPECT_TRUE(onDisk().empty());
  click("Fasten starten");
  EXPECT_TRUE(eventually([&] { return app->state().runningFast() != nullptr; }));
  EXPECT_EQ(onDisk().size(), 1U);
  EXPECT_EQ(app->model().failure(), "") << "it works again";
}

TEST_F(Failures, settingsThatCannotBeSavedAreSaidAndHoldUntilTheEnd) {
  open("de-DE");
  const tests::FullDisk full;
  app->model().settings->changeTextSize(150);
  EXPECT_TRUE(eventuallySays("Einstellungen können nicht in " + (folder.path / "mivo" / "app.json").string() +
                             " gespeichert werden: " + std::generic_category().message(EFBIG)));
  EXPECT_EQ(app->app.appearance().textScale(), 1.5);
}

TEST_F(Failures, aReadOnlyFolderShowsTheHistoryAndSavesNothing) {
  tests::becomeOrdinaryUser();
  open();
  host::openDatabase(file).apply(host::adding(fastOf(1, 0)));
  app.reset();
  fs::permissions(data, fs::perms::owner_read | fs::perms::owner_exec);
  fs::permissions(file, fs::perms::owner_read);
  open();
  EXPECT_TRUE(eventuallySays("You can look at your history, but nothing can be saved: " + file.string() +
                             " may not be written."));
  EXPECT_EQ(app->state().fasts->size(), 1U);
  click("OK");
  click("Start fast");
  EXPECT_TRUE(eventuallySays("Nothing was saved: " + file.string() + " may not be written."));
  EXPECT_EQ(onDisk().size(), 1U);
}

TEST_F(Failures, aReadOnlyFolderWithoutAHistoryIsSaid) {
  tests::becomeOrdinaryUser();
  fs::create_directories(data);
  fs::permissions(data, fs::perms::owner_read | fs::perms::owner_exec);
  Options options = ShownApp::optionsFor("");
  options.database = file.string();
  const auto environment = makeEnvironment(options);
  ASSERT_TRUE(environment);
  EXPECT_EQ(environment->history, nullptr);
  EXPECT_EQ(environment->notice, "Nothing was saved: " + data.string() + " may not be written.");
}

TEST_F(Failures, aFolderThatCannotBeMadeIsSaidUntilItCan) {
  std::ofstream{data} << "a file where a folder is needed";
  Options options = ShownApp::optionsFor("");
  options.database = file.string();
  auto environment = makeEnvironment(options);
  ASSERT_TRUE(environment);
  ASSERT_EQ(environment->history, nullptr);
  const DependencyScope scope{environment->dependencies};
  FaultWindow shown{{environment->notice},
                    {.again = [&] { return Obstacle{openHistory(*environment, options) ? "" : environment->notice}; }}};
  ASSERT_NE(shown.window(), nullptr);
  EXPECT_EQ(shown.window()->property("sentence").toString().toStdString(),
            "The folder " + data.string() + " cannot be made.");
  QMetaObject::invokeMethod(shown.window(), "againWanted");
  EXPECT_TRUE(shown.window()->isVisible());
  fs::remove(data);
  QMetaObject::invokeMethod(shown.window(), "againWanted");
  EXPECT_FALSE(shown.window()->isVisible());
  EXPECT_NE(environment->history, nullptr);
}

TEST_F(Failures, aDamagedDatabaseIsPutAsideAndSaid) {
  fs::create_directories(data);
  const std::string letter(5000, 'x');
  std::ofstream{file} << letter;
  open("fr-FR");
  const QString said = app->model().failure();
  EXPECT_TRUE(said.startsWith("Ton historique était endommagé et a été mis de côté sous ")) << said.toStdString();
  EXPECT_TRUE(eventuallySays(said.toStdString()));
  const fs::path aside = said.section(" sous ", 1).section(". Un nouveau", 0, 0).toStdString();
  EXPECT_EQ(fs::file_size(aside), letter.size()) << aside;
  click("Commencer le jeûne");
  EXPECT_TRUE(eventually([&] { return app->state().runningFast() != nullptr; }));
}

// A database and a newest backup that are both damaged: the backup before that takes the place.
TEST_F(Failures, aDamagedDatabaseOffersItsNewestBackup) {
  Options options = ShownApp::optionsFor("");
  options.database = file.string();
  {
    const auto environment = makeEnvironment(options);
    ASSERT_TRUE(environment && environment->history);
    environment->history->apply(host::adding(fastOf(1, 0)));
    environment->files->backUp(environment->history->load(), dateSince1970(1.7722e9));
    environment->history->apply(host::adding(fastOf(2, 1)));
    std::ofstream{environment->files->backupPlace().folder() / "mivo-2026-03-01T030000Z.json"} << "{";
  }
  const auto damage = [&] {
    fs::remove(file);
    std::ofstream{file} << std::string(5000, 'x');
  };
  struct Way {
    const char* signal;
    std::size_t fasts;
  };
  for (const auto& [signal, fasts] : {Way{"backupWanted", 1}, Way{"newWanted", 0}}) {
    SCOPED_TRACE(signal);
    damage();
    auto environment = makeEnvironment(options);
    ASSERT_TRUE(environment);
    ASSERT_EQ(environment->history, nullptr);
    EXPECT_EQ(environment->notice, file.string() + " is damaged; the newest backup is of 1 Mar 2026, 04:00.");
    EXPECT_EQ(fs::file_size(file), 5000U) << "as it was";
    const DependencyScope scope{environment->dependencies};
    const auto attempt = [&](bool (*opened)(Environment&, const Options&)) {
      return [&environment, &options, opened] {
        return opened(*environment, options) ? Obstacle{} : Obstacle{environment->notice, environment->isDamaged};
      };
    };
    FaultWindow shown{{environment->notice, environment->isDamaged},
                      {attempt(openHistory), attempt(restoreNewestBackup), attempt(beginAnew)}};
    EXPECT_TRUE(shown.window()->property("isDamaged").toBool());
    QMetaObject::invokeMethod(shown.window(), "againWanted");
    EXPECT_TRUE(shown.window()->isVisible());
    QMetaObject::invokeMethod(shown.window(), signal);
    EXPECT_FALSE(shown.window()->isVisible());
    ASSERT_NE(environment->history, nullptr);
    EXPECT_EQ(environment->history->load().fasts.size(), fasts);
    EXPECT_NE(environment->notice.find(".damaged-"), std::string::npos) << environment->notice;
  }
}

TEST_F(Failures, aZoneThatChangesMovesEveryTimeAndNoRecord) {
  const fs::path link = folder.path / "localtime", zones = "/usr/share/zoneinfo";
  fs::create_symlink(zones / "Europe/Berlin", link);
  qputenv("TZ", QByteArray::fromStdString(link.string()));
  inSystemZone = true;
  open();
  host::openDatabase(file).apply(host::adding(fastOf(1, 0)));
  click("Start fast");
  ASSERT_TRUE(eventually([&] { return app->state().fasts->size() == 2; }));
  const auto before = onDisk();
  const QString elapsed = app->fasting("elapsed");
  EXPECT_EQ(app->fasting("startText"), "Today, 13:00");
  ASSERT_TRUE(eventuallySays("07:13 – 23:13"));

  app->window().hide();
  EXPECT_FALSE(app->model().isWatched()) << "nobody needs to be told";
  fs::remove(link);
  fs::create_symlink(zones / "Pacific/Auckland", link);
  app->window().show();
  ASSERT_TRUE(
      eventuallySays("Your time zone is now Pacific/Auckland. All times are shown in it; nothing was changed."));
  settle(app->window());
  EXPECT_EQ(app->fasting("startText"), "Today, 01:00");
  EXPECT_EQ(app->fasting("elapsed"), elapsed);
  EXPECT_TRUE(eventuallySays("19:13 – 11:13")) << "of a row";
  EXPECT_EQ(app->statistics().stats.fastingChartState.data->elements().back().dateInterval.start,
            dateSince1970(1772362800))
      << "2 March begins in Auckland";
  EXPECT_EQ(onDisk(), before);
}

TEST_F(Failures, aClockThatIsSetBackLosesNothing) {
  open();
  host::openDatabase(file).apply(host::adding({mivo::ongoingFast({1, 1}, dateSince1970(1772370000), 57600), ""}));
  ASSERT_TRUE(eventually([&] { return app->state().runningFast() != nullptr; }));
  EXPECT_TRUE(eventuallySays("This fast begins in the future. Check the clock, or change when it started."));
  click("Stop fast");
  EXPECT_TRUE(eventuallySays("The start is in the future. Is the clock right?"));
  EXPECT_FALSE(onDisk()[0].fast.finished);
}

}  // namespace
}  // namespace mivo::app
