// SPDX-License-Identifier: MIT
#include "host/disk/DailyBackup.h"

#include <gtest/gtest.h>

#include <fstream>

#include "host/backup/BackedUpHistory.h"
#include "host/database/DatabaseHistory.h"
#include "host/disk/BackupFolder.h"
#include "host/disk/DatabaseFile.h"
#include "host/disk/FindBackupPlace.h"
#include "tests/support/Instants.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

using tests::utc;

class DailyBackup : public testing::Test {
 protected:
  DailyBackup() { ::setenv("XDG_DATA_HOME", place.path.c_str(), 1); }
  ~DailyBackup() override { ::unsetenv("XDG_DATA_HOME"); }

  void change(const char* now) {
    present = utc(now);
    history.apply(adding(BodyWeightSample{{1, ++changes}, present, 80}));
  }

  std::vector<std::string> backups() const { return backups(folder); }
  static std::vector<std::string> backups(const BackupFolder& folder) {
    std::vector<std::string> dates;
    for (const Backup& backup : folder.backups())
      dates.push_back(tests::text(backup.date) + ": " + std::to_string(readBackup(backup.file)->weights.size()));
    return dates;
  }

  tests::TemporaryFolder place;
  const std::filesystem::path file = place.path / "mivo" / "mivo.sqlite", stick = place.path / "stick";
  const BackupFolder folder{backupFolder(file)};
  Date present;
  std::uint64_t changes = 0;
  std::filesystem::path setting;
  std::string failure;
  std::vector<std::string> told;
  const BackedUpHistory history{
      std::make_shared<DatabaseHistory>(openDatabase(file)),
      dailyBackup(
          {.place = [this] { return backupPlace(file, setting); },
           .history = [this] { return openDatabase(file, Database::Access::readOnly).history(); },
           .settings = [] { return std::vector<Setting>{}; },
           .now = [this] { return present; },
           .failed = [this](const std::exception& why) { failure = why.what(); },
           .wentBesideTheDatabase = [this](const BackupPlace& went) { told.push_back(went.fault.message()); }})};
};

TEST_F(DailyBackup, holdsWhatWasThereBeforeTheFirstChangeOfADayInUTC) {
  change("2026-03-01 12:00");
  EXPECT_EQ(backups(), std::vector<std::string>{}) << "there was nothing";
  change("2026-03-01 23:00");
  change("2026-03-01 23:59");
  change("2026-03-02 00:00");
  change("2026-03-02 12:00");
  EXPECT_EQ(backups(), (std::vector<std::string>{"2026-03-02 00:00:00: 3", "2026-03-01 23:00:00: 1"}));
  present = utc("2026-03-03 12:00");
  history.sync({.file = {}, .weights = {{{2, 1}, present, 80}}});
  EXPECT_EQ(backups().front(), "2026-03-03 12:00:00: 5") << "what a linked file brings is a change, too";
  EXPECT_EQ(failure, "");
}

TEST_F(DailyBackup, isSaidWhereItCannotBeMadeAndStopsNoChange) {
  change("2026-03-01 12:00");
  std::ofstream{folder.path()} << "no folder";
  change("2026-03-02 12:00");
  EXPECT_TRUE(failure.starts_with(folder.path().string())) << failure;
  EXPECT_EQ(history.load().weights.size(), 2U);
}

TEST_F(DailyBackup, goesToTheChosenFolderOrBesideTheDatabaseWhichIsSaidOnceADay) {
  using Texts = std::vector<std::string>;
  const BackupFolder onStick{stick / "mivo.sqlite.backups"};
  const std::string missing = "No such file or directory";
  setting = stick;
  change("2026-03-01 12:00");
  EXPECT_EQ(told, Texts{}) << "there was nothing";
  for (const char* now : {"2026-03-01 13:00", "2026-03-01 14:00"}) change(now);
  EXPECT_EQ(told, Texts{missing});
  EXPECT_FALSE(std::filesystem::exists(stick)) << "nothing is made where it is missing";

  std::filesystem::create_directory(stick);
  for (const char* now : {"2026-03-01 15:00", "2026-03-01 16:00", "2026-03-02 12:00"}) change(now);
  EXPECT_EQ(backups(onStick), (Texts{"2026-03-02 12:00:00: 5", "2026-03-01 15:00:00: 3"}));
  EXPECT_EQ(told.size(), 1U);

  std::filesystem::remove_all(onStick.path());
  std::ofstream{onStick.path()} << "no folder";
  for (const char* now : {"2026-03-03 12:00", "2026-03-03 13:00"}) change(now);
  EXPECT_EQ(told, (Texts{missing, "Not a directory"})) << "what can be written may still fail";
  EXPECT_EQ(backups(), (Texts{"2026-03-03 12:00:00: 6", "2026-03-01 13:00:00: 1"}));
  EXPECT_EQ(failure, "");
}

}  // namespace
}  // namespace mivo::host
