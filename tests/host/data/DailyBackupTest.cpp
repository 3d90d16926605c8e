// SPDX-License-Identifier: MIT
#include "host/data/DailyBackup.h"

#include <gtest/gtest.h>

#include <fstream>

#include "host/database/DatabaseHistory.h"
#include "tests/support/Instants.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

using tests::utc;

class DailyBackup : public testing::Test {
 protected:
  void change(const char* now) {
    present = utc(now);
    history.apply(adding(BodyWeightSample{{1, ++changes}, present, 80}));
  }

  std::vector<std::string> backups() const {
    std::vector<std::string> dates;
    for (const Backup& backup : folder.backups())
      dates.push_back(tests::text(backup.date) + ": " + std::to_string(readBackup(backup.file)->weights.size()));
    return dates;
  }

  tests::TemporaryFolder place;
  const std::filesystem::path file = place.path / "mivo.sqlite";
  const BackupFolder folder{backupFolder(file)};
  Date present;
  std::uint64_t changes = 0;
  std::string failure;
  const BackedUpHistory history{std::make_shared<DatabaseHistory>(Database{file}),
                                {.folder = folder,
                                 .history = [this] { return Database{file, Database::Access::readOnly}.history(); },
                                 .settings = [] { return std::vector<Setting>{}; },
                                 .now = [this] { return present; },
                                 .failed = [this](const std::exception& why) { failure = why.what(); }}};
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

}  // namespace
}  // namespace mivo::host
