// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <ostream>

#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

struct ErrorRow {
  const char* name;
  std::string file, content, arguments, errors;
  int status = 1;
};
void PrintTo(const ErrorRow& row, std::ostream* out) { *out << row.name; }
class ReportErrors : public testing::TestWithParam<ErrorRow> {};

TEST_P(ReportErrors, areOneSentenceAndNothingElse) {
  const auto& row = GetParam();
  const Workplace place;
  if (!row.file.empty()) place.write(row.file, row.content);
  const Ran ran = place.run(row.arguments);
  EXPECT_EQ(ran.errors, row.errors + '\n');
  EXPECT_EQ(ran.status, row.status);
  EXPECT_EQ(ran.output, "");
}

const std::string fromSnapshot = "report --input a.json", fromFasts = "report --fasts f.csv",
                  fromWeights = "report --weights w.csv";

const std::string expectedFile =
    "expected a backup or database of the app, a table or list of fasts with a start and an end, one of weights with a "
    "date and a weight, or a health export, found ";

std::string fastWith(const std::string& members) {
  return "{\"version\": 1, \"fasts\": [\n{" + members + "}], \"weights\": []}";
}

INSTANTIATE_TEST_SUITE_P(
    Files, ReportErrors,
    testing::Values(
        ErrorRow{"missing", "", "", "report --input a.json",
                 "mivo: a.json: expected a file that can be read: No such file or directory"},
        ErrorRow{"folder", "", "", "report --input .", "mivo: .: expected a file that can be read: Is a directory"},
        ErrorRow{"missingDatabase", "", "", "report --database a.sqlite",
                 "mivo: a.sqlite: expected a database of the app"},
        ErrorRow{"emptyFile", "a.json", "", fromSnapshot, "mivo: a.json: " + expectedFile + "an empty file"},
        ErrorRow{"otherText", "a.json", "Dear all,", fromSnapshot, "mivo: a.json: " + expectedFile + "\"Dear all,\""},
        ErrorRow{"firstWrongRow", "a.json", "start,end\n2026-03-01T20:00Z,2026-03-02T12:00Z\nsoon,\n2026-03-03,\n",
                 fromSnapshot,
                 "mivo: a.json:3: start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
                 "found \"soon\""},
        ErrorRow{"secondRunning", "a.json", "start,end\n2026-03-01T20:00Z,\n2026-03-02T20:00Z,\n", fromSnapshot,
                 "mivo: a.json:3: end: expected an end, since another fast is running already"},
        ErrorRow{"dateInTwoWays", "a.json", "start,hours\n2/3/2026 20:00,16\n", fromSnapshot,
                 "mivo: a.json:2: start: expected a date that can be read in one way only, not as 2026-03-02 or "
                 "2026-02-03, found \"2/3/2026 20:00\" (--date-order day-first or month-first says it)",
                 2},
        ErrorRow{"emptyTable", "f.csv", "", fromFasts,
                 "mivo: f.csv: expected a header with the columns \"start\" and \"end\", found an empty file"},
        ErrorRow{"truncated", "a.json", "{\"version\": 1,\n\"fasts\": [{\"start\": \"2026", fromSnapshot,
                 "mivo: a.json:2: fasts[0].start: expected a date and time of the years 1 to 9999, as in "
                 "2026-03-01T12:00:00Z, found the end of the file"},
        ErrorRow{"hugeGoal", "a.json", fastWith("\"goalSeconds\": 1e308"), fromSnapshot,
                 "mivo: a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"1e308\""},
        ErrorRow{"notANumber", "a.json", fastWith("\"goalSeconds\": NaN"), fromSnapshot,
                 "mivo: a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"NaN\""},
        ErrorRow{"keyTwice", "a.json", fastWith("\"note\": \"\", \"note\": \"\""), fromSnapshot,
                 "mivo: a.json:2: fasts[0]: expected each key once in an object, found \"note\""},
        ErrorRow{"twoRunning", "a.json",
                 fastWith("\"start\": \"2026-02-01T00:00:00Z\", \"end\": null},\n{\"start\": \"2026-02-02T00:00:00Z\", "
                          "\"end\": null"),
                 fromSnapshot,
                 "mivo: a.json:3: fasts[1].end: expected an end, since line 2 has a fast that is still running, found "
                 "\"null\""},
        ErrorRow{"deepNesting", "a.json", std::string(10'000, '['), fromSnapshot,
                 "mivo: a.json:1: expected more JSON, found the end of the file"},
        ErrorRow{"longLine", "a.json", fastWith("\"note\": \"" + std::string(10'000'000, 'x') + '"'), fromSnapshot,
                 "mivo: a.json:2: fasts[0].note: expected UTF-8 text of at most 65536 bytes, found "
                 "\"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...\""},
        ErrorRow{"longTableLine", "f.csv", "start,end\n" + std::string(20'000'000, 'x'), fromFasts,
                 "mivo: f.csv:2: expected a record of at most 1 MiB"},
        ErrorRow{"latin1", "a.json", fastWith("\"note\": \"f\xFCnf\""), fromSnapshot,
                 "mivo: a.json:2: fasts[0].note: expected a text as JSON has it: ill-formed UTF-8 byte"},
        ErrorRow{"noWeight", "w.csv", "date,weight_kg\n2026-02-01,0\n", fromWeights,
                 "mivo: w.csv:2: weight_kg: expected kilograms above 0 and at most 1000, found \"0\""},
        ErrorRow{"noUnit", "w.csv", "date,weight\n2026-02-01,81\n", fromWeights,
                 "mivo: w.csv:2: weight: expected a unit in the header or the cell: kg, lb or st, found \"81\""},
        ErrorRow{"badCellOnALaterLine", "f.csv", "start,end\n2026-02-01 20:00,2026-02-02 12:00\n\n1.2.26 8pm,\n",
                 fromFasts,
                 "mivo: f.csv:4: start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
                 "found \"1.2.26 8pm\""}),
    [](const auto& row) { return std::string{row.param.name}; });

constexpr int wrongUsage = 2;
const std::string someInput = "report --input a.json ";

INSTANTIATE_TEST_SUITE_P(
    Usage, ReportErrors,
    testing::Values(
        ErrorRow{"noInput", "", "", "report",
                 "mivo: no history given, and the app has none here: expected --input FILE.json, --fasts FILE.csv with "
                 "or without --weights "
                 "FILE.csv, or --database FILE",
                 wrongUsage},
        ErrorRow{"twoInputs", "", "", someInput + "--fasts f.csv",
                 "mivo: expected one of --input, --database, or --fasts and --weights, not several", wrongUsage},
        ErrorRow{"range", "", "", someInput + "--range fortnight",
                 "mivo: --range: expected week, month or year, found \"fortnight\"", wrongUsage},
        ErrorRow{"format", "", "", someInput + "--format xml", "mivo: --format: expected text or json, found \"xml\"",
                 wrongUsage},
        ErrorRow{"count", "", "", someInput + "--count weeks", "mivo: --count: expected days or fasts, found \"weeks\"",
                 wrongUsage},
        ErrorRow{"now", "", "", someInput + "--now noon",
                 "mivo: --now: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
                 "\"noon\"",
                 wrongUsage},
        ErrorRow{"weekday", "", "", someInput + "--first-weekday 8",
                 "mivo: --first-weekday: expected 1 (Sunday) to 7 (Saturday), found \"8\"", wrongUsage},
        ErrorRow{"break", "", "", someInput + "--max-break-hours 87660001",
                 "mivo: --max-break-hours: expected whole hours from 0 to 87660000, found \"87660001\"", wrongUsage},
        ErrorRow{"negativeBreak", "", "", someInput + "--max-break-hours=-1",
                 "mivo: --max-break-hours: expected whole hours from 0 to 87660000, found \"-1\"", wrongUsage},
        ErrorRow{"weightUnit", "", "", someInput + "--weight-unit g",
                 "mivo: --weight-unit: expected kg, lb or st, found \"g\"", wrongUsage},
        ErrorRow{"zone", "", "", someInput + "--time-zone Europe/Berln",
                 "mivo: --time-zone: unknown time zone \"Europe/Berln\": did you mean Europe/Berlin?", wrongUsage}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(ReportUsage, namesWhatIsAcceptedForCalendarsAndLocales) {
  const Workplace place;
  const Ran calendar = place.run("report --input a.json --calendar mayan");
  EXPECT_EQ(calendar.status, wrongUsage);
  EXPECT_EQ(calendar.errors.substr(0, 17), "mivo: --calendar:");
  EXPECT_NE(calendar.errors.find("\"mayan\""), std::string::npos) << calendar.errors;
  EXPECT_NE(calendar.errors.find("gregorian"), std::string::npos) << calendar.errors;
  const Ran locale = place.run("report --input a.json --locale tlh-XX");
  EXPECT_EQ(locale.status, wrongUsage);
  EXPECT_EQ(locale.errors.substr(0, 15), "mivo: --locale:");
  EXPECT_NE(locale.errors.find("\"tlh-XX\""), std::string::npos) << locale.errors;
  EXPECT_EQ(calendar.output + locale.output, "");
}

TEST(ReportUsage, refusesWhatItDoesNotKnow) {
  const Workplace place;
  for (const char* arguments : {"reprot", "report --colour", "report --range", "report --input a.json b.json"}) {
    const Ran ran = place.run(arguments);
    EXPECT_EQ(ran.status, wrongUsage) << arguments;
    EXPECT_EQ(ran.output, "") << arguments;
    EXPECT_EQ(ran.errors.substr(0, 6), "mivo: ") << arguments;
    EXPECT_EQ(ran.errors.find('\n'), ran.errors.size() - 1) << arguments << ": " << ran.errors;
  }
}

}  // namespace
}  // namespace mivo::cli
