// SPDX-License-Identifier: MIT
// What wakes the program that tells.
#include <gtest/gtest.h>

#include <QtTest/QSignalSpy>
#include <filesystem>
#include <fstream>

#include "adapters/standard/SystemClock.h"
#include "adapters/system/AtomicFile.h"
#include "app/reminder/FileWatch.h"
#include "app/reminder/WallClockAlarm.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

constexpr int longestWait = 30'000;

TEST(WallClockAlarm, ringsForWhatPassedAndForWhatComes) {
  WallClockAlarm alarm;
  QSignalSpy rings{&alarm, &WallClockAlarm::rang};
  const Date now = adapters::SystemClock{}.now();
  for (const double seconds : {-1e12, -3600.0, 0.0, 0.2}) {
    alarm.setTo(now + Duration{seconds});
    ASSERT_TRUE(rings.wait(longestWait)) << seconds;
    EXPECT_GE(adapters::SystemClock{}.now(), now + Duration{seconds});
    rings.clear();
  }
  alarm.setTo(now + Duration{1e12});
  alarm.setTo(std::nullopt);
  EXPECT_FALSE(rings.wait(1)) << "nothing is due";
}

TEST(FileWatch, seesFilesComeChangeAndGo) {
  namespace fs = std::filesystem;
  const tests::TemporaryFolder folder;
  const fs::path file = folder.path / "data" / "history";
  FileWatch files{{file, folder.path / "settings" / "app.json"}};
  QSignalSpy changes{&files, &FileWatch::changed};
  const auto sees = [&](const char* what) { EXPECT_TRUE(changes.wait(longestWait)) << what; };
  std::ofstream{file} << "made";
  sees("made");
  std::ofstream{file, std::ios::app} << "written";
  sees("written");
  adapters::writeAtomically(file, "replaced");
  sees("replaced");
  std::ofstream{file, std::ios::app} << "written";
  sees("the new one written");
  adapters::writeAtomically(folder.path / "settings" / "app.json", "{}");
  sees("the other one");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_FALSE(changes.wait(300)) << "only who may read it";
  fs::remove(file);
  sees("removed");
}

}  // namespace
}  // namespace mivo::app
