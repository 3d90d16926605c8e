// SPDX-License-Identifier: MIT
#include "host/history/Snapshot.h"

#include <gtest/gtest.h>

#include <ostream>

#include "host/dates/DateText.h"
#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

tl::expected<History, BadRecord> read(std::string_view text) {
  const tests::CountingUUIDs ids;
  return readSnapshot(text, "a.json", ids);
}

std::string fault(std::string_view text) {
  const auto history = read(text);
  return history ? "nothing" : describe(history.error());
}

/// A snapshot with one fast, its first line.
std::string withFast(std::string_view fast) { return "{\"version\": 1, \"fasts\": [\n" + std::string{fast} + "\n]}"; }
std::string withWeight(std::string_view weight) {
  return "{\"version\": 1, \"weights\": [\n" + std::string{weight} + "\n]}";
}

TEST(Snapshot, readsEveryField) {
  const auto history = read(R"({"version": 1,
    "fasts": [{"id": "6BA7B810-9DAD-11D1-80B4-00C04FD430C8", "start": "2026-03-01T20:00:00+01:00",
               "end": "2026-03-02T12:00:00.25Z", "goalSeconds": 64800, "note": "schön \"satt\""},
              {"start": "2026-03-02T20:00:00Z", "end": null}],
    "weights": [{"id": "6ba7b811-9dad-11d1-80b4-00c04fd430c8", "date": "2026-03-02T07:00:00Z", "weightInKg": 81.4},
                {"date": "2026-03-01T07:00:00Z", "weightInKg": 82}]})");
  ASSERT_TRUE(history) << describe(history.error());
  const UUID first = *parseUUID("6BA7B810-9DAD-11D1-80B4-00C04FD430C8");
  const UUID second = *parseUUID("6BA7B811-9DAD-11D1-80B4-00C04FD430C8");
  const History expected{
      .fasts = {{finishedFast(first, dateSince1970(1772391600), dateSince1970(1772452800.25), 64800), "schön \"satt\""},
                {ongoingFast({0, 1}, dateSince1970(1772481600), 57600), ""}},
      .weights = {{{0, 2}, dateSince1970(1772348400), 82}, {second, dateSince1970(1772434800), 81.4}},
      .endsBeforeStart = {}};
  EXPECT_EQ(*history, expected);
  EXPECT_EQ(runningFast(history->fasts), &history->fasts[1]);
}

TEST(Snapshot, readsBackWhatWasWritten) {
  const History history{
      .fasts = {{finishedFast({1, 2}, dateSince1970(-0.1), dateSince1970(1772452800.3), 64800), "a \"b\"\n\x1B\x7Fü"},
                {finishedFast({3, 4}, dateSince1970(1772481600), dateSince1970(1772481600), 0), ""},
                {ongoingFast({5, 6}, firstDate, 9223372036854775807), ""}},
      .weights = {{{7, 8}, dateSince1970(1772348400), 81.45000000000002}, {{9, 10}, lastDate, 1000}},
      .endsBeforeStart = {}};
  const std::string text = writeSnapshot(history);
  EXPECT_EQ(read(text), history) << text;
  EXPECT_EQ(writeSnapshot({}), "{\n  \"version\": 1,\n  \"fasts\": [],\n  \"weights\": []\n}\n");
}

TEST(Snapshot, carriesSettings) {
  const std::vector<Setting> settings{
      {"weightUnit", std::string{"kg"}}, {"a \"b\"", true}, {"c", std::int64_t{-3}}, {"d", 0.25}};
  std::vector<Setting> again;
  const tests::CountingUUIDs ids;
  EXPECT_EQ(readSnapshot(writeSnapshot({}, settings), "a.json", ids, &again), History{});
  EXPECT_EQ(again, settings);
  EXPECT_EQ(fault(R"({"version": 1, "fasts": [], "settings": {"a": [1]}})"),
            "a.json:1: settings.a: expected a text of at most 1000 bytes, a number, true or false, found \"[\"");
  EXPECT_EQ(fault(R"({"version": 1, "fasts": [], "settings": {"a": null}})"),
            "a.json:1: settings.a: expected a text of at most 1000 bytes, a number, true or false, found \"null\"");
  EXPECT_EQ(fault(R"({"version": 1, "fasts": [], "settings": {"a": 1, "a": 2}})"),
            "a.json:1: settings: expected each key once in an object, found \"a\"");
  EXPECT_EQ(fault(R"({"version": 1, "fasts": [], "settings": [1]})"),
            "a.json:1: settings: expected an object, found \"[\"");
}

TEST(Snapshot, takesEmptyListsAndLeavesOneOut) {
  EXPECT_EQ(read(R"({"version": 1, "fasts": [], "weights": []})"), History{});
  EXPECT_EQ(read(R"({"weights": [], "version": 1})"), History{});
}

