// SPDX-License-Identifier: MIT
#include "host/import/ImportReader.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "Imported.h"

namespace mivo::host {
namespace {

using tests::berlin, tests::imported;

struct Row {
  const char* name;
  std::string_view content, expected;
  ImportSettings settings = berlin();
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
class ReadFile : public testing::TestWithParam<Row> {};

TEST_P(ReadFile, givesRecordsAndWhatWasRefused) {
  const auto& [name, content, expected, settings] = GetParam();
  EXPECT_EQ(imported(content, settings), expected);
  EXPECT_EQ(imported(content, settings, 1), expected) << "byte by byte";
}

constexpr auto nameOf = [](const auto& row) { return std::string{row.param.name}; };

INSTANTIATE_TEST_SUITE_P(
    Fasts, ReadFile,
    testing::Values(
        Row{"own",
            "start,end,goal_hours,note\n2026-03-01T20:00:00Z,2026-03-02T12:00:00Z,18,\"tea, no milk\"\n"
            "2026-03-02T20:00:00Z,,16,\n",
            "2026-03-01T20:00:00Z 2026-03-02T12:00:00Z 18h tea, no milk\n2026-03-02T20:00:00Z running 16h\n"},
        Row{"otherNamesAndOrder", "Target;FAST END;fast_start;Mood\r\n16,5;2026-03-02 12:00;2026-03-01 20:00;good\r\n",
            "2026-03-01T19:00:00Z 2026-03-02T11:00:00Z 16.5h\nColumns that were not used: Mood\n"},
        Row{"halves", "Start Date\tStart Time\tEnd Date\tEnd Time\n03/01/2026\t8:00 PM\t03/14/2026\t12:00 pm\n",
            "2026-03-01T19:00:00Z 2026-03-14T11:00:00Z 16h\n"},
        Row{"halvesAloneAreWhole", "Start Time,End Date\n2026-03-01 20:00,2026-03-02 12:00\n",
            "2026-03-01T19:00:00Z 2026-03-02T11:00:00Z 16h\n"},
        Row{"dayAndTimes",
            "Date,Start,End,Hours,Night "
            "Eating\n6/26/21,01:57,18:03,16.1,no\n6/26/21,20:00,12:00,16,\n6/27/21,20:00,,,\n",
            "2021-06-25T23:57:00Z 2021-06-26T16:03:00Z 16h\n2021-06-26T18:00:00Z 2021-06-27T10:00:00Z 16h\n"
            "2021-06-27T18:00:00Z running 16h\nColumns that were not used: Night Eating\n"},
        Row{"endTimeOfTheNextDay", "start,end\n2026-03-01 20:00,12:00\n2026-03-03 08:00,08:00\n",
            "2026-03-01T19:00:00Z 2026-03-02T11:00:00Z 16h\n2026-03-03T07:00:00Z 2026-03-04T07:00:00Z 16h\n"},
        Row{"lengths",
            "start,duration\n2026-03-01 20:00,16:30\n2026-03-02 20:00,16:30:15\n2026-03-03 20:00,16h 30m\n"
            "2026-03-04 20:00,45 minutes\n",
            "2026-03-01T19:00:00Z 2026-03-02T11:30:00Z 16h\n2026-03-02T19:00:00Z 2026-03-03T11:30:15Z 16h\n"
            "2026-03-03T19:00:00Z 2026-03-04T11:30:00Z 16h\n2026-03-04T19:00:00Z 2026-03-04T19:45:00Z 16h\n"},
        Row{"lengthInHours", "start,Duration (h)\n2026-03-01T20:00Z,\"16,7\"\n",
            "2026-03-01T20:00:00Z 2026-03-02T12:42:00Z 16h\n"},
        Row{"lengthInSeconds", "start,duration_seconds,goal\n2026-03-01T20:00Z,57600,16:8\n",
            "2026-03-01T20:00:00Z 2026-03-02T12:00:00Z 16h\n"},
        Row{"anEndBeatsALength", "start,hours,end\n2026-03-01T20:00Z,3,2026-03-02T12:00Z\n2026-03-03T20:00Z,3,NA\n",
            "2026-03-01T20:00:00Z 2026-03-02T12:00:00Z 16h\n2026-03-03T20:00:00Z 2026-03-03T23:00:00Z 16h\n"},
        Row{"clockChanges", "start,end\n2026-03-29 02:30,2026-03-29 12:00\n2026-10-25 02:30,2026-10-25 12:00\n",
            "2026-03-29T01:00:00Z 2026-03-29T10:00:00Z 16h\n2026-10-25T00:30:00Z 2026-10-25T11:00:00Z 16h\n"
            "1 time that the clocks skipped was moved to the first one after it.\n"
            "1 time that the clocks showed twice was taken as the first of the two.\n"},
        Row{"linesAroundTheTable",
            "Fasts of Anna\n\n\"as of\",2026\nstart,end\n2026-03-01T20:00Z,2026-03-02T12:00Z,,\nTotal: 1\n",
            "2026-03-01T20:00:00Z 2026-03-02T12:00:00Z 16h\n"
            "4 lines above or below the table were passed over.\n"},
        Row{"refusedRows",
            "start,end,goal,note\nnoon,2026-03-02T12:00Z,16,\n2026-03-01T20:00Z,soon,16,\n"
            "2026-03-01T20:00Z,2026-03-01T12:00Z,16,\n2026-03-01T20:00Z,2026-03-02T12:00Z,much,\n"
            "2026-03-01T20:00Z,2026-03-02T12:00Z,16,\xFF\n2026-03-01,2026-03-02T12:00Z,16,\nlast\n"
            "2026-03-01T20:00Z,2026-03-02T12:00Z\n",
            "2026-03-01T20:00:00Z 2026-03-02T12:00:00Z 16h\n"
            "a.csv:2: start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"noon\"\n"
            "a.csv:3: end: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"soon\"\n"
            "a.csv:4: end: expected an end after the start, found \"2026-03-01T12:00Z\"\n"
            "a.csv:5: goal: expected a goal in hours, as in 16 or 16:30, found \"much\"\n"
            "a.csv:6: note: expected UTF-8 text of at most 65536 bytes, found \"\\xFF\"\n"
            "a.csv:7: start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"2026-03-01\"\n"
            "a.csv:8: start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"last\"\n"},
        Row{"lengthsThatMayBeAnything", "start,duration\n2026-03-01T20:00Z,16\n2026-03-01T20:00Z,\"57,600\"\n",
            "a.csv:2: duration: expected a length, as in 16:30 or 16h 30m, or a number and its unit in the header, "
            "found "
            "\"16\"\n"
            "a.csv:3: duration: expected a length, as in 16:30 or 16h 30m, or a number and its unit in the header, "
            "found "
            "\"57,600\"\n"},
        Row{"splitLength", "start,hours\n2026-03-01T20:00Z,16,5\n",
            "a.csv:2: hours: expected a length, as in 16:30 or 16h 30m, or a number and its unit in the header, found "
            "\"16\"\n"},
        Row{"none", "start,end\n", "It was read as a table of fasts, and no row below its header has one.\n"}),
    nameOf);

constexpr auto morning = "2026-03-01T06:00:00Z 81.4\n";

INSTANTIATE_TEST_SUITE_P(
    Weights, ReadFile,
    testing::Values(
        Row{"ownWeights", "date,weight_kg\n2026-03-01T06:00:00Z,81.4\n", morning},
        Row{"weightBeatsStartAndEnd", "start,end,Weight (kg)\n2026-03-01 07:00,2026-03-01 08:00,81.4\n",
            "2026-03-01T06:00:00Z 81.4\nColumns that were not used: end\n"},
        Row{"valueOfFasts", "start,end,value\n2026-03-01T20:00Z,2026-03-02T12:00Z,3\n",
            "2026-03-01T20:00:00Z 2026-03-02T12:00:00Z 16h\nColumns that were not used: value\n"},
        Row{"eitherUnit", "Date,Weight (kg),Weight(lbs)\n2026-03-01T06:00Z,,7\n2026-03-01T07:00Z,81.4,--\n",
            "2026-03-01T06:00:00Z 3.17514659\n2026-03-01T07:00:00Z 81.4\n"},
        Row{"unitOfTheRow", "date,value,unit\n2026-03-01T06:00Z,7,LB\n2026-03-01T07:00Z,81.4,kg\n",
            "2026-03-01T06:00:00Z 3.17514659\n2026-03-01T07:00:00Z 81.4\n"},
        Row{"unitOfTheCell", "date,weight\n2026-03-01T06:00Z,7 lbs\n", "2026-03-01T06:00:00Z 3.17514659\n"},
        Row{"stonesInWords", "date,Weight (in st)\n2026-03-01T06:00Z,0 7\n", "2026-03-01T06:00:00Z 3.17514659\n"},
        Row{"unitAsTold", "date,weight\n2026-03-01T06:00Z,7\n", "2026-03-01T06:00:00Z 3.17514659\n",
            berlin(WeightUnit::pounds)},
        Row{"unitAsked", "date,weight\n2026-03-01T06:00Z,0\n2026-03-01T06:00Z,181\n",
            "a.csv:3: weight: expected a unit in the header or the cell: kg, lb or st, found \"181\" (unit?)\n"},
        Row{"notWeighed", "date,kg\n2026-03-01,\n2026-03-02,NA\n2026-03-03,0.0\n2026-03-01T06:00Z,\"81,4\"\n",
            "2026-03-01T06:00:00Z 81.4\n3 rows have no weight.\n"},
        Row{"dateAndTime", "DATE,TIME,WEIGHT KG,FAT\n2026-03-01,07:00:00,81.4,20\n2026-03-02,,82,\n",
            "2026-03-01T06:00:00Z 81.4\n2026-03-01T23:00:00Z 82\nColumns that were not used: FAT\n"},
        Row{"timesBelowTheirDay",
            "Time,Weight,Body Fat\n\"Mar 1, 2026\"\n7:00 AM,81.4kg,20%\n\"Mar 2, 2026\",,\n7:30 PM,82.0kg,--\n",
            "2026-03-01T06:00:00Z 81.4\n2026-03-02T18:30:00Z 82\nColumns that were not used: Body Fat\n"},
        Row{"scaleOfTheApp",
            "\"biceps\",\"bone\",\"comment\",\"dateTime\",\"fat\",\"weight\"\n0.0,3,\"\",2026-03-01 "
            "07:00,20,81.4\nbye\n",
            "2026-03-01T06:00:00Z 81.4\n1 line above or below the table was passed over.\n"
            "Columns that were not used: biceps, bone, fat, comment\n"},
        Row{"bodyMeasures", "date,weightkg,fatkg,boneskg,comment\n2026-03-01T06:00:00Z,81.4,20,3,\n",
            "2026-03-01T06:00:00Z 81.4\nColumns that were not used: fatkg, boneskg, comment\n"},
        Row{"unixSeconds", "ts,weightkg\n1772344800,81.4\n1772344800000,81.4\n45986,81.4\n",
            "2026-03-01T06:00:00Z 81.4\n2026-03-01T06:00:00Z 81.4\n"
            "a.csv:4: ts: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"45986\"\n"},
        Row{"phoneInUtc",
            "com.maker.health.weight,6319004,4\ncom.maker.health.weight.start_time,com.maker.health.weight.time_offset,"
            "com.maker.health.weight.weight\n2026-03-01 06:00:00.000,UTC+0100,81.4,\n",
            "2026-03-01T06:00:00Z 81.4\n1 line above or below the table was passed over.\n",
            berlin(WeightUnit::kilograms)},
        Row{"otherLanguage", "Datum;Uhrzeit;Gewicht (kg)\n01.03.2026;07:00;81,4\n", "2026-03-01T06:00:00Z 81.4\n"},
        Row{"splitNumber", "date,weight_kg\n2026-03-01,81,4\n2026-03-01T06:00Z,81.4,\n",
            "2026-03-01T06:00:00Z 81.4\n"
            "a.csv:2: weight_kg: expected a decimal point, or quotes around a number with a comma, found \"81\"\n"},
        Row{"refusedWeights",
            "date,time,weight_kg\n2026-03-01,07:00,heavy\n2026-03-01,noon,81\n,07:00,81\n2026-03-01,07:00,1001\n",
            "a.csv:2: weight_kg: expected kilograms above 0 and at most 1000, found \"heavy\"\n"
            "a.csv:3: time: expected a time of day, as in 20:30 or 8:30 PM, found \"noon\"\n"
            "a.csv:4: date: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found \"\"\n"
            "a.csv:5: weight_kg: expected kilograms above 0 and at most 1000, found \"1001\"\n"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Logs, ReadFile,
    testing::Values(
        Row{"blanks", "# weights\n2026-03-01T07:00:00.000 81.4\n2026-03-02 82 kg\n2026-03-02 07:00 82.5 # late\n",
            "2026-03-01T06:00:00Z 81.4\n2026-03-01T23:00:00Z 82\n2026-03-02T06:00:00Z 82.5\n",
            berlin(WeightUnit::kilograms)},
        Row{"tabs", "2026-03-01\t179 lb\tgood\n", "2026-02-28T23:00:00Z 81.19303423000001\n"},
        Row{"headerInAComment", "#Version: 6\n#Units: kg\n#date;weight;bodyfat\n2026-03-01 07:00;81.4;20\n#end\n",
            "2026-03-01T06:00:00Z 81.4\n2 lines above or below the table were passed over.\n"
            "Columns that were not used: bodyfat\n"},
        Row{"unitInAComment", "#Units: lb\n2026-03-01T06:00Z,7\n", "2026-03-01T06:00:00Z 3.17514659\n"},
        Row{"scaleWithoutHeader", "01.03.2026 07:00;81.4;20.5;0.0;\n", morning},
        Row{"splitNumberInALog", "2026-03-01T06:00Z,81,4\n",
            "a.csv:1: weight: expected a decimal point, or quotes around a number with a comma, found \"81\"\n",
            berlin(WeightUnit::kilograms)},
        Row{"unitOfALogAsked", "2026-03-01 81.4\n",
            "a.csv:1: weight: expected a unit in the header or the cell: kg, lb or st, found \"81.4\" (unit?)\n"},
        Row{"brokenLine", "2026-03-01T06:00Z 81.4kg\nyesterday 82kg\n2026-03-01T06:00Z 81.4kg\n",
            "2026-03-01T06:00:00Z 81.4\n2026-03-01T06:00:00Z 81.4\n"
            "a.csv:2: expected a date and a weight, found \"yesterday 82kg\"\n"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    OrderOfDates, ReadFile,
    testing::Values(
        Row{"shownByALaterRow", "date,kg\n2/3/2026,81\n13/3/2026,82\n",
            "2026-03-01T23:00:00Z 81\n2026-03-12T23:00:00Z 82\n"},
        Row{"monthFirst", "date,kg\n3/2/2026,81\n3/13/2026,82\n", "2026-03-01T23:00:00Z 81\n2026-03-12T23:00:00Z 82\n"},
        Row{"neverShown", "date,kg\n3/3/2026,81\n2/3/2026,82\n",
            "a.csv:3: date: expected a date that can be read in one way only, not as 2026-03-02 or 2026-02-03, found "
            "\"2/3/2026\" (order of dates?)\n"},
        Row{"shownBothWays", "date,kg\n13/3/2026,81\n2/3/2026,82\n3/14/2026,82\n",
            "a.csv:4: date: expected one order of day and month in the whole file, as in line 2, found \"3/14/2026\" "
            "(order of dates?)\n"},
        Row{"told", "date,kg\n2/3/2026,81\n", "2026-02-02T23:00:00Z 81\n", berlin({}, DateOrder::monthFirst)},
        Row{"toldAgainstARow", "date,kg\n2/3/2026,81\n13/3/2026,82\n",
            "2026-02-02T23:00:00Z 81\n"
            "a.csv:3: date: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"13/3/2026\"\n",
            berlin({}, DateOrder::monthFirst)}),
    nameOf);

constexpr std::string_view notRecognised =
    "a.csv: expected a backup of the app, a table of fasts with a start and an end, or a table or log of weights with "
    "a "
    "date and a weight, found ";

const std::string letterMore = std::string{notRecognised} + "\"Dear all,\"\n",
                  emptyMore = std::string{notRecognised} + "an empty file\n",
                  zeroMore = std::string{notRecognised} + "\"\\x00\\x01\"\n",
                  xMore = std::string{notRecognised} + "\"date,fat\"\n";

INSTANTIATE_TEST_SUITE_P(
    Texts, ReadFile,
    testing::Values(
        Row{"mark",
            "\xEF\xBB\xBF"
            "date,weight_kg\r2026-03-01T06:00:00Z,81.4\r",
            morning},
        Row{"halfOfUtf16", std::string_view{"\xFE\xFF\0d\0a\0", 7},
            "a.csv: expected UTF-16 text, as its first two bytes announce\n"},
        Row{"empty", "", emptyMore}, Row{"blank", "\n \n", emptyMore},
        Row{"letter", "Dear all,\n\nhow are you?\n", letterMore}, Row{"bytes", std::string_view{"\0\1", 2}, zeroMore},
        Row{"noWeight", "date,fat\n2026-03-01,20\n", xMore},
        Row{"openQuote", "date,kg\n\"2026-03-01,81\n",
            "a.csv:2: expected a quote that closes the one opened here, found the end of the file\n"},
        Row{"snapshot",
            R"({"version": 1, "fasts": [{"start": "2026-03-01T20:00:00Z", "end": null}],
"weights": [{"date": "2026-03-01T06:00:00Z", "weightInKg": 81.4}]})",
            "2026-03-01T20:00:00Z running 16h\n2026-03-01T06:00:00Z 81.4\n"},
        Row{"halfASnapshot", R"({"version": 1, "fasts": [{"start": "2026-0)",
            "a.csv:1: fasts[0].start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
            "found "
            "the end of the file\n"},
        Row{"emptySnapshot", R"({"version": 1, "fasts": []})",
            "It is a backup of the app, and both its lists are empty.\n"}),
    nameOf);

std::string utf16(std::u16string_view text, bool isLittleEndian) {
  std::string bytes;
  for (const char16_t unit : text) {
    const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
    bytes += isLittleEndian ? low : high;
    bytes += isLittleEndian ? high : low;
  }
  return bytes;
}

TEST(ReadFile, readsUtf16ThatAMarkAnnounces) {
  const std::u16string_view text = u"\uFEFFstart,end,note\n2026-03-01T20:00Z,,Tee \u00FC\U0001F375\n";
  const std::string expected = "2026-03-01T20:00:00Z running 16h Tee \u00FC\U0001F375\n";
  for (const bool isLittleEndian : {false, true})
    for (const std::size_t piece : {1, 2, 3, 1000})
      EXPECT_EQ(imported(utf16(text, isLittleEndian), berlin(), piece), expected) << piece;
  EXPECT_EQ(imported(utf16(text.substr(0, text.size() - 2), true), berlin()),
            "a.csv: expected UTF-16 text, as its first two bytes announce\n");
}

TEST(ReadFile, countsWhatItDoesNotKeepOfTheRefused) {
  std::string table = "date,weight_kg\n";
  for (int row = 0; row < 250; ++row) table += "never,81\n";
  const tests::CountingUUIDs ids;
  ImportReader reader{"a.csv", berlin(), ids};
  reader.feed(table);
  const auto file = reader.finish().value();
  EXPECT_EQ(file.refused.count(), 250);
  EXPECT_EQ(file.refused.first().size(), RefusedRecords::mostKept);
}

TEST(ReadFile, stopsAtWhatNeverEnds) {
  const tests::CountingUUIDs ids;
  ImportReader noise{"noise", berlin(), ids}, line{"line", berlin(), ids};
  const std::string zeros(std::size_t{1} << 16, '\0'), letters(std::size_t{1} << 16, 'x');
  int pieces = 0;
  for (; noise.wantsMore() && pieces < 100; ++pieces) noise.feed(zeros);
  EXPECT_EQ(pieces, 1);
  line.feed("date,kg\n");
  for (pieces = 0; line.wantsMore() && pieces < 100; ++pieces) line.feed(letters);
  EXPECT_EQ(pieces, 17);
  EXPECT_EQ(describe(line.finish().error().bad), "line:2: expected a record of at most 1 MiB");
}

}  // namespace
}  // namespace mivo::host
