// SPDX-License-Identifier: MIT
// Reminders, switched on and off in the window, and told by the program that this starts.
#include <gtest/gtest.h>

#include <QtDBus/QDBusConnectionInterface>
#include <filesystem>

#include "adapters/standard/SystemClock.h"
#include "host/disk/DatabaseFile.h"
#include "tests/app/ShownApp.h"
#include "tests/app/reminder/SessionBus.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t sixteenHours = 57600;

class Reminders : public testing::Test {
 protected:
  Reminders() {
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toLatin1());
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.path.string()));
    qputenv("LC_ALL", "en_GB.UTF-8");
  }

  /// A fast that began so long ago runs alone.
  void begin(std::uint64_t id, double hours) {
    const Date start = adapters::SystemClock{}.now() - Duration{hours * secondsPerHour};
    host::Database database = host::openDatabase(file);
    host::HistoryChange change;
    change.removedFasts = database.history().fasts;
    change.addedFasts = {{ongoingFast({1, id}, start, sixteenHours), ""}};
    database.apply(change);
  }

  std::unique_ptr<ShownApp> opened() {
    Options options = ShownApp::optionsFor("");
    options.database = file.string();
    options.now.clear();
    options.picture.clear();
    options.screen = "reminders";
    return std::make_unique<ShownApp>(options, QSize{390, 1000});
  }

  bool isTelling() { return bus.connection().interface()->isServiceRegistered(QStringLiteral("app.mivo.Reminder")); }

  SessionBus bus;
  tests::TemporaryFolder folder;
  fs::path file = folder.path / "history" / "mivo.sqlite", autostart = folder.path / "autostart/mivo-reminder.desktop";
};

QQuickItem* switchRow(ShownApp& app, const QString& text) {
  return app.find([&](const QQuickItem* item) {
    return item->inherits("QQuickAbstractButton") && item->property("text").toString() == text;
  });
}

TEST_F(Reminders, areToldWhileTheWindowIsOpenAndClosed) {
  NotificationService desktop{bus};
  begin(1, 17);
  auto app = opened();
  EXPECT_FALSE(fs::exists(autostart)) << "nothing before it is chosen";
  ASSERT_TRUE(eventually([&] { return switchRow(*app, QStringLiteral("Goal reached")) != nullptr; }));
  app->click(switchRow(*app, QStringLiteral("Goal reached")));
  EXPECT_TRUE(fs::exists(autostart));
  ASSERT_TRUE(desktop.awaits(1));
  EXPECT_EQ(desktop.shown[0].title, QStringLiteral("Goal reached"));

  app.reset();
  app = opened();  // starts another that tells, in the place of the one before
  app.reset();
  ASSERT_TRUE(eventually([&] { return isTelling(); }));
  begin(2, 18);
  ASSERT_TRUE(desktop.awaits(2));
  EXPECT_EQ(desktop.shown.size(), 2) << "each fast once";

  app = opened();
  ASSERT_TRUE(eventually([&] { return switchRow(*app, QStringLiteral("Goal reached")) != nullptr; }));
  app->click(switchRow(*app, QStringLiteral("Goal reached")));
  EXPECT_FALSE(fs::exists(autostart));
  EXPECT_TRUE(eventually([&] { return !isTelling(); }));
  EXPECT_EQ(app->model().failure(), QString{});
}

}  // namespace
}  // namespace mivo::app
