// SPDX-License-Identifier: MIT
#include "host/import/ImportReader.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

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
        Row{"lengthThatMayPartThousands", "start,duration_seconds\n2026-03-01T20:00Z,\"57,600\"\n",
            "a.csv:2: duration_seconds: expected a length, as in 16:30 or 16h 30m, or a number and its unit in the "
            "header, found "
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

INSTANTIATE_TEST_SUITE_P(
    OtherBackups, ReadFile,
    testing::Values(
        Row{"fastsAndWeights",
            R"({"user": {"name": "Anna", "list": [{"StartDTM": "nested"}]},
"fast_data": [{"FastID": "A", "StartDTM": "2026-03-01T20:00:00Z", "EndDTM": "2026-03-02T12:00:00.000Z", "GoalHours": 18, "IsEnded": true},
{"FastID": "B", "StartDTM": "2026-03-02T20:00:00Z", "EndDTM": null, "GoalHours": 16, "Moods": [{"StartDTM": 3}, 4]},
{"StartDTM": "soon"}],
"sleep_data": [{"start": "2026-03-01T20:00:00Z", "quality": 3}, 5], "weight_data": [{"log_dtm": "2026-03-01T06:00:00Z", "weightKG": 81.4},
 {"log_dtm": "2026-03-01T06:00:00Z", "weightKG": 0}]})",
            "2026-03-01T20:00:00Z 2026-03-02T12:00:00Z 18h\n2026-03-02T20:00:00Z running 16h\n"
            "2026-03-01T06:00:00Z 81.4\n"
            "a.csv:4: fast_data[2].StartDTM: expected a date and time of the years 1 to 9999, as in "
            "2026-03-01T12:00:00Z, found \"soon\"\n1 row has no weight.\n"
            "Columns that were not used: FastID, IsEnded\n"},
        Row{"listOfWeights", R"([{"logId": 1, "weight": 181, "date": "02/13/26", "time": "07:42:13"},
{"time": "07:00:00", "date": "03/11/26", "weight": "81.4 kg"}])",
            "2026-02-13T06:42:13Z 82.10021897\n2026-03-11T06:00:00Z 81.4\nColumns that were not used: logId\n",
            berlin(WeightUnit::pounds)},
        Row{"openDate", R"([{"date": "02/03/26", "weight": "81.4 kg"}])",
            "a.csv:1: [0].date: expected a date that can be read in one way only, not as 2026-03-02 or 2026-02-03, "
            "found "
            "\"02/03/26\" (order of dates?)\n"},
        Row{"noneKnown", R"({"sleep_data": [{"quality": 3}]})",
            "a.csv: expected lists of fasts with a start and an end, or of weights with a date\n"},
        Row{"half", R"({"fast_data": [{"StartDTM": "2026-03-01T)",
            "a.csv:1: expected more JSON, found the end of the file\n"},
        Row{"malformed", "{\"fast_data\": [\n{\"StartDTM\" 3}]}",
            "a.csv:2: expected well-formed JSON: Missing a colon after a name of object member.\n"}),
    nameOf);

const std::string prologue = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE HealthData [
<!ELEMENT HealthData (ExportDate,Me,(Record|Correlation)*)>
<!ATTLIST HealthData locale CDATA #REQUIRED>
<!ATTLIST Record unit CDATA #IMPLIED <!-- "not valid -->
<!ENTITY many "many, many">
]>
<HealthData locale="en_US">
)";

std::string healthExport(const std::string& records) { return prologue + records + "</HealthData>\n"; }

std::string bodyMass(const std::string& value, const std::string& unit, const std::string& startDate) {
  return R"( <Record type="HKQuantityTypeIdentifierBodyMass" sourceName="Scale" unit=")" + unit +
         R"(" creationDate="2026-03-05" startDate=")" + startDate + R"(" value=")" + value + "\"/>\n";
}

const std::string
    masses = healthExport(
        R"( <Record type="HKQuantityTypeIdentifierStepCount" startDate="x" value="12"/>
)" + bodyMass("200", "lb", "2026-03-01 08:35:00 -0400") +
        R"( <Record value="81.4" startDate="20150603050200+0100" source="Old" type="HKQuantityTypeIdentifierBodyMass" unit="kg">
  <MetadataEntry key="HKWasUserEntered" value="1"/>
 </Record>
)" + bodyMass("81400", "g", "2026-03-02 07:00:00 +0100") +
        bodyMass("12.5", "st", "2026-03-03 07:00:00 +0100")),
    repeated = healthExport(
        bodyMass("81.4", "kg", "2026-03-02 07:00:31 +0100") + bodyMass("81.39", "kg", "2026-03-02 07:00:05 +0100") +
        bodyMass("81.38", "kg", "2026-03-02 07:00:45 +0100") + bodyMass("81.4", "kg", "2026-03-02 07:01:00 +0100")),
    wrong = healthExport(bodyMass("heavy", "kg", "2026-03-02 07:00:31 +0100") +
                         bodyMass("81", "oz", "2026-03-02 07:00:31 +0100") + bodyMass("81", "kg", "yesterday")),
    entities = healthExport(bodyMass("81", "kg", "2026-03-02 07:00:31 +0100") + "<Note>&many;</Note>\n"),
    broken = prologue + bodyMass("81.4", "kg", "2026-03-02 07:00:31 +0100") + " <Record type=",
    empty = healthExport(""), tangled = prologue + "<Record></HealthData>";

