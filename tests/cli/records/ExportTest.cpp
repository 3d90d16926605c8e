// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "adapters/standard/LocalUUIDGenerator.h"
#include "host/disk/DatabaseFile.h"
#include "host/disk/TextFile.h"
#include "host/history/Snapshot.h"
#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int badData = 1, wrongUsage = 2;

class Export : public testing::Test {
 protected:
  Export() {
    const Date start = dateSince1970(1772222400.125);
    host::HistoryChange records;
    records.addedFasts = {{finishedFast({1, 1}, start, start + Duration{57600}, 57600), "tea"},
                          {ongoingFast({1, 2}, start + Duration{86400}, 59400), ""}};
    records.addedWeights = {{{2, 3}, start, 81.4}};
    host::openDatabase(place.file("d")).apply(records);
  }

  std::string contents(const char* file) const { return host::readTextFile(place.file(file).string()).value(); }

  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const auto& entry : fs::directory_iterator{place.file("")})
      if (const auto name = entry.path().filename().string(); name.find(".json") != name.npos) all.push_back(name);
    return all;
  }

  Workplace place;
};

TEST_F(Export, writesAllThatReadsBackForItsOwnerOnly) {
  const Ran ran = place.run("export --to backup.json --database d");
  EXPECT_EQ(ran.status, 0) << ran.errors;
  EXPECT_EQ(ran.output, "Exported to backup.json: 2 fasts, 1 weight\n");
  const auto read = host::readSnapshot(contents("backup.json"), "backup.json", adapters::LocalUUIDGenerator{});
  EXPECT_EQ(read.value(), host::openDatabase(place.file("d")).history());
  EXPECT_EQ(fs::status(place.file("backup.json")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(place.run("export --to - --database d").output, contents("backup.json"));
}

TEST_F(Export, replacesAFileOnlyWhenForced) {
  place.write("backup.JSON", "older");
  const Ran refused = place.run("export --to backup.JSON --database d");
  EXPECT_EQ(refused.status, badData);
  EXPECT_EQ(refused.errors,
            "mivo: backup.JSON: the file is there already: expected another name, or --force to replace it\n");
  EXPECT_EQ(contents("backup.JSON"), "older");
  fs::permissions(place.file("backup.JSON"), fs::perms::all);
  EXPECT_EQ(place.run("export --force --to backup.JSON --database d").status, 0);
  EXPECT_THAT(contents("backup.JSON"), HasSubstr("\"note\": \"tea\""));
  EXPECT_EQ(fs::status(place.file("backup.JSON")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Export, writesTablesThatImportAsEqual) {
  EXPECT_EQ(place.run("export --to f.csv --what fasts --database d").output, "Exported to f.csv: 2 fasts\n");
  EXPECT_EQ(place.run("export --to w.CSV --what weights --database d").output, "Exported to w.CSV: 1 weight\n");
  EXPECT_EQ(contents("f.csv"),
            "start,end,goal_hours,note\n2026-02-27T20:00:00.125Z,2026-02-28T12:00:00.125Z,16,tea\n"
            "2026-02-28T20:00:00.125Z,,16.5,\n");
  EXPECT_EQ(place.run("export --to - --what weights --database d").output, contents("w.CSV"));
  EXPECT_THAT(place.run("export --to w.json --what weights --database d").output, HasSubstr("1 weight"));
  EXPECT_EQ(contents("w.json"), place.run("weight list --format json --database d").output);
  EXPECT_EQ(place.run("import f.csv w.CSV w.json --database d").output,
            "f.csv: 0 fasts and 0 weights added, 2 there already, 0 refused\n"
            "w.CSV: 0 fasts and 0 weights added, 1 there already, 0 refused\n"
            "w.json: 0 fasts and 0 weights added, 1 there already, 0 refused\n");
}

TEST_F(Export, carriesSettingsThatAnImportChoosesWhereAsked) {
  fs::create_directories(place.file("mivo"));
  place.write("mivo/app.json", R"({"goalWeightInKg": 75.5, "weightUnit": "st", "windowTab": "settings"})");
  place.write("mivo/group.json", R"({"streakMaxBreakHours": 30})");
  EXPECT_EQ(place.run("export --to all.json").status, 0);
  EXPECT_THAT(contents("all.json"), HasSubstr("\"goalWeightInKg\": 75.5"));
  EXPECT_THAT(contents("all.json"), testing::Not(HasSubstr("windowTab")));
  const std::string elsewhere = "XDG_CONFIG_HOME=\"$PWD/other\" ";
  EXPECT_EQ(place.run("import all.json --database e", ">output", elsewhere).status, 0);
  EXPECT_FALSE(fs::exists(place.file("other")));
  EXPECT_THAT(place.run("import all.json --with-settings --database e", ">output", elsewhere).output,
              HasSubstr("3 settings taken over\n"));
  EXPECT_THAT(contents("other/mivo/app.json"), HasSubstr("75.5"));
  EXPECT_THAT(contents("other/mivo/group.json"), HasSubstr("30"));
}

struct RefusedExport {
  const char* name;
  std::string arguments, error;
  int status = badData;
};

TEST_F(Export, leavesNothingBehindWhereItIsRefused) {
  fs::create_directory(place.file("folder.json"));
  place.write("there.pdf", "");
  for (const RefusedExport& row : {
           RefusedExport{"otherForm", "--to backup.gif --database d",
                         "--to: expected a file whose name ends in .json, .csv, .png or .pdf, or -, found "
                         "\"backup.gif\"",
                         wrongUsage},
           RefusedExport{"pagesOfAList", "--to fasts.pdf --what fasts --database d",
                         "--what: a picture and pages show the statistics, not a list", wrongUsage},
           RefusedExport{"otherRange", "--to fasts.pdf --range decade --database d",
                         "--range: expected week, month or year, found \"decade\"", wrongUsage},
           RefusedExport{"pagesOfNoDatabase", "--to a.pdf --database none", "none: expected a database of the app"},
           RefusedExport{"pagesThatAreThere", "--to there.pdf --database d",
                         "there.pdf: the file is there already: expected another name, or --force to replace it"},
           RefusedExport{"tableOfWhat", "--to backup.csv --database d",
                         "--what: expected fasts or weights, since a table holds one of them", wrongUsage},
           RefusedExport{"otherList", "--to backup.csv --what badges --database d",
                         "--what: expected fasts or weights, found \"badges\"", wrongUsage},
           RefusedExport{"noTarget", "--database d", "--to is required", wrongUsage},
           RefusedExport{"noFolder", "--to none/backup.json --database d",
                         "none/backup.json: could not be written: No such file or directory"},
           RefusedExport{"folder", "--force --to folder.json --database d",
                         "folder.json: expected a file, or no such name yet"},
           RefusedExport{"noDatabase", "--to backup.json --database none", "none: expected a database of the app"},
       }) {
    const Ran ran = place.run("export " + row.arguments);
    EXPECT_EQ(ran.status, row.status) << row.name;
    EXPECT_THAT(ran.errors, HasSubstr(row.error)) << row.name;
    EXPECT_THAT(ran.output, IsEmpty()) << row.name;
    EXPECT_THAT(names(), testing::ElementsAre("folder.json")) << row.name;
  }
}

}  // namespace
}  // namespace mivo::cli
