// SPDX-License-Identifier: MIT
#include "host/disk/BackupFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "host/disk/DatabaseFile.h"
#include "tests/cli_support/MivoProcess.h"
#include "tests/tally_support/ChildProcess.h"

namespace mivo::cli {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::MatchesRegex;

constexpr Date noon = dateSince1970(1772366400);  // 2026-03-01T12:00:00Z
constexpr double day = secondsPerDay;

/// So many weights, a day apart, with one that repeats.
host::History weighing(int count) {
  host::History history;
  for (int number = 0; number < count; ++number)
    history.weights.push_back(
        {{1, static_cast<std::uint64_t>(count - number)}, noon + Duration{day * std::min(number, count - 2)}, 81.4});
  return history;
}

class BackupCommands : public testing::Test {
 protected:
  host::History own() const { return host::openDatabase(database).history(); }
  void put(const host::History& history) const {
    host::openDatabase(database).replace(history, [](const host::History&) {});
  }
  Ran done(const std::string& arguments) const {
    Ran ran = place.run(arguments + " --locale en-DE --time-zone UTC");
    EXPECT_EQ(ran.status, 0) << arguments << ": " << ran.errors;
    return ran;
  }
  std::string name(const char* key) const { return (folder.path() / key).string(); }

  Workplace place;
  const fs::path database = place.file("mivo/mivo.sqlite");
  const host::BackupFolder folder{database.string() + ".backups"};
};

TEST_F(BackupCommands, makeOneOfEachStateAndListThem) {
  EXPECT_EQ(done("backup").output, "There is nothing to back up yet.\n");
  EXPECT_EQ(done("backup list").output, "No backups yet.\n");
  EXPECT_FALSE(fs::exists(place.file("mivo")));
  put(weighing(3));
  const std::string made = done("backup").output;
  ASSERT_EQ(folder.backups().size(), 1u);
  const std::string file = folder.backups().front().file;
  EXPECT_EQ(made, "Backed up to " + file + ": 0 fasts, 3 weights\n");
  EXPECT_EQ(done("backup").output, "Nothing has changed since the backup " + file + ": 0 fasts, 3 weights\n");
  EXPECT_EQ(host::readBackup(file), weighing(3));
  EXPECT_THAT(done("backup --folder elsewhere").output, MatchesRegex("Backed up to elsewhere/mivo-.*\n"));

  folder.keep(weighing(2), {}, noon);
  std::ofstream{name("mivo-2026-02-28T120000Z.json")} << "{\"version\": 2}";
  EXPECT_THAT(done("backup list").output, MatchesRegex("Backup +Date  Fasts  Weights\n"
                                                       "2[-0-9]*T[0-9]*Z  .*      0        3\n"
                                                       "2026-03-01T120000Z +01/03/2026, 12:00      0        2\n"
                                                       "2026-02-28T120000Z +28/02/2026, 12:00 +cannot be read\n"));
  const std::string json = done("backup list --format json").output;
  EXPECT_THAT(json,
              HasSubstr("\n  {\"file\": \"" + name("mivo-2026-03-01T120000Z.json") +
                        "\", \"date\": \"2026-03-01T12:00:00Z\", \"fasts\": 0, \"weights\": 2, \"fault\": null},\n"));
  EXPECT_THAT(json, HasSubstr("\"fasts\": null, \"weights\": null, \"fault\": \"" +
                              name("mivo-2026-02-28T120000Z.json") + ":1: version: "));
}

TEST_F(BackupCommands, restoreTheNewestAndTellWhereTheStateBeforeWent) {
  folder.keep(weighing(2), {}, noon);
  EXPECT_EQ(done("backup restore").output, "Restored from " + name("mivo-2026-03-01T120000Z.json") +
                                               ": 0 fasts, 2 weights, 1 Mar 2026, 12:00 to 1 Mar 2026, 12:00\n"
                                               "There was nothing before.\n");
  EXPECT_EQ(own(), weighing(2));
  put(weighing(4));
  const std::string answer = done("backup restore").output;
  EXPECT_EQ(own(), weighing(2));
  const auto before = folder.backups().front();
  EXPECT_EQ(host::readBackup(before.file), weighing(4));
  EXPECT_THAT(answer,
              HasSubstr("\nWhat was there before is in " + before.file.string() + ". (mivo undo takes it back)\n"));
  done("undo");
  EXPECT_EQ(own(), weighing(4));
  EXPECT_EQ(done("backup restore").output,
            "The records are those of " + before.file.string() + " already. (mivo backup list shows the others)\n");
}

struct ChoiceRow {
  const char *name, *which;
  int weights;
  const char* error = "";
};

TEST_F(BackupCommands, restoreTheOneThatIsNamed) {
  for (int count = 2; count < 5; ++count) folder.keep(weighing(count), {}, noon + Duration{0.45 * day * count});
  std::ofstream{name("mivo-2026-02-01T120000Z.json")} << "{";
  done("weight add 80kg --database other");
  done("export --database other --to other.json");
  for (const ChoiceRow& row : {
           ChoiceRow{"newestOfADay", "2026-03-02", 3},
           ChoiceRow{"newestOfAMonth", "2026-03", 4},
           ChoiceRow{"fileName", "mivo-2026-03-02T093600Z.json", 2},
           ChoiceRow{"anotherFile", "other.json", 1},
           ChoiceRow{"unlikeAny", "2025", 5,
                     "BACKUP: expected the beginning of one that mivo backup list shows, or a "
                     "file, found \"2025\"\n"},
           ChoiceRow{"damaged", "2026-02", 5, "mivo-2026-02-01T120000Z.json:1: snapshot: expected "},
           ChoiceRow{"noSnapshot", "other", 5, "(mivo backup list shows the others)\n"},
           ChoiceRow{"emptyFolder", "--folder none", 5, "none: no backups are there yet\n"},
       }) {
    put(weighing(5));
    const Ran ran = place.run(std::string{"backup restore "} + row.which);
    EXPECT_EQ(ran.status, row.weights == 5 ? 1 : 0) << row.name;
    EXPECT_THAT(ran.errors, HasSubstr(row.error)) << row.name;
    EXPECT_EQ(own().weights.size(), static_cast<std::size_t>(row.weights)) << row.name;
  }
}

TEST_F(BackupCommands, changesAreMadeAfterTheBackupOfTheDay) {
  put(weighing(2));
  for (const char* command : {"weight list", "status", "report", "export --to -", "repair --dry-run"}) done(command);
  EXPECT_EQ(place.run("stop").status, 1);
  EXPECT_TRUE(folder.backups().empty()) << "nothing was changed yet";
  folder.keep(weighing(3), {}, noon);
  done("weight add 80kg");
  done("weight add 79kg");
  ASSERT_EQ(folder.backups().size(), 2u);
  EXPECT_EQ(host::readBackup(folder.backups().front().file), weighing(2));

  fs::remove_all(folder.path());
  std::ofstream{folder.path()} << "no folder";
  const Ran ran = done("undo");
  EXPECT_EQ(own().weights.size(), 3u);
  EXPECT_EQ(ran.errors, "mivo: Today's backup could not be made: " + folder.path().string() +
                            ": the backups cannot be listed: Not a directory\n");
}

TEST_F(BackupCommands, offerTheNewestOfADamagedDatabase) {
  const std::string damaged(5000, 'x');
  fs::create_directory(place.file("mivo"));
  place.write("mivo/mivo.sqlite", damaged);
  EXPECT_THAT(place.run("start").errors,
              HasSubstr(" is damaged, and there is no backup of it. (mivo backup restore FILE puts a snapshot in its"));
  folder.keep(weighing(3), {}, noon);
  for (const char* command : {"start", "stop", "add 20:00 12:00", "undo", "repair", "status", "list", "weight add 81kg",
                              "weight list", "export --to -", "backup", "report"}) {
    const Ran ran = place.run(std::string{command} + " --locale en-DE --time-zone UTC");
    EXPECT_EQ(ran.status, 1) << command;
    EXPECT_EQ(ran.errors, "mivo: " + database.string() +
                              " is damaged; the newest backup is of 1 Mar 2026, 12:00. (mivo backup restore "
                              "brings it back)\n")
        << command;
    EXPECT_EQ(fs::file_size(database), damaged.size()) << command;
  }
  EXPECT_THAT(place.run("list --locale de-DE --time-zone UTC").errors,
              HasSubstr(" ist beschädigt; die neueste Sicherung ist vom 1. März 2026, 12:00. (mivo backup"));
  EXPECT_THAT(done("backup restore").output,
              MatchesRegex("Restored from .*: 0 fasts, 3 weights, .*\n"
                           "The damaged database is kept as .*/mivo.sqlite.damaged-[-0-9T:]*Z.\n"));
  EXPECT_EQ(own(), weighing(3));

  place.write("d", damaged);
  EXPECT_THAT(place.run("list --database d").errors, HasSubstr("(mivo backup restore --database 'd' FILE puts"));
}

struct FolderRow {
  const char *name, *arguments;
  int status;
  const char* error;
};

TEST_F(BackupCommands, goToTheFolderThatIsChosen) {
  const std::string usual = folder.path().string(), stick = place.file("stick").string(),
                    chosen = stick + "/mivo.sqlite.backups";
  fs::create_directory(stick);
  place.write("letter", "no folder");
  EXPECT_EQ(done("backup folder").output, usual + '\n');
  EXPECT_EQ(done("backup folder stick").output,
            "Backups go to " + chosen + " from now on. Those made before stay in " + usual + '\n');
  for (const FolderRow& row : {
           FolderRow{"missing", "none", 1, "/none: No such file or directory\n"},
           FolderRow{"noFolder", "letter", 1, "/letter: Not a directory\n"},
           FolderRow{"both", "stick --usual", 2, "excludes"},
           FolderRow{"anotherHistory", "stick --database other", 2, "for the app's own history alone\n"},
       }) {
    const Ran ran = place.run(std::string{"backup folder "} + row.arguments);
    EXPECT_EQ(ran.status, row.status) << row.name;
    EXPECT_THAT(ran.errors, HasSubstr(row.error)) << row.name;
    EXPECT_EQ(done("backup folder").output, chosen + '\n') << row.name;
  }
  EXPECT_EQ(place.run("backup --folder none folder stick").status, 2);

  put(weighing(3));
  EXPECT_THAT(done("backup").output, HasSubstr(chosen));
  EXPECT_THAT(done("backup list").output, HasSubstr("0        3\n"));
  EXPECT_EQ(done("backup folder --usual").output,
            "Backups go to " + usual + " from now on. Those made before stay in " + chosen + '\n');
  EXPECT_EQ(done("backup list").output, "No backups yet.\n");
}

TEST_F(BackupCommands, goBesideTheHistoryWhileTheChosenFolderIsMissing) {
  const fs::path stick = place.file("stick");
  fs::create_directory(stick);
  done("backup folder stick");
  fs::remove(stick);
  put(weighing(3));
  const std::string said = "mivo: Backups cannot go to " + stick.string() +
                           " at the moment (No such file or directory). Meanwhile they go to " +
                           folder.path().string() + '\n';
  EXPECT_EQ(done("weight add 80kg").errors, said);
  EXPECT_EQ(done("weight add 79kg").errors, "") << "told once";
  EXPECT_EQ(folder.backups().size(), 1u);
  EXPECT_EQ(done("backup folder").errors, said);
  EXPECT_FALSE(fs::exists(stick));

  fs::create_directory(stick);
  std::ofstream{database} << std::string(5000, 'x');
  EXPECT_THAT(place.run("list").errors, HasSubstr("(mivo backup restore brings it back)")) << "from the usual folder";
  done("backup restore");
  EXPECT_EQ(own(), weighing(3));
}

// Restores one of two states, over a sound or a damaged database.
TEST_F(BackupCommands, leaveTheStateBeforeOrAfterWhereTheyAreKilled) {
  using namespace std::chrono;
  const host::History small = weighing(500), large = weighing(1500);
  const host::BackupFolder states{place.file("states")};
  const auto run = [&](const host::Backup& state, milliseconds time) {
    tally::test::ChildProcess command{{MIVO_PROGRAM, "backup", "restore", state.file, "--database", database}};
    return command.killAfter(time).ends_with('\n');
  };
  const host::Backup ofSmall = states.keep(small, {}, noon)->backup, ofLarge = states.keep(large, {}, noon)->backup;
  put(small);
  const auto begin = steady_clock::now();
  ASSERT_TRUE(run(ofLarge, 60s));
  const auto usual = duration_cast<milliseconds>(steady_clock::now() - begin);
  host::History before = large;
  int confirmed = 0;
  constexpr int rounds = 60;
  for (int round = 0; round < rounds; ++round) {
    const bool isDamaged = round % 3 == 0;
    if (isDamaged) std::ofstream{database} << std::string(5000, 'x');
    const bool toSmall = before == large;
    const host::History& after = toSmall ? small : large;
    const bool isDone = run(toSmall ? ofSmall : ofLarge, tally::test::killTime(round, usual));
    confirmed += isDone ? 1 : 0;
    if (isDamaged && !isDone && fs::file_size(database) == 5000) {
      fs::remove(database);
      put(before);
      continue;
    }
    const host::History now = own();
    ASSERT_TRUE(now == after || (now == before && !isDone && !isDamaged)) << "round " << round;
    before = now;
  }
  EXPECT_LT(confirmed, rounds) << "no run was killed";
  for (const host::Backup& backup : folder.backups()) EXPECT_TRUE(host::readBackup(backup.file)) << backup.file;
}

}  // namespace
}  // namespace mivo::cli
