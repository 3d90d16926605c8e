// SPDX-License-Identifier: MIT
#include "host/disk/BackupFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Date noon = dateSince1970(1772366400);  // 2026-03-01T12:00:00Z
constexpr double day = secondsPerDay;

History weighing(double weightInKg) {
  History history;
  history.weights = {{{1, 2}, noon, weightInKg}};
  return history;
}

class BackupFolderTest : public testing::Test {
 protected:
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const Backup& backup : folder.backups()) all.push_back(backup.file.filename().string());
    return all;
  }
  void write(const char* name, const char* content) const { std::ofstream{folder.path() / name} << content; }

  tests::TemporaryFolder place;
  const BackupFolder folder{place.path / "some" / "backups" / ""};
};

TEST_F(BackupFolderTest, keepsAStateOnceAndNeverAnEmptyOne) {
  EXPECT_EQ(folder.keep({}, {}, noon), std::nullopt);
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_FALSE(fs::exists(folder.path()));

  History repeats = weighing(81.4);
  repeats.weights.push_back({{1, 3}, noon, 81.4});
  repeats.fasts = {{finishedFast({7, 1}, noon - Duration{0.1}, noon, 57600), "a \"note\"\n☕"},
                   {finishedFast({7, 2}, noon - Duration{0.1}, noon, 57600), ""},
                   {ongoingFast({7, 3}, noon, 0), ""}};
  const auto first = folder.keep(repeats, {}, noon);
  ASSERT_TRUE(first && first->isNew);
  EXPECT_EQ(fs::status(first->backup.file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(fs::status(folder.path()).permissions(), fs::perms::owner_all);
  EXPECT_EQ(readBackup(first->backup.file), repeats);
  EXPECT_EQ(folder.keep(repeats, {}, noon + Duration{day}), (KeptBackup{first->backup, false}));
  EXPECT_EQ(folder.keep({}, {}, noon + Duration{day}), std::nullopt);
  EXPECT_THAT(names(), ElementsAre("mivo-2026-03-01T120000Z.json"));

  const auto second = folder.keep(weighing(80), {}, noon);
  EXPECT_THAT(names(), ElementsAre("mivo-2026-03-01T120001Z.json", "mivo-2026-03-01T120000Z.json"));
  EXPECT_EQ(readBackup(first->backup.file), repeats) << "one of the same second was replaced";
  EXPECT_EQ(readBackup(second->backup.file), weighing(80));
  std::ofstream{second->backup.file} << "{";
  EXPECT_TRUE(folder.keep(weighing(80), {}, noon)->isNew) << "the newest cannot be read";
}

TEST_F(BackupFolderTest, isDueOnceADay) {
  EXPECT_TRUE(folder.isDue(noon));
  folder.keep(weighing(80), {}, noon);
  EXPECT_FALSE(folder.isDue(noon - Duration{day / 2}));
  EXPECT_FALSE(folder.isDue(noon + Duration{day / 2 - 1}));
  EXPECT_TRUE(folder.isDue(noon + Duration{day / 2}));
  EXPECT_TRUE(folder.isDue(noon - Duration{day}));
}

TEST_F(BackupFolderTest, rotatesItsOwnFilesAlone) {
  for (int age = 40; age >= 0; --age) folder.keep(weighing(80 + age), {}, noon - Duration{age * day});
  for (const char* other : {"letter.json", "mivo-2020-01-01.json"}) write(other, "");
  for (const char* part : {"mivo-2026-02-28T120000Z.json.Ab3xyZ", "mivo-2026-03-01T115900Z.json.Ab3xyZ"})
    write(part, "{");
  folder.rotate(folder.backups().front());
  // 7 days, 3 weeks before the present one's Monday, and the ends of both months, of which one is among the days.
  EXPECT_EQ(names().size(), 7u + 3 + 1);
  for (const char* stays : {"letter.json", "mivo-2020-01-01.json", "mivo-2026-03-01T115900Z.json.Ab3xyZ"})
    EXPECT_TRUE(fs::exists(folder.path() / stays)) << stays;
  EXPECT_FALSE(fs::exists(folder.path() / "mivo-2026-02-28T120000Z.json.Ab3xyZ")) << "left by a killed program";

  const auto old = folder.keep(weighing(70), {}, dateSince1970(0));  // by a clock without a battery
  folder.rotate(old->backup);
  EXPECT_EQ(folder.backups().back(), old->backup);
}

}  // namespace
}  // namespace mivo::host
