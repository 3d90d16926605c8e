// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "host/disk/DatabaseFile.h"
#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

constexpr int badData = 1, wrongUsage = 2;

/// One fast that ended, one that runs, one weight; the fasts' ids begin with 11 and 12, the weight's with 21.
host::HistoryChange someRecords() {
  const Date start = dateSince1970(1772222400);  // 2026-02-27 20:00 UTC
  host::HistoryChange change;
  change.addedFasts = {{finishedFast({0x1100000000004000, 1}, start, start + Duration{57600}, 57600), ""},
                       {ongoingFast({0x1200000000004000, 2}, start + Duration{86400}, 57600), ""}};
  change.addedWeights = {{{0x2100000000004000, 3}, start, 81.4}};
  return change;
}

struct ErrorRow {
  const char* name;
  std::string arguments, errors;
  int status = badData;
};
void PrintTo(const ErrorRow& row, std::ostream* out) { *out << row.name; }
class RecordErrors : public testing::TestWithParam<ErrorRow> {};

TEST_P(RecordErrors, areOneSentenceAndChangeNothing) {
  const Workplace place;
  host::openDatabase(place.file("d")).apply(someRecords());
  const auto before = host::openDatabase(place.file("d")).history();
  const Ran ran = place.run(GetParam().arguments + " --database d");
  EXPECT_THAT(ran.errors, testing::MatchesRegex("mivo: " + GetParam().errors + "\n"));
  EXPECT_EQ(ran.status, GetParam().status);
  EXPECT_EQ(ran.output, "");
  EXPECT_EQ(host::openDatabase(place.file("d")).history(), before);
}

const std::string now = "2[0-9-]+ [0-9:]+";
const std::string noWeight =
    "Type up to 700 kg or 1543 lb, such as 81.4. "
    "\\(WEIGHT: expected a weight above 0 and at most 700 kg, as in 81.4, 81.4kg, 179lb or \"12st 11lb\", ";
const std::string notADate =
    "expected a date and time, as in 2026-03-01 20:00, 20:00, \"yesterday 8 pm\" or \"2h ago\", found ";

INSTANTIATE_TEST_SUITE_P(
    Data, RecordErrors,
    testing::Values(
        ErrorRow{"secondFast", "start", "A fast is running already. \\(since 2026-02-28 20:00; mivo stop ends it\\)"},
        ErrorRow{"stopBeforeStart", "stop --at 2026-02-28T19:00Z",
                 "The end is before the start. \\(the fast is running since 2026-02-28 20:00\\)"},
        ErrorRow{"stopInFuture", "stop --at 2526-02-28T19:00Z",
                 "The end is in the future. Is the clock right\\? \\(it is " + now +
                     "; the fast is running since 2026-02-28 20:00\\)"},
        ErrorRow{"startInFuture", "add 2526-02-28T19:00Z 2526-02-28T20:00Z",
                 "The start is in the future. Is the clock right\\? \\(it is " + now + "\\)"},
        ErrorRow{"weightInFuture", "weight add 81kg --at 2526-02-28T19:00Z",
                 "The date is in the future. Is the clock right\\? \\(it is " + now + "\\)"},
        ErrorRow{"endBeforeStart", "add 2026-02-02T00:00Z 2026-02-01T00:00Z", "The end is before the start."},
        ErrorRow{"editedEndBeforeStart", "edit 11 --end 2026-02-27T19:00Z", "The end is before the start."},
        ErrorRow{"secondRunningByEdit", "edit 11 --running",
                 "A fast is running already. \\(since 2026-02-28 20:00; mivo stop ends it\\)"},
        ErrorRow{"unknownID", "remove 13", "no fast has an id that begins with \"13\""},
        ErrorRow{"unknownWeight", "weight remove 11", "no weight has an id that begins with \"11\""},
        ErrorRow{"ambiguousID", "remove 1", "2 fasts have an id that begins with \"1\": expected more of it"}),
    [](const auto& row) { return std::string{row.param.name}; });

