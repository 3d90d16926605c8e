// SPDX-License-Identifier: MIT
#include "host/pages/FastSheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/json/RecordJson.h"
#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

using tests::utc;

const Date now = utc("2026-03-01 12:00:30");

FastRecord ended(std::uint64_t id, const char* start, const char* end, std::int64_t goal = 57600) {
  return {finishedFast({0, id}, utc(start), utc(end), goal), ""};
}

const FastRecord tuesday = ended(1, "2026-02-24 19:00:30", "2026-02-25 11:30");

FastSheet sheetOf(const FastDraft& draft, const std::vector<FastRecord>& fasts = {}) {
  return composeFastSheet(draft, fasts, tests::Pages{}.at(now));
}

TEST(FastSheet, showsAFastAsItIs) {
  const FastSheet sheet = sheetOf(draftOf(tuesday), {tuesday});
  EXPECT_EQ(sheet.title, "Edit fast");
  EXPECT_EQ(sheet.severalLabel, "");
  EXPECT_EQ(sheet.startSpoken, "Start, 02-24 19:00");
  EXPECT_EQ(sheet.endSpoken, "End, 02-25 11:30");
  EXPECT_EQ(sheet.lengthSpoken, "Length, 16h 29m");
  EXPECT_EQ(sheet.overlap, "") << "it does not overlap itself";
  EXPECT_EQ(sheet.start, tuesday.fast.start);
  EXPECT_EQ(sheet.goalSeconds, 57600);
  ASSERT_EQ(sheet.zones.size(), 3U);
  EXPECT_EQ(sheet.zones[2].spoken, "Fat Burning, 29m");
}

TEST(FastSheet, addsAFastThatReachesItsGoalNow) {
  const FastSheet sheet = sheetOf(newDraft({}, {0, 7}, 57600, now));
  EXPECT_EQ(sheet.title, "Add fast");
  EXPECT_TRUE(sheet.isNew);
  EXPECT_EQ(sheet.severalLabel, "Several at once");
  EXPECT_EQ(sheet.startText, "02-28 20:00") << "its days are not named after today";
  EXPECT_EQ(sheet.endText, "03-01 12:00");
}

struct ProblemRow {
  const char* name;
  FastDraft draft;
  std::string start, end, goal, note = {};
};
void PrintTo(const ProblemRow& row, std::ostream* out) { *out << row.name; }

class FastSheetProblems : public testing::TestWithParam<ProblemRow> {};

TEST_P(FastSheetProblems, standAtTheirFields) {
  const FastSheet sheet = sheetOf(GetParam().draft);
  EXPECT_EQ(sheet.startProblem, GetParam().start);
  EXPECT_EQ(sheet.endProblem, GetParam().end);
  EXPECT_EQ(sheet.goalProblem, GetParam().goal);
  EXPECT_EQ(sheet.noteProblem, GetParam().note);
}

const FastRecord odd = ended(2, "2026-02-24 19:00", "2026-02-24 18:00");

INSTANTIATE_TEST_SUITE_P(
    Rows, FastSheetProblems,
    testing::Values(ProblemRow{"none", draftOf(tuesday), "", "", ""},
                    ProblemRow{"asItWasBefore", draftOf(odd), "", "", ""},
                    ProblemRow{"startInFuture", withStart(draftOf(tuesday), utc("2026-03-02 12:00")),
                               "The start is in the future. Is the clock right?", "", ""},
                    ProblemRow{"startOutOfRange", withStart(draftOf(tuesday), dateSince1970(-1e12)),
                               "Choose a date of the years 1 to 9999.", "", ""},
                    ProblemRow{"endInFuture", withEnd(draftOf(tuesday), utc("2026-03-01 12:01")), "",
                               "The end is in the future. Is the clock right?", ""},
                    ProblemRow{"endBeforeStart", withEnd(draftOf(tuesday), utc("2026-02-24 18:00")), "",
                               "The end is before the start.", ""},
                    ProblemRow{"goal", withGoal(draftOf(tuesday), -1), "", "", "Choose a shorter goal."},
                    ProblemRow{"note", withNote(draftOf(tuesday), std::string(65537, 'x')), "", "", "",
                               "Write a shorter note."}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(FastSheet, warnsOfTheFastThatItWouldOverlap) {
  const FastRecord other = ended(3, "2026-02-25 11:00", "2026-02-25 20:00");
  const FastSheet sheet = sheetOf(draftOf(tuesday), {tuesday, other});
  EXPECT_EQ(sheet.overlap, "Overlaps the fast of 02-25");
  EXPECT_EQ(sheet.endProblem, "") << "it can be saved nevertheless";
}

TEST(FastSheet, saysWhyItWasNotWritten) {
  FastDraft draft = draftOf(tuesday);
  draft.failure = "The disk is full.";
  JsonWriter json;
  writeJson(json, sheetOf(draft));
  EXPECT_THAT(std::move(json).text(), testing::HasSubstr(R"("failure": "The disk is full.")"));
}

}  // namespace
}  // namespace mivo::host
