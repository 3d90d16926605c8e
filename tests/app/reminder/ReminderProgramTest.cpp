// SPDX-License-Identifier: MIT
// The program that tells, in a process of its own, on a bus with a service that keeps what it was to show.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtDBus/QDBusConnectionInterface>
#include <QtTest/QTest>
#include <filesystem>
#include <fstream>

#include "adapters/standard/SystemClock.h"
#include "adapters/system/FileUserDefaults.h"
#include "host/app/Settings.h"
#include "host/disk/DatabaseFile.h"
#include "host/reminders/ReminderSettings.h"
#include "tests/app/reminder/SessionBus.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

constexpr std::int64_t sixteenHours = 57600;
constexpr int longestWait = 30'000;

/// Of this moment: the program looks at the machine's own clock.
Date hoursAgo(double hours) { return adapters::SystemClock{}.now() - Duration{hours * secondsPerHour}; }

host::FastRecord running(std::uint64_t id, double startedHoursAgo) {
  return {ongoingFast({1, id}, hoursAgo(startedHoursAgo), sixteenHours), "secret"};
}

/// `mivo-reminder`, killed at the end of the test.
class Program : public QProcess {
 public:
  explicit Program(const QProcessEnvironment& environment, const QStringList& arguments = {}) {
    setProcessEnvironment(environment);
    start(QStringLiteral(MIVO_REMINDER_PROGRAM), arguments);
    EXPECT_TRUE(waitForStarted());
  }
  ~Program() override {
    kill();
    waitForFinished();
  }

  bool hasEnded() {
    return QTest::qWaitFor([this] { return state() == NotRunning; }, longestWait) && exitCode() == 0;
  }

  /// All that it has said, once that is a line at least.
  std::string sentence() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return (said += readAllStandardError()).endsWith('\n'); }, longestWait));
    return said.toStdString();
  }

 private:
  QByteArray said;
};

/// What a user has on their machine.
class Machine : public testing::Test {
 protected:
  void SetUp() override {
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), QString::fromStdString(folder.file("config")));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), QString::fromStdString(folder.file("data")));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    environment.remove(QStringLiteral("LANGUAGE"));
    host::setTellsGoal(settings, true);
  }

  void begin(const host::FastRecord& fast) {
    host::HistoryChange change;
    const auto before = database.history();
    change.removedFasts = before.fasts;
    change.addedFasts = {fast};
    database.apply(change);
  }

  bool isOnBus() { return bus.connection().interface()->isServiceRegistered(QStringLiteral("app.mivo.Reminder")); }

  bool isRunning() {
    return QTest::qWaitFor([this] { return isOnBus(); }, longestWait);
  }

  bool wasToldOf(UUID fast) {
    return QTest::qWaitFor([&] { return host::toldFast(settings, host::ReminderKind::goal) == fast; }, longestWait);
  }

  SessionBus bus;
  tests::TemporaryFolder folder;
  host::Database database = host::openDatabase(folder.path / "data/mivo/mivo.sqlite");
  adapters::FileUserDefaults settings{folder.path / "config/mivo/app.json"};
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(Machine, showsOneNotificationWhenTheGoalIsReached) {
  NotificationService desktop{bus};
  begin(running(1, 16 - 1.5 / secondsPerHour));
  const Program program{environment};
  ASSERT_TRUE(desktop.awaits(1));
  EXPECT_GE(adapters::SystemClock{}.now(), database.history().fasts[0].fast.start + Duration{sixteenHours});
  const ShownNotification& first = desktop.shown[0];
  EXPECT_EQ(first.program, QStringLiteral("Mivo"));
  EXPECT_EQ(first.hints[QStringLiteral("desktop-entry")], QStringLiteral("mivo"));
  EXPECT_EQ(first.title, QStringLiteral("Goal reached"));
  EXPECT_THAT(first.sentence.toStdString(), StartsWith("Your fast reached its goal of 16h at "));
}

