// SPDX-License-Identifier: MIT
#include "host/disk/FindBackupPlace.h"

#include <gtest/gtest.h>

#include <fstream>

#include "adapters/system/FileUserDefaults.h"
#include "host/disk/DatabaseFile.h"
#include "tests/support/FixedClients.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;

/// A machine with a stick, a folder that only others may write, a file, and nothing under "gone".
struct Machine {
  Machine() {
    tests::becomeOrdinaryUser();
    ::setenv("XDG_DATA_HOME", folder.file("data").c_str(), 1);
    fs::create_directories(folder.path / "stick");
    fs::create_directories(folder.path / "kept");
    fs::permissions(folder.path / "kept", fs::perms::owner_read | fs::perms::owner_exec);
    std::ofstream{folder.path / "file"} << "no folder";
  }
  ~Machine() {
    ::unsetenv("XDG_DATA_HOME");
    fs::permissions(folder.path / "kept", fs::perms::owner_all);
  }
  fs::path path(const std::string& name) const { return name.empty() ? fs::path{} : folder.path / name; }

  tests::TemporaryFolder folder;
};

struct PlaceRow {
  const char *name, *database, *setting, *folder;
  const char* chosen = "";
  std::errc fault = {};
};
void PrintTo(const PlaceRow& row, std::ostream* out) { *out << row.name; }
class BackupPlaceOf : public testing::TestWithParam<PlaceRow> {};

TEST_P(BackupPlaceOf, isTheChosenFolderOfTheOwnHistoryWhileItCanBeWritten) {
  const auto& [name, database, setting, folder, chosen, fault] = GetParam();
  const Machine machine;
  const BackupPlace place = backupPlace(machine.path(database), machine.path(setting));
  EXPECT_EQ(place.folder(), machine.path(folder));
  EXPECT_EQ(place.usual, machine.path(std::string{database} + ".backups"));
  EXPECT_EQ(place.chosen, machine.path(chosen));
  EXPECT_EQ(place.fault, fault == std::errc{} ? std::error_code{} : std::make_error_code(fault));
  EXPECT_EQ(place.isOffered, machine.path(database) == ownDatabaseFile());
  EXPECT_FALSE(fs::exists(machine.path("gone"))) << "nothing is made by looking";
}

constexpr const char *own = "data/mivo/mivo.sqlite", *besideIt = "data/mivo/mivo.sqlite.backups";

INSTANTIATE_TEST_SUITE_P(
    Rows, BackupPlaceOf,
    testing::Values(PlaceRow{"noneChosen", own, "", besideIt},
                    PlaceRow{"chosen", own, "stick", "stick/mivo.sqlite.backups", "stick"},
                    PlaceRow{"takenOut", own, "gone", besideIt, "gone", std::errc::no_such_file_or_directory},
                    PlaceRow{"notWritable", own, "kept", besideIt, "kept", std::errc::permission_denied},
                    PlaceRow{"noFolder", own, "file", besideIt, "file", std::errc::not_a_directory},
                    PlaceRow{"anotherHistory", "other.sqlite", "stick", "other.sqlite.backups"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(BackupPlace, isChosenAsAnAbsoluteFolderThatCanBeWrittenOrNotAtAll) {
  const Machine machine;
  const adapters::FileUserDefaults defaults{machine.path("app.json")};
  const tests::EnglishTexts texts;
  const auto inForce = [&] { return backupPlace(ownDatabaseFile(), defaults); };
  ASSERT_TRUE(chooseBackupFolder(fs::relative(machine.path("stick")) / "." / "", defaults, texts));
  EXPECT_EQ(inForce().chosen, machine.path("stick"));
  for (const char* refused : {"gone", "kept", "file"}) {
    const auto answer = chooseBackupFolder(machine.path(refused), defaults, texts);
    ASSERT_FALSE(answer) << refused;
    EXPECT_TRUE(answer.error().starts_with("Backups cannot be kept in " + machine.path(refused).string() + ": "))
        << answer.error();
    EXPECT_EQ(inForce().chosen, machine.path("stick")) << refused;
  }
  defaults.setValue(backupFolderKey, "stick");
  EXPECT_EQ(inForce().chosen, "") << "of which folder nobody knows";
  ASSERT_TRUE(chooseBackupFolder("", defaults, texts));
  EXPECT_EQ(defaults.value(backupFolderKey), std::nullopt);
}

TEST(BackupPlace, goesBackToTheUsualFolderWhileTheChosenOneHoldsNone) {
  const Machine machine;
  const BackupPlace place = backupPlace(ownDatabaseFile(), machine.path("stick"));
  History history;
  history.weights = {{{1, 2}, dateSince1970(1772366400), 80}};
  BackupFolder{place.usual}.keep(history, {}, dateSince1970(1772366400));
  EXPECT_EQ(folderToRestore(place).path(), place.usual);
  BackupFolder{place.folder()}.keep(history, {}, dateSince1970(0));
  EXPECT_EQ(folderToRestore(place).path(), place.folder());
}

}  // namespace
}  // namespace mivo::host
