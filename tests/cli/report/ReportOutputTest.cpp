// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

const std::string report = "report --input " + sample("three-weeks") + fixedRun;

TEST(ReportOutput, thatIsFullOrClosedIsAnError) {
  const Workplace place;
  for (const char* format : {"", "--format json"}) {
    const Ran full = place.run(report + format, ">/dev/full");
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.errors, "mivo: standard output: No space left on device\n");
    const Ran closed = place.run(report + format, ">&-");
    EXPECT_EQ(closed.status, 1);
    EXPECT_EQ(closed.errors, "mivo: standard output: Bad file descriptor\n");
  }
  EXPECT_EQ(place.run("--help", ">/dev/full").status, 1);
}

TEST(ReportOutput, isTheSameEveryTime) {
  const Workplace place;
  place.write("w.csv", "date,weight_kg\n2026-02-01,81\n2026-02-02,82\n");  // without ids
  const std::string arguments = "report --weights w.csv --format json" + fixedRun;
  EXPECT_EQ(place.run(arguments).output, place.run(arguments).output);
}

TEST(ReportOutput, isTheSameOfStandardInput) {
  const Workplace place;
  const std::string settings = "--format json" + fixedRun;
  EXPECT_EQ(place.run("report --input - " + settings, "<" + sample("three-weeks") + " >output").output,
            place.run(report + "--format json").output);
  place.write("f.csv", "start,end\n2026-02-01T20:00Z,2026-02-02T12:00Z\n");
  EXPECT_EQ(place.run("report --fasts - " + settings, "<f.csv >output").output,
            place.run("report --fasts f.csv " + settings).output);
  place.write("f.csv", "start,end\nsoon,later\n");
  EXPECT_THAT(place.run("report --fasts - ", "<f.csv >output").errors,
              testing::StartsWith("mivo: standard input:2: start: expected a date and time"));
}

TEST(ReportOutput, helpAndVersionAreAnswers) {
  const Workplace place;
  const Ran help = place.run("report --help");
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.output.find("mivo report --input backup.json"), std::string::npos);
  const Ran version = place.run("--version");
  EXPECT_EQ(version.status, 0);
  EXPECT_THAT(version.output, MatchesRegex("mivo [0-9.]+\n"));
  EXPECT_EQ(help.errors + version.errors, "");
}

TEST(ReportOutput, verboseVersionTellsOfTheMachinesZonesAndLibraries) {
  const Workplace place;
  std::filesystem::create_directory(place.file("zones"));
  place.write("zones/tzdata.zi", "# version 2019z\n# redo posix_only\n");
  for (const char* arguments : {"--version --verbose", "--verbose --version"})
    EXPECT_THAT(place.run(arguments, ">output", "TZDIR=zones").output,
                MatchesRegex("mivo [0-9.]+\n  time-zone data 2019z\n  ICU [0-9.]+\n  SQLite [0-9.]+\n"
                             "  Boost [0-9.]+\n  nlohmann-json [0-9.]+\n  RapidJSON [0-9.]+\n  CLI11 [0-9.]+\n"))
        << arguments;
  EXPECT_THAT(place.run("--version --verbose", ">output", "TZDIR=none").output, HasSubstr("time-zone data unknown\n"));
  EXPECT_EQ(place.run("--verbose list").status, 2) << "says more of nothing else";
}

TEST(ReportOutput, warnsOnceOfFastsThatEndBeforeTheyStart) {
  const Workplace place;
  place.write("f.csv", "start,end\n2026-02-02T12:00Z,2026-02-01T12:00Z\n2026-02-04T12:00Z,2026-02-03T12:00Z\n");
  const Ran ran = place.run("report --fasts f.csv --format json" + fixedRun);
  EXPECT_EQ(ran.status, 0);
  EXPECT_EQ(ran.errors,
            "mivo: f.csv:2: end: expected an end after the start, found \"2026-02-01T12:00Z\"; kept, and so is 1 more "
            "like it\n");
  EXPECT_NE(ran.output.find("\"totalFasts\": 2,"), std::string::npos);
}

TEST(ReportOutput, hasColourOnATerminalUnlessToldNotTo) {
  const Workplace place;
  const auto onTerminal = [&](const std::string& environment) {
    const std::string command = "script --quiet --return --command \"" MIVO_PROGRAM " " + report + "\" /dev/null";
    return place.run("--version >/dev/null && " + environment + " " + command).output.find("\x1B[") !=
           std::string::npos;
  };
  EXPECT_TRUE(onTerminal("NO_COLOR= TERM=xterm"));
  EXPECT_FALSE(onTerminal("NO_COLOR=1 TERM=xterm"));
  EXPECT_FALSE(onTerminal("NO_COLOR= TERM=dumb"));
  EXPECT_EQ(place.run(report, ">output", "NO_COLOR= TERM=xterm").output.find("\x1B["), std::string::npos);
}

}  // namespace
}  // namespace mivo::cli