TEST_F(Machine, showsNothingTwiceAfterARestart) {
  NotificationService desktop{bus};
  begin(running(1, 17));
  for (int times = 0; times < 3; ++times) {
    const Program program{environment};
    ASSERT_TRUE(desktop.awaits(1) && wasToldOf({1, 1}) && isRunning());
  }
  const Program program{environment};
  ASSERT_TRUE(isRunning());
  begin(running(2, 18));  // what comes next shows that nothing came before it
  ASSERT_TRUE(desktop.awaits(2) && wasToldOf({1, 2}));
  EXPECT_EQ(desktop.shown.size(), 2);
}

TEST_F(Machine, seesWhatOtherProgramsWrite) {
  NotificationService desktop{bus};
  host::setLanguage(settings, "de");
  const Program program{environment};
  ASSERT_TRUE(isRunning());
  begin(running(1, 2));
  begin(running(1, 16.5));
  ASSERT_TRUE(desktop.awaits(1));
  EXPECT_EQ(desktop.shown[0].title, QStringLiteral("Ziel erreicht"));
  begin({finishedFast({1, 2}, hoursAgo(20), hoursAgo(3), sixteenHours), ""});
  host::setEatingWindowHours(settings, 2);
  host::setTellsEatingWindow(settings, true);
  ASSERT_TRUE(desktop.awaits(2));
  EXPECT_EQ(desktop.shown[1].title, QStringLiteral("Essensfenster"));
}

TEST_F(Machine, endsWhereNothingIsToBeTold) {
  NotificationService desktop{bus};
  begin(running(1, 17));
  host::setTellsGoal(settings, false);
  EXPECT_TRUE(Program{environment}.hasEnded());
  host::setTellsEatingWindow(settings, true);
  Program program{environment};
  ASSERT_TRUE(isRunning());
  host::setTellsEatingWindow(settings, false);
  EXPECT_TRUE(program.hasEnded());
  EXPECT_EQ(program.readAllStandardError(), "");
  EXPECT_EQ(desktop.shown.size(), 0);
}

TEST_F(Machine, hasOneProgramThatTells) {
  NotificationService desktop{bus};
  Program first{environment};
  ASSERT_TRUE(isRunning());
  const Program second{environment};
  EXPECT_TRUE(first.hasEnded());
  begin(running(1, 17));
  ASSERT_TRUE(desktop.awaits(1));
  EXPECT_EQ(second.state(), QProcess::Running);
}

TEST_F(Machine, isToldOnceSomebodyCanShowIt) {
  begin(running(1, 17));
  Program program{environment};
  EXPECT_THAT(program.sentence(), StartsWith("mivo-reminder: a notification could not be shown"));
  EXPECT_EQ(host::toldFast(settings, host::ReminderKind::goal), std::nullopt);
  const NotificationService desktop{bus};
  EXPECT_TRUE(desktop.awaits(1));
}

TEST_F(Machine, saysOnceThatThereIsNoBusAndGoesOn) {
  environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/nowhere/bus"));
  begin(running(1, 17));
  Program program{environment};
  EXPECT_THAT(program.sentence(), StartsWith("mivo-reminder: a notification could not be shown"));
  begin(running(2, 17));
  EXPECT_FALSE(QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, 300)) << "tried again";
  host::setTellsGoal(settings, false);
  EXPECT_TRUE(program.hasEnded());
  EXPECT_THAT(program.sentence(), testing::Not(testing::ContainsRegex("\n.")));
}

TEST_F(Machine, saysWhatIsWrongWithTheHistoryAndGoesOn) {
  NotificationService desktop{bus};
  const std::string file = folder.file("history.sqlite");
  std::ofstream{file} << "no history";
  Program program{environment, {QStringLiteral("--database"), QString::fromStdString(file)}};
  EXPECT_THAT(program.sentence(), AllOf(StartsWith("mivo-reminder: " + file), HasSubstr("damaged")));
  std::filesystem::remove(file);
  host::HistoryChange change;
  change.addedFasts = {running(1, 17)};
  host::openDatabase(file).apply(change);
  EXPECT_TRUE(desktop.awaits(1));
}

}  // namespace
}  // namespace mivo::app
