// SPDX-License-Identifier: MIT
#include "host/history/FastsCsv.h"

#include <gtest/gtest.h>

#include <ostream>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/dates/DateText.h"
#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

tl::expected<FastTable, BadRecord> read(std::string_view text) {
  const tests::CountingUUIDs ids;
  return readFastsCsv(text, "fasts.csv", *adapters::loadTimeZone("Europe/Berlin").value(), ids);
}

/// "start/end/goal/note; ...", or the fault.
std::string outcome(std::string_view text) {
  const auto table = read(text);
  if (!table) return describe(table.error());
  std::string result;
  for (const auto& [fast, note] : table->fasts) {
    if (!result.empty()) result += "; ";
    result += rfc3339(fast.start) + '/' + (fast.finished ? rfc3339(fast.finished->end) : "runs") + '/' +
              std::to_string(fast.goalSeconds) + '/' + note;
  }
  return result;
}

struct Row {
  const char* name;
  std::string_view text, expected;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
class FastsCsv : public testing::TestWithParam<Row> {};

TEST_P(FastsCsv, givesFastsOrTheFirstFault) { EXPECT_EQ(outcome(GetParam().text), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Accepted, FastsCsv,
    testing::Values(
        Row{"ownForm", "start,end,goal_hours,note\n2026-03-01T20:00:00Z,2026-03-02T12:00:00Z,16.5,\"well, slept\"\n",
            "2026-03-01T20:00:00Z/2026-03-02T12:00:00Z/59400/well, slept"},
        Row{"localDates", "start,end\n2026-03-01 20:00,2026-03-02 12:00\n",
            "2026-03-01T19:00:00Z/2026-03-02T11:00:00Z/57600/"},
        Row{"otherOrderAndNames", "Target;Fast End;extra;FAST_START\n18;2026-03-02T12:00Z;x;2026-03-01T20:00Z\n",
            "2026-03-01T20:00:00Z/2026-03-02T12:00:00Z/64800/"},
        Row{"decimalCommaWhereNoSeparator", "start;end;goal hours\n2026-03-01T20:00Z;2026-03-02T12:00Z;16,5\n",
            "2026-03-01T20:00:00Z/2026-03-02T12:00:00Z/59400/"},
        Row{"running", "start,end,goal\n2026-03-01T20:00Z,,\n", "2026-03-01T20:00:00Z/runs/57600/"},
        Row{"noGoal", "start,end,goal\n2026-03-01T20:00Z,,0\n", "2026-03-01T20:00:00Z/runs/0/"},
        Row{"emptyTooMany", "start,end\n2026-03-01T20:00Z,2026-03-02T12:00Z,,\n",
            "2026-03-01T20:00:00Z/2026-03-02T12:00:00Z/57600/"},
        Row{"headerAlone", "start,end\n", ""},
        Row{"keepsTheOrder", "start,end\n2026-03-03T20:00Z,2026-03-04T12:00Z\n2026-03-01T20:00Z,2026-03-02T12:00Z\n",
            "2026-03-03T20:00:00Z/2026-03-04T12:00:00Z/57600/; 2026-03-01T20:00:00Z/2026-03-02T12:00:00Z/57600/"}),
    [](const auto& row) { return std::string{row.param.name}; });

INSTANTIATE_TEST_SUITE_P(
    Refused, FastsCsv,
    testing::Values(
        Row{"empty", "", "fasts.csv: expected a header with the columns \"start\" and \"end\", found an empty file"},
        Row{"noHeader", "2026-03-01T20:00Z,2026-03-02T12:00Z\n",
            "fasts.csv:1: header: expected the columns \"start\" and \"end\", found "
            "\"2026-03-01T20:00Z,2026-03-02T12:00Z\""},
        Row{"noEndColumn", "start,goal\n",
            "fasts.csv:1: header: expected the columns \"start\" and \"end\", found \"start,goal\""},
        Row{"twoStarts", "start,end,From\n", "fasts.csv:1: start: expected one such column, found \"From\""},
        Row{"badStart", "start,end\n2026-03-01T20:00Z,2026-03-02T12:00Z\ntoday,\n",
            "fasts.csv:3: start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"today\""},
        Row{"emptyStart", "start,end\n,2026-03-02T12:00Z\n",
            "fasts.csv:2: start: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"\""},
        Row{"dayWithoutTime", "start,End Time\n2026-03-01T20:00Z,2026-03-02\n",
            "fasts.csv:2: End Time: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"2026-03-02\""},
        Row{"hugeGoal", "start,end,goal\n2026-03-01T20:00Z,,1e308\n",
            "fasts.csv:2: goal: expected hours, 0 or more, found \"1e308\""},
        Row{"negativeGoal", "start,end,goal\n2026-03-01T20:00Z,,-1\n",
            "fasts.csv:2: goal: expected hours, 0 or more, found \"-1\""},
        Row{"goalIsNoNumber", "start,end,goal\n2026-03-01T20:00Z,,nan\n",
            "fasts.csv:2: goal: expected hours, 0 or more, found \"nan\""},
        Row{"secondRunning", "start,end\n2026-03-01T20:00Z,\n2026-03-02T20:00Z,\n",
            "fasts.csv:3: end: expected an end, since line 2 has a fast that is still running, found \"\""},
        Row{"cutRow", "start,end,note\n2026-03-01T20:00Z,2026-03-02T12:00Z,\n2026-03-02T20:00Z\n",
            "fasts.csv:3: expected 3 fields as in the header, found 1"},
        Row{"tooManyFields", "start,end,note\n2026-03-01T20:00Z,,well,slept\n",
            "fasts.csv:2: expected 3 fields as in the header, found 4"},
        Row{"latin1Note", "start,end,note\n2026-03-01T20:00Z,,gef\xFChlt\n",
            "fasts.csv:2: note: expected UTF-8 text of at most 65536 bytes, found \"gef\\xFChlt\""}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(FastsCsv, keepsFastsThatEndBeforeTheyStartAndCountsThem) {
  const auto table = read(
      "start,end\n2026-03-02T12:00Z,2026-03-01T20:00Z\n2026-03-03T20:00Z,2026-03-04T12:00Z\n"
      "2026-03-06T12:00Z,2026-03-05T12:00Z\n");
  ASSERT_TRUE(table);
  EXPECT_EQ(table->fasts.size(), 3u);
  ASSERT_TRUE(table->endsBeforeStart);
  EXPECT_EQ(
      describe(*table->endsBeforeStart),
      "fasts.csv:2: end: expected an end after the start, found \"2026-03-01T20:00Z\"; kept, and so is 1 more like it");
}

}  // namespace
}  // namespace mivo::host
