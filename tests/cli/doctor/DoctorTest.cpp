// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

constexpr const char* nowhere = "http://127.0.0.1:1";

TEST(Doctor, isContentWhereNothingHasBegun) {
  const Workplace place;
  const Ran ran = place.run("doctor");
  EXPECT_EQ(ran.status, 0) << ran.output;
  EXPECT_EQ(ran.errors, "");
  EXPECT_THAT(ran.output, HasSubstr("mivo/mivo.sqlite: none yet\n"));
  EXPECT_THAT(ran.output, HasSubstr("  time zone        UTC\n"));
  EXPECT_THAT(ran.output, HasSubstr("  health data      no file linked\n"));
  EXPECT_THAT(ran.output, HasSubstr("  vote server      none named\n"));
  EXPECT_FALSE(std::filesystem::exists(place.file("mivo"))) << "it changes nothing";
}

TEST(Doctor, countsWhatASoundDatabaseHolds) {
  const Workplace place;
  place.run("weight add 81kg");
  const Ran ran = place.run("doctor --format json");
  EXPECT_EQ(ran.status, 0);
  const auto json = nlohmann::json::parse(ran.output);
  EXPECT_EQ(json["isSound"], true);
  EXPECT_THAT(json["findings"][2]["value"].get<std::string>(), HasSubstr("sound, fasts: 0, weights: 1"));
}

struct IllRow {
  const char* name;
  const char* file;
  std::string content, arguments, finding;
};

TEST(Doctor, tellsWhatIsIllAndLeavesItAsItIs) {
  for (const IllRow& row : {
           IllRow{"database", "mivo/mivo.sqlite", std::string(5000, 'x'), "", "! database"},
           IllRow{"namedDatabase", "other", "", "--database none", "! database         none: no such file\n"},
           IllRow{"settings", "mivo/app.json", "{\"weightUnit\": ", "", "! settings"},
           IllRow{"sharedSettings", "mivo/group.json", "no JSON", "", "! shared settings"},
           IllRow{"healthData", "mivo/app.json", R"({"health.linkedFile": "/no/such.zip"})", "",
                  "! health data      /no/such.zip: expected a file that can be read: "},
           IllRow{"backupFolder", "mivo/app.json", R"({"backups.folder": "/no/stick"})", "",
                  "! backup folder    /no/stick: No such file or directory; backups go beside the history\n"},
           IllRow{"server", "other", "", std::string{"--tally "} + nowhere,
                  "! vote server      " + std::string{nowhere}},
       }) {
    const Workplace place;
    std::filesystem::create_directories(place.file("mivo"));
    place.write(row.file, row.content);
    const Ran ran = place.run("doctor " + row.arguments);
    EXPECT_EQ(ran.status, 1) << row.name;
    EXPECT_THAT(ran.output, HasSubstr(row.finding)) << row.name;
    EXPECT_EQ(std::filesystem::file_size(place.file(row.file)), row.content.size()) << row.name;
  }
}

TEST(Doctor, namesTheLinkedHealthExport) {
  const Workplace place;
  std::filesystem::create_directories(place.file("mivo"));
  const std::string path = place.file("export.zip").string();
  place.write("export.zip", "not looked into");
  place.write("mivo/app.json", R"({"health.linkedFile": ")" + path + "\"}");
  const Ran ran = place.run("doctor");
  EXPECT_EQ(ran.status, 0);
  EXPECT_THAT(ran.output, HasSubstr("  health data      " + path + ": can be read\n"));
}

TEST(Doctor, readsTheNewestBackup) {
  const Workplace place;
  EXPECT_THAT(place.run("doctor").output,
              HasSubstr("  backups          " + place.file("mivo/mivo.sqlite.backups").string() + ": none yet\n"));
  place.run("weight add 81kg");
  place.run("backup");
  EXPECT_THAT(place.run("doctor").output, MatchesRegex("(.|\n)*  backups          .*/mivo.sqlite.backups: 1, the "
                                                       "newest of 2.*Z sound, fasts: 0, weights: 1\n(.|\n)*"));
  place.write("mivo/mivo.sqlite.backups/mivo-2526-03-01T120000Z.json", "{\"version\": 1");
  const Ran ran = place.run("doctor");
  EXPECT_EQ(ran.status, 1);
  EXPECT_THAT(ran.output,
              HasSubstr("! backups          " +
                        place.file("mivo/mivo.sqlite.backups/mivo-2526-03-01T120000Z.json").string() + ":1: "));
}

TEST(Doctor, looksIntoTheFolderThatWasChosenForBackups) {
  const Workplace place;
  std::filesystem::create_directory(place.file("stick"));
  place.run("backup folder stick");
  place.run("weight add 81kg");
  place.run("backup");
  const Ran ran = place.run("doctor");
  EXPECT_EQ(ran.status, 0);
  EXPECT_THAT(ran.output, HasSubstr(place.file("stick/mivo.sqlite.backups").string() + ": 1, the newest of "));
  EXPECT_THAT(ran.output, HasSubstr("  backup folder    " + place.file("stick").string() + ": can be written\n"));
}

TEST(Doctor, tellsThatTheTimeZoneIsUnknown) {
  const Workplace place;
  const Ran ran = place.run("doctor", ">output", "TZ=Mars/Olympus");
  EXPECT_EQ(ran.status, 1);
  EXPECT_THAT(ran.output, HasSubstr("! time zone        TZ: unknown time zone \"Mars/Olympus\""));
}

TEST(Doctor, namesWhatWasSetAside) {
  const Workplace place;
  std::filesystem::create_directories(place.file("mivo"));
  place.write("mivo/mivo.sqlite.damaged-2026-03-01T12:00:00Z", "x");
  place.write("mivo/mivo.sqlite.damaged-2026-03-01T12:00:00Z-wal", "x");
  const Ran ran = place.run("doctor");
  EXPECT_EQ(ran.status, 0);
  EXPECT_THAT(ran.output, HasSubstr("  set aside        "));
  EXPECT_THAT(ran.output, Not(HasSubstr("-wal")));
}

TEST(Doctor, isToldOfByHelpAndRefusesOtherForms) {
  const Workplace place;
  EXPECT_THAT(place.run("--help").output, HasSubstr("doctor"));
  EXPECT_THAT(place.run("help doctor").output, HasSubstr("mivo doctor --tally"));
  EXPECT_EQ(place.run("doctor --format xml").status, 2);
}

}  // namespace
}  // namespace mivo::cli
