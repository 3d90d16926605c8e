// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "host/disk/DatabaseFile.h"
#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class Import : public testing::Test {
 protected:
  Import() {
    place.write("fasts", "start,end,note\n2026-03-01T20:00Z,2026-03-02T12:00Z,tea\n2026-03-02T20:00Z,,\nsoon,,\n");
    place.write("weights", "date,weight\n2026-03-01T07:00Z,81.4 kg\n2026-03-02T07:00Z,0\n");
  }

  host::History history() const { return host::openDatabase(place.file("d")).history(); }

  Workplace place;
};

TEST_F(Import, addsFilesAsOneChangeAndTellsWhatWasRefused) {
  const Ran ran = place.run("import fasts weights --database d");
  EXPECT_EQ(ran.status, 0);
  EXPECT_EQ(ran.output,
            "fasts: 2 fasts and 0 weights added, 0 there already, 1 refused\n"
            "weights: 0 fasts and 1 weight added, 0 there already, 0 refused\n  1 row has no weight.\n");
  EXPECT_EQ(ran.errors,
            "mivo: fasts:4: start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"soon\"\n");
  EXPECT_EQ(history().fasts.size(), 2u);
  EXPECT_EQ(history().weights.size(), 1u);

  EXPECT_THAT(place.run("import weights fasts --database d").output,
              HasSubstr("fasts: 0 fasts and 0 weights added, 2 there already, 1 refused\n"));
  EXPECT_EQ(history().fasts.size(), 2u);
  EXPECT_EQ(place.run("undo --database d").status, 0);
  EXPECT_THAT(history().fasts, IsEmpty());
  EXPECT_THAT(history().weights, IsEmpty());
}

TEST_F(Import, readsStandardInputAndOnlyTellsWhenDry) {
  EXPECT_EQ(place.run("import --dry-run - --database d", "<fasts >output").output,
            "standard input: 2 fasts and 0 weights to add, 0 there already, 1 refused\n");
  EXPECT_FALSE(std::filesystem::exists(place.file("d")));
  EXPECT_EQ(place.run("import --database d -", "<fasts >output").status, 0);
  EXPECT_EQ(history().fasts.size(), 2u);
}

TEST_F(Import, takesADatabaseAndASnapshotAsTheyAre) {
  EXPECT_EQ(place.run("import --database d fasts weights").status, 0);
  EXPECT_EQ(place.run("export --database d --to all.json").status, 0);
  for (const std::string source : {"d", "all.json"}) {
    EXPECT_EQ(place.run("import " + source + " --database of-" + source).output,
              source + ": 2 fasts and 1 weight added, 0 there already, 0 refused\n");
    const host::History copy = host::openDatabase(place.file("of-" + source)).history();
    EXPECT_EQ(copy.fasts, history().fasts);
    EXPECT_EQ(copy.weights, history().weights);
  }
  EXPECT_EQ(place.run("import --database d d").output, "d: 0 fasts and 0 weights added, 3 there already, 0 refused\n");
}

const std::string expectedFast =
    "expected a start and an end, as in \"yesterday 20:00 - 12:00\" or \"yesterday 20:00, 16h\", found ";

TEST_F(Import, addsTheFastsOfLinesAsOneChange) {
  place.write("notes",
              "Fasts\n- 27.2.2026 20:00 – 28.2.2026 12:30\n- 1.3.2026 20:00 bis 12:00\n\n- 2.3.2026 20:00, 16h 30m\n");
  const std::string add = "add --database d --locale en-DE --goal-hours 18 --time-zone Europe/Berlin ";
  EXPECT_EQ(place.run(add + "--lines --dry-run", "<notes >output").output,
            "standard input: 3 fasts and 0 weights to add, 0 there already, 1 refused\n");
  EXPECT_FALSE(std::filesystem::exists(place.file("d")));
  const Ran ran = place.run(add + "--lines", "<notes >output");
  EXPECT_EQ(ran.status, 0);
  EXPECT_EQ(ran.output, "standard input: 3 fasts and 0 weights added, 0 there already, 1 refused\n");
  EXPECT_EQ(ran.errors, "mivo: standard input:1: " + expectedFast + "\"Fasts\"\n");
  ASSERT_EQ(history().fasts.size(), 3u);
  EXPECT_EQ(history().fasts.back().fast.finished->end, dateSince1970(1772537400));  // 2026-03-03, 11:30 in UTC
  EXPECT_EQ(history().fasts.back().fast.goalSeconds, 18 * 3600);
  EXPECT_EQ(place.run(add + "-", "<notes >output").output,
            "standard input: 0 fasts and 0 weights added, 3 there already, 1 refused\n");
  EXPECT_EQ(place.run("undo --database d").status, 0);
  EXPECT_THAT(history().fasts, IsEmpty());
}

TEST_F(Import, refusesLinesOfWhichNoneIsAFast) {
  place.write("letter", "Dear all,\n");
  const Ran ran = place.run("add --lines --database d", "<letter >output");
  EXPECT_EQ(ran.status, 1);
  EXPECT_EQ(ran.output, "");
  EXPECT_EQ(ran.errors, "mivo: standard input:1: " + expectedFast +
                            "\"Dear all,\"\nmivo: standard input: expected fasts, one a line, as in \"yesterday "
                            "20:00 - 12:00\"\n");
  EXPECT_FALSE(std::filesystem::exists(place.file("d")));
}

struct RefusedImport {
  const char* name;
  std::string arguments, error;
  int status = 1;
};

TEST_F(Import, changesNothingWhereAFileIsRefused) {
  place.write("letter", "Dear all,");
  place.write("open", "date,kg\n2/3/2026,81\n");
  place.write("bare", "date,weight\n2026-03-01,81\n");
  for (const RefusedImport& row : {
           RefusedImport{"noFile", "fasts none", "none: expected a file that can be read: No such file or directory"},
           RefusedImport{"folder", "fasts .", ".: expected a file that can be read: Is a directory"},
           RefusedImport{"unknown", "fasts letter", "letter: expected a backup or database of the app, a table"},
           RefusedImport{"order", "fasts open",
                         "2026-02-03, found \"2/3/2026\" (--date-order day-first or month-first "
                         "says it)",
                         2},
           RefusedImport{"unit", "fasts bare", "found \"81\" (--weight-unit kg, lb or st says it)", 2},
           RefusedImport{"noSuchOrder", "fasts --date-order us",
                         "--date-order: expected day-first or month-first, found "
                         "\"us\"",
                         2},
           RefusedImport{"noSuchUnit", "fasts --weight-unit g", "--weight-unit: expected kg, lb or st, found \"g\"", 2},
           RefusedImport{"nothing", "", "FILE is required", 2},
       }) {
    const Ran ran = place.run("import --database d " + row.arguments);
    EXPECT_EQ(ran.status, row.status) << row.name;
    EXPECT_THAT(ran.errors, HasSubstr(row.error)) << row.name;
    EXPECT_THAT(ran.output, IsEmpty()) << row.name;
    EXPECT_FALSE(std::filesystem::exists(place.file("d"))) << row.name;
  }
  EXPECT_EQ(place.run("import --database d bare open --weight-unit lb --date-order month-first").status, 0);
  EXPECT_EQ(history().weights.front().weightInKg, 81);
}

}  // namespace
}  // namespace mivo::cli