INSTANTIATE_TEST_SUITE_P(
    HealthExports, ReadFile,
    testing::Values(
        Row{"masses", masses,
            "2015-06-03T04:02:00Z 81.4\n2026-03-01T12:35:00Z 90.718474\n2026-03-02T06:00:00Z 81.4\n"
            "2026-03-03T06:00:00Z 79.37866475\n"},
        Row{"severalSources", repeated,
            "2026-03-02T06:00:05Z 81.39\n2026-03-02T06:01:00Z 81.4\n"
            "2 weighings were told by more than one source, and taken once.\n"},
        Row{"refusedMasses", wrong,
            "a.csv:9: value: expected kilograms above 0 and at most 1000, found \"heavy\"\n"
            "a.csv:10: unit: expected kg, g, lb or st, found \"oz\"\n"
            "a.csv:11: startDate: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"yesterday\"\n"},
        Row{"noMasses", empty, "It was read as a health export, and no record of it is a body mass.\n"},
        Row{"entities", entities, "a.csv:10: expected well-formed XML: undefined entity\n"},
        Row{"halfAnExport", broken, "a.csv:10: expected </HealthData>, found the end of the file\n"},
        Row{"tangled", tangled, "a.csv:9: expected well-formed XML: mismatched tag\n"}),
    nameOf);

constexpr std::string_view notRecognised =
    "a.csv: expected a backup or database of the app, a table or list of fasts with a start and an end, one of weights "
    "with a date and a weight, or a health export, found ";

const std::string letterMore = std::string{notRecognised} + "\"Dear all,\"\n",
                  emptyMore = std::string{notRecognised} + "an empty file\n",
                  zeroMore = std::string{notRecognised} + "\"\\x00\\x01\"\n",
                  xMore = std::string{notRecognised} + "\"date,fat\"\n",
                  otherXml = std::string{notRecognised} + "\"<ClinicalDocument>\"\n",
                  onlyPrologue = std::string{notRecognised} + "an empty file\n";

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
        Row{"otherXml", "<?xml version=\"1.0\"?>\n<!DOCTYPE x [<!ENTITY a 'b'>]>\n<ClinicalDocument>\n", otherXml},
        Row{"noRoot", "<?xml version=\"1.0\"?>\n<!-- nothing -->", onlyPrologue},
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
    for (const std::size_t piece : {1U, 2U, 3U, 1000U})
      EXPECT_EQ(imported(utf16(text, isLittleEndian), berlin(), piece), expected) << piece;
  EXPECT_EQ(imported(utf16(text.substr(0, text.size() - 2), true), berlin()),
            "a.csv: expected UTF-16 text, as its first two bytes announce\n");
}

TEST(ReadFile, takesAHealthExportLongerThanItsBounds) {
  const tests::CountingUUIDs ids;
  ImportReader reader{"a.xml", berlin(), ids};
  reader.feed(prologue);
  std::string steps;
  for (int step = 0; step < 1000; ++step)
    steps += R"( <Record type="HKQuantityTypeIdentifierStepCount" unit="count" value="12"/>)"
             "\n";
  for (int day = 0; day < 200; ++day)
    reader.feed(bodyMass(std::to_string(70 + day / 10.), "kg", "2026-03-02 07:00:31 +0100") + steps);
  reader.feed("</HealthData>");
  EXPECT_EQ(reader.finish().value().weights.size(), 200u);
}

TEST(ReadFile, boundsWhatAnElementMayHold) {
  const tests::CountingUUIDs ids;
  ImportReader longOne{"long", berlin(), ids}, deepOne{"deep", berlin(), ids};
  const std::string letters(std::size_t{1} << 16, 'x');
  longOne.feed(prologue + "<Record value=\"");
  int pieces = 0;
  for (; longOne.wantsMore() && pieces < 100; ++pieces) longOne.feed(letters);
  EXPECT_EQ(describe(longOne.finish().error().bad), "long:9: expected elements of at most 1 MiB");
  EXPECT_LT(pieces, 40);  // the parser may wait until its buffer has doubled
  std::string nested = prologue;
  for (int depth = 0; depth < 100; ++depth) nested += "<a>";
  deepOne.feed(nested);
  EXPECT_EQ(describe(deepOne.finish().error().bad), "deep:9: expected elements in at most 64 others");
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

TEST(ReadFile, givesRecordsIDsThatAscend) {
  struct DescendingUUIDs : tests::CountingUUIDs {
    UUID next() const override { return {0, 100 - ++last}; }
  };
  const DescendingUUIDs ids;
  ImportReader reader{"a.csv", berlin(), ids};
  reader.feed("date,weight_kg\n2026-03-03,81\n2026-03-01,82\n2026-03-02,83\n");
  const ImportedFile file = reader.finish().value();
  std::vector<UUID> given;
  for (const auto& sample : file.weights) given.push_back(sample.id);
  EXPECT_EQ(given, (std::vector<UUID>{{0, 97}, {0, 98}, {0, 99}}));
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
