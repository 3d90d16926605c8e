// SPDX-License-Identifier: MIT
#include "host/disk/Restore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <system_error>

#include "host/disk/DatabaseFile.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

constexpr Date noon = dateSince1970(1772366400);

HistoryChange adding(History records) {
  HistoryChange change;
  change.addedFasts = std::move(records.fasts);
  change.addedWeights = std::move(records.weights);
  return change;
}

class RestoreTest : public testing::Test {
 protected:
  RestoreTest() {
    const Date start = noon - Duration{57600};
    for (std::uint64_t id = 9; id > 6; --id)  // repeats, in an order that is not their ids'
      backup.fasts.push_back({finishedFast({7, id}, start, noon, 57600), std::to_string(id)});
    backup.weights = {{{3, 2}, noon, 81.4}, {{3, 1}, noon, 81.4}};
    present.fasts = {backup.fasts[1], {ongoingFast({7, 1}, noon, 57600), "tea"}};
    present.fasts[0].note = "edited";
  }

  Restored restored() const { return restore(file, backup, folder, {}, noon); }
  History history() const { return openDatabase(file).history(); }

  tests::TemporaryFolder place;
  const std::filesystem::path file = place.path / "d";
  const BackupFolder folder{backupFolder(file)};
  History backup, present;
};

TEST_F(RestoreTest, isExactSeenByOthersAndUndone) {
  openDatabase(file).apply(adding(present));
  Database open = openDatabase(file);  // as the app has it
  const auto before = open.version();
  const Restored done = restored();
  EXPECT_TRUE(done.isChanged);
  EXPECT_EQ(open.history(), backup);
  EXPECT_NE(open.version(), before);
  ASSERT_TRUE(done.before && done.before->isNew);
  EXPECT_EQ(readBackup(done.before->backup.file), present);
  open.undo();
  EXPECT_EQ(history(), present);
}

TEST_F(RestoreTest, changesNothingWhereThePresentStateCannotBeKept) {
  openDatabase(file).apply(adding(present));
  std::ofstream{folder.path()} << "no folder";
  EXPECT_THROW(restored(), std::system_error);
  EXPECT_EQ(history(), present);
}

// With the log of its latest change beside it, as long as a program has it open: the new one must not be read with
// that.
TEST_F(RestoreTest, putsADamagedDatabaseAside) {
  const std::string damaged(5000, 'x');
  openDatabase(file).apply(adding({{}, std::vector<BodyWeightSample>{{{4, 1}, noon, 80}}, {}}));
  {
    Database open = openDatabase(file);
    present.fasts[1].note.assign(100'000, 'x');
    open.apply(adding(present));
    std::ofstream{file} << damaged;
    const Restored done = restored();
    ASSERT_TRUE(done.setAside);
    EXPECT_EQ(std::filesystem::file_size(*done.setAside), damaged.size());
    EXPECT_EQ(history(), backup);
  }
  EXPECT_EQ(history(), backup);
  for (const auto& entry : std::filesystem::directory_iterator{place.path}) {
    const std::string name = entry.path().filename().string();
    EXPECT_TRUE(name == "d" || name.starts_with("d.damaged-")) << name;
  }
}

}  // namespace
}  // namespace mivo::host