INSTANTIATE_TEST_SUITE_P(
    Usage, RecordErrors,
    testing::Values(
        ErrorRow{"noDate", "start --at noon", "--at: " + notADate + "\"noon\"", wrongUsage},
        ErrorRow{"dayAlone", "stop --at 2026-03-01", "--at: " + notADate + "\"2026-03-01\"", wrongUsage},
        ErrorRow{
            "timeThatClocksShowTwice", "stop --time-zone Europe/Berlin --at '26.10.2025 02:30'",
            "--at: expected 2025-10-26 02:30\\+02:00 or 2025-10-26 02:30\\+01:00, since the clocks show this twice, "
            "found \"26.10.2025 02:30\"",
            wrongUsage},
        ErrorRow{"yearTooLate", "add 2026-02-02T00:00Z 10000-01-01T00:00Z",
                 "END: " + notADate + "\"10000-01-01T00:00Z\"", wrongUsage},
        ErrorRow{"noSuchDay", "edit 11 --start '2026-02-30 12:00'", "--start: " + notADate + "\"2026-02-30 12:00\"",
                 wrongUsage},
        ErrorRow{"noEnd", "add 20:00", "expected START and END, or --lines", wrongUsage},
        ErrorRow{"dryRunOfOneFast", "add 20:00 12:00 --dry-run", "--dry-run: expected --lines with it", wrongUsage},
        ErrorRow{"noteOfLines", "add - --note tea", "--note: expected one fast, not --lines", wrongUsage},
        ErrorRow{"linesAndAFast", "add 20:00 12:00 --lines", ".*excludes.*", wrongUsage},
        ErrorRow{"negativeGoal", "edit 11 --goal-hours=-1",
                 "--goal-hours: expected hours from 0 to 168, as in 16, 16.5 or 16:30, found \"-1\"", wrongUsage},
        ErrorRow{"nothingToChange", "edit 11",
                 "nothing to change: expected --start, --end, --running, --goal-hours or --note", wrongUsage},
        ErrorRow{"noID", "remove last",
                 "ID: expected the beginning of an id, digits and the letters a to f, found \"last\"", wrongUsage},
        ErrorRow{"noWeight", "weight add heavy", noWeight + "found \"heavy\"\\)", wrongUsage},
        ErrorRow{"tooManyPounds", "weight add '12st 14lb'", noWeight + "found \"12st 14lb\"\\)", wrongUsage},
        ErrorRow{"grams", "weight add 81400", noWeight + "found \"81400\"\\)", wrongUsage},
        ErrorRow{"heavierThanAnyone", "weight add 1544lb", noWeight + "found \"1544lb\"\\)", wrongUsage},
        ErrorRow{"badNote", "edit 11 --note \"$(printf '\\377')\"",
                 "Write a shorter note. \\(--note: expected UTF-8 text of at most 65536 bytes\\)", wrongUsage},
        ErrorRow{"format", "list --format xml", "--format: expected text or json, found \"xml\"", wrongUsage},
        ErrorRow{"zone", "list --time-zone Europe/Berln",
                 "--time-zone: unknown time zone \"Europe/Berln\": did you mean Europe/Berlin\\?", wrongUsage},
        ErrorRow{"unknownOption", "weight add 81 --kg", ".*--kg.*\\(mivo weight add --help tells what can\\)",
                 wrongUsage},
        ErrorRow{"noCommandOfWeight", "weight", ".*\\(mivo weight --help tells what can\\)", wrongUsage}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(RecordErrors, aClockThatWasSetBackLosesNothing) {
  const Workplace place;
  host::HistoryChange change;
  change.addedFasts = {{ongoingFast({1, 1}, dateSince1970(16e9), 57600), ""}};  // of the year 2477
  host::openDatabase(place.file("d")).apply(change);
  const Ran ran = place.run("stop --database d");
  EXPECT_EQ(ran.status, badData);
  EXPECT_THAT(ran.errors, testing::MatchesRegex("mivo: The start is in the future. Is the clock right\\? "
                                                "\\(it is " +
                                                now + "; the fast is running since 2477-.*\\)\n"));
  EXPECT_EQ(place.run("edit 0000 --note 'clock was wrong' --database d").status, 0);
  EXPECT_EQ(host::openDatabase(place.file("d")).history().fasts[0].fast.start, dateSince1970(16e9));
}

TEST(RecordErrors, leaveNoDatabaseBehindWhereThereWasNone) {
  const Workplace place;
  for (const char* command : {"stop", "remove 3f", "edit 3f --note tea", "weight remove 3f", "weight add heavy",
                              "start --goal-hours 200", "add 2026-02-02T00:00Z 2026-02-01T00:00Z", "undo"}) {
    EXPECT_NE(place.run(std::string{command} + " --database folder/d").status, 0) << command;
    EXPECT_FALSE(std::filesystem::exists(place.file("folder"))) << command;
  }
}

TEST(RecordErrors, nameAFileThatIsNoDatabase) {
  const Workplace place;
  EXPECT_EQ(place.run("list --database none.sqlite").errors, "mivo: none.sqlite: expected a database of the app\n");
  EXPECT_THAT(place.run("start --database /proc/none/d").errors, testing::HasSubstr("/proc/none"));
}

}  // namespace
}  // namespace mivo::cli