TEST(Snapshot, keepsFastsThatEndBeforeTheyStart) {
  const auto history = read(withFast(R"({"start": "2026-03-02T00:00:00Z",
    "end": "2026-03-01T00:00:00Z"}, {"start": "2026-03-02T00:00:00Z", "end": "2026-03-02T00:00:00Z"})"));
  ASSERT_TRUE(history);
  EXPECT_EQ(history->fasts.size(), 2u);
  ASSERT_TRUE(history->endsBeforeStart);
  EXPECT_EQ(describe(*history->endsBeforeStart),
            "a.json:3: fasts[0].end: expected an end after the start, found \"2026-03-01T00:00:00Z\"; kept");
}

struct Row {
  const char* name;
  std::string text;
  std::string_view expected;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
class SnapshotFault : public testing::TestWithParam<Row> {};

TEST_P(SnapshotFault, namesFileLineAndField) { EXPECT_EQ(fault(GetParam().text), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Fields, SnapshotFault,
    testing::Values(
        Row{"dateWithoutOffset", withFast(R"({"start": "2026-03-01T12:00:00", "end": null})"),
            "a.json:2: fasts[0].start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
            "found "
            "\"2026-03-01T12:00:00\""},
        Row{"dateAsNumber", withFast(R"({"start": 1772366400, "end": null})"),
            "a.json:2: fasts[0].start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
            "found "
            "\"1772366400\""},
        Row{"yearTenThousand", withFast(R"({"start": "10000-01-01T00:00:00Z", "end": null})"),
            "a.json:2: fasts[0].start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
            "found "
            "\"10000-01-01T00:00:00Z\""},
        Row{"startIsNull", withFast(R"({"start": null, "end": null})"),
            "a.json:2: fasts[0].start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
            "found "
            "\"null\""},
        Row{"noEnd", withFast(R"({"start": "2026-03-01T12:00:00Z",
            "note": ""})"),
            "a.json:2: fasts[0].end: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
            "found no "
            "such key"},
        Row{"secondRunning", withFast(R"({"start": "2026-03-01T12:00:00Z", "end": null},
            {"start": "2026-03-01T12:00:00Z", "end": null})"),
            "a.json:3: fasts[1].end: expected an end, since line 2 has a fast that is still running, found \"null\""},
        Row{"hugeGoal", withFast(R"({"goalSeconds": 1e308})"),
            "a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"1e308\""},
        Row{"goalBeyondDouble", withFast(R"({"goalSeconds": 1e400})"),
            "a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"1e400\""},
        Row{"goalBeyond64Bits", withFast(R"({"goalSeconds": 9223372036854775808})"),
            "a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"9223372036854775808\""},
        Row{"fractionalGoal", withFast(R"({"goalSeconds": 57600.5})"),
            "a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"57600.5\""},
        Row{"negativeGoalAtALinesEnd", withFast("{\"goalSeconds\": -1\n}"),
            "a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"-1\""},
        Row{"noUUID", withFast(R"({"id": "7"})"), "a.json:2: fasts[0].id: expected a UUID in quotes, found \"7\""},
        Row{"noteIsTrue", withFast(R"({"note": true})"),
            "a.json:2: fasts[0].note: expected UTF-8 text of at most 65536 bytes, found \"true\""},
        Row{"endlessNote", withFast("{\"note\": \"" + std::string(65'537, 'x') + "\"}"),
            "a.json:2: fasts[0].note: expected UTF-8 text of at most 65536 bytes, found "
            "\"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...\""},
        Row{"noWeight", withWeight(R"({"date": "2026-03-01T12:00:00Z", "weightInKg": 0})"),
            "a.json:2: weights[0].weightInKg: expected kilograms above 0 and at most 1000, found \"0\""},
        Row{"negativeWeight", withWeight(R"({"weightInKg": -81.4})"),
            "a.json:2: weights[0].weightInKg: expected kilograms above 0 and at most 1000, found \"-81.4\""},
        Row{"weightIsNaN", withWeight(R"({"weightInKg": NaN})"),
            "a.json:2: weights[0].weightInKg: expected kilograms above 0 and at most 1000, found \"NaN\""},
        Row{"weightIsText", withWeight(R"({"weightInKg": "81.4"})"),
            "a.json:2: weights[0].weightInKg: expected kilograms above 0 and at most 1000, found \"81.4\""},
        Row{"weightMissing", withWeight("{\"date\": \"2026-03-01T12:00:00Z\"}"),
            "a.json:2: weights[0].weightInKg: expected kilograms above 0 and at most 1000, found no such key"}),
    [](const auto& row) { return std::string{row.param.name}; });

INSTANTIATE_TEST_SUITE_P(
    Shape, SnapshotFault,
    testing::Values(
        Row{"empty", "", "a.json:1: snapshot: expected an object, found the end of the file"},
        Row{"list", "[]", "a.json:1: snapshot: expected an object, found \"[\""},
        Row{"noVersion", R"({"fasts": []})", "a.json:1: version: expected 1, found no such key"},
        Row{"newerVersion", R"({"version": 2})", "a.json:1: version: expected 1, found \"2\""},
        Row{"noList", R"({"version": 1})", "a.json:1: fasts: expected a list, found no such key"},
        Row{"fastsIsNoList", "{\"version\": 1,\n\"fasts\": {}}", "a.json:2: fasts: expected a list, found \"{\""},
        Row{"fastIsNoObject", withFast("7"), "a.json:2: fasts[0]: expected an object, found \"7\""},
        Row{"misspeltKey", withFast(R"({"goalSecond": 7})"),
            "a.json:2: fasts[0]: expected the keys \"id\", \"start\", \"end\", \"goalSeconds\", \"note\", found "
            "\"goalSecond\""},
        Row{"keyTwice", withFast(R"({"note": "a", "note": "b"})"),
            "a.json:2: fasts[0]: expected each key once in an object, found \"note\""},
        Row{"listTwice", "{\"fasts\": [],\n\"fasts\": []}",
            "a.json:2: snapshot: expected each key once in an object, found \"fasts\""},
        Row{"nestedLists", withFast(std::string(10'000, '[')), "a.json:2: fasts[0]: expected an object, found \"[\""},
        Row{"nestedObjects",
            [] {
              std::string text = "{\"version\":";
              for (int level = 0; level < 10'000; ++level) text += "{\"version\":";
              return text;
            }(),
            "a.json:1: version: expected 1, found \"{\""},
        Row{"cutInAText", "{\"version\": 1,\n\"fasts\": [{\"start\": \"2026-03",
            "a.json:2: fasts[0].start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
            "found "
            "the end of the file"},
        Row{"onlyALineEnd", "\n", "a.json:1: snapshot: expected an object, found the end of the file"},
        Row{"cutInAWord", "{\"version\": 1,\n\"fasts\": nul",
            "a.json:2: fasts: expected a list, found the end of the file"},
        Row{"cutInANumber", "{\"version\": 1.", "a.json:1: version: expected 1, found the end of the file"},
        Row{"cutBetweenRecords", "{\"version\": 1,\n\"fasts\": [",
            "a.json:2: fasts[0]: expected an object, found the end of the file"},
        Row{"commaTooMany", "{\"version\": 1,\n\"fasts\": [],}",
            "a.json:2: snapshot: expected a key in quotes, found \"}\""},
        Row{"commaMissing", "{\"version\": 1\n\"fasts\": []}",
            "a.json:2: snapshot: expected a comma or '}', found \"\"fasts\"\""},
        Row{"nulAfterTheEnd", std::string{"{\"version\": 1, \"fasts\": []}\0", 28},
            "a.json:1: snapshot: expected UTF-8 text, found \"\\x00\""},
        Row{"cutNumber", withFast("{\"goalSeconds\": 1.}"),
            "a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"1.\""},
        Row{"cutNumberAtALinesEnd", withFast("{\"goalSeconds\": 1.\n}"),
            "a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"1.\""},
        Row{"refusedNumberAtALinesEnd", withFast("{\"goalSeconds\": -1\n}"),
            "a.json:2: fasts[0].goalSeconds: expected whole seconds, 0 or more, found \"-1\""},
        Row{"textAfterTheEnd", "{\"version\": 1, \"fasts\": []}\n7",
            "a.json:2: snapshot: expected the end of the file, found \"7\""},
        Row{"latin1", withFast("{\"note\": \"gef\xFChlt\"}"),
            "a.json:2: fasts[0].note: expected a text as JSON has it: ill-formed UTF-8 byte"},
        Row{"lineBreakInText", withFast("{\"note\": \"a\nb\"}"),
            "a.json:2: fasts[0].note: expected a text as JSON has it: line breaks and other control characters must be "
            "escaped"},
        Row{"unknownEscape", withFast(R"({"note": "\q"})"),
            "a.json:2: fasts[0].note: expected a text as JSON has it: a backslash that escapes nothing"},
        Row{"halfASurrogatePair", withFast(R"({"note": "\uD83D!"})"),
            "a.json:2: fasts[0].note: expected a text as JSON has it: one half of a surrogate pair"},
        Row{"recordOnItsOwnLine", withFast("\n{\n\"note\": \"\"}"),
            "a.json:3: fasts[0].start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, "
            "found no such key"},
        Row{"commaBetweenFastsMissing", withFast("{\"start\": \"2026-03-01T12:00:00Z\", \"end\": null}\n{}"),
            "a.json:3: fasts[1]: expected a comma or ']', found \"{\""},
        Row{"utf16WithoutMark", std::string{"{\0\"\0v\0", 6},
            "a.json:1: snapshot: expected UTF-8 text, found \"\\x00\"\\x00v\\x00\""}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::host
