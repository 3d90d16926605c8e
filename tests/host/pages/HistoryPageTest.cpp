// SPDX-License-Identifier: MIT
#include "host/pages/HistoryPage.h"

#include <gtest/gtest.h>

#include "host/json/RecordJson.h"
#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

using tests::utc;

constexpr std::int64_t hours = 3600;
const Date now = utc("2026-03-01 12:00");

FastRecord ended(std::uint64_t id, const char* start, const char* end, std::int64_t goal = 16 * hours) {
  return {finishedFast({0, id}, utc(start), utc(end), goal), ""};
}

FastRecord running(const char* start) { return {ongoingFast({0, 9}, utc(start), 16 * hours), ""}; }

HistoryFacts factsOf(std::vector<FastRecord> fasts) { return historyFacts(List<FastRecord>{std::move(fasts)}, now); }

HistoryRow rowOf(const std::vector<FastRecord>& fasts, std::size_t row = 0) {
  return composeHistoryRow(factsOf(fasts), row, tests::Pages{}.at(now));
}

struct RowRow {
  const char* name;
  std::vector<FastRecord> fasts;
  double goalFraction;
  std::string spoken;
};
void PrintTo(const RowRow& row, std::ostream* out) { *out << row.name; }

class HistoryRows : public testing::TestWithParam<RowRow> {};

TEST_P(HistoryRows, sayWhenHowLongAndHowNearTheGoal) {
  const HistoryRow row = rowOf(GetParam().fasts);
  EXPECT_EQ(row.spoken, GetParam().spoken);
  EXPECT_EQ(row.goalFraction, GetParam().goalFraction);
}

INSTANTIATE_TEST_SUITE_P(Rows, HistoryRows,
                         testing::Values(RowRow{"belowItsGoal",
                                                {ended(1, "2026-02-27 20:02", "2026-02-28 08:02")},
                                                0.75,
                                                "02-27, 20:02 – 08:02, 12h 0m, 16h goal"},
                                         RowRow{"atItsGoal",
                                                {ended(1, "2026-02-27 20:00", "2026-02-28 12:00")},
                                                1,
                                                "02-27, 20:00 – 12:00, 16h 0m, 16h goal, goal reached"},
                                         RowRow{"pastItsGoalOfAnotherYear",
                                                {ended(1, "2025-12-30 12:00", "2025-12-31 12:30", 16 * hours + 1800)},
                                                1,
                                                "2025-12-30, 12:00 – 12:30, 24h 30m, 16h 30m goal, goal reached"},
                                         RowRow{"withoutAGoal",
                                                {ended(1, "2026-02-27 20:00", "2026-02-27 20:00", 0)},
                                                1,
                                                "02-27, 20:00 – 20:00, 0m, 0h goal, goal reached"},
                                         RowRow{"endsBeforeItsStart",
                                                {ended(1, "2026-02-27 20:00", "2026-02-27 19:00")},
                                                0,
                                                "02-27, 20:00 – 19:00, 0m, 16h goal"},
                                         RowRow{"overlapsAnEarlierOne",
                                                {ended(1, "2026-02-25 19:00", "2026-02-26 12:00"),
                                                 ended(2, "2026-02-26 11:00", "2026-02-26 19:00")},
                                                0.5,
                                                "02-26, 11:00 – 19:00, 8h 0m, 16h goal, Overlaps the fast of 02-25"},
                                         RowRow{"overlapsTheRunningOne",
                                                {ended(1, "2026-02-28 11:00", "2026-02-28 19:00"),
                                                 running("2026-02-28 18:00")},
                                                0.5,
                                                "02-28, 11:00 – 19:00, 8h 0m, 16h goal, Overlaps the fast of 02-28"}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(History, showsTheFirstLineOfANoteThatSaysSomething) {
  const std::pair<const char*, const char*> notes[] = {{"", ""},
                                                       {"slept well", "slept well"},
                                                       {" \n\t\n", ""},
                                                       {"\r\n  tea and broth \r\n, later more", "tea and broth"},
                                                       {"müde", "müde"}};
  for (const auto& [note, line] : notes) {
    FastRecord record = ended(1, "2026-02-27 20:00", "2026-02-28 12:00");
    record.note = note;
    EXPECT_EQ(rowOf({record}).note, line);
  }
}

TEST(History, standsLatestFirstWithoutTheRunningOne) {
  const std::vector<FastRecord> fasts{ended(1, "2026-02-25 19:00", "2026-02-26 12:00"),
                                      ended(2, "2026-02-26 19:00", "2026-02-27 12:00"), running("2026-02-28 18:00")};
  const HistoryFacts facts = factsOf(fasts);
  EXPECT_EQ(*recordOf(facts, 0), fasts[1]);
  EXPECT_EQ(*recordOf(facts, 1), fasts[0]);
  EXPECT_EQ(recordOf(facts, 2), nullptr);
}

TEST(History, isDrawnOnTheScaleOfADayOrOfItsLongestFast) {
  const auto scaleOf = [](const std::vector<FastRecord>& fasts) {
    return composeHistoryPage(factsOf(fasts), tests::Pages{}.at(now)).scaleSeconds;
  };
  EXPECT_EQ(scaleOf({}), secondsPerDay);
  EXPECT_EQ(scaleOf({ended(1, "2026-02-25 19:00", "2026-02-26 12:00")}), secondsPerDay);
  EXPECT_EQ(scaleOf({running("2025-01-01 00:00"), ended(1, "2026-02-20 19:00", "2026-02-22 19:00")}),
            2 * secondsPerDay);
}

TEST(History, isSpokenWithItsRow) {
  const HistoryFacts facts = factsOf({ended(1, "2026-02-27 20:02", "2026-02-28 08:02")});
  const tests::Pages pages;
  EXPECT_EQ(historySpoken(facts, 0, pages.at(now)), "History, 02-27, 20:02 – 08:02, 12h 0m, 16h goal");
  EXPECT_EQ(historySpoken(facts, 1, pages.at(now)), "History");
}

TEST(History, printsAsJson) {
  JsonWriter json;
  writeJson(json, composeHistoryPage(factsOf({}), tests::Pages{}.at(now)));
  EXPECT_NE(std::move(json).text().find(R"("count": 0, "scaleSeconds": 86400)"), std::string::npos);
}

const FastRecord monday = ended(1, "2026-02-23 19:00", "2026-02-24 12:00"),
                 tuesday = ended(2, "2026-02-24 19:00", "2026-02-25 12:00"),
                 wednesday = ended(3, "2026-02-25 19:00", "2026-02-26 12:00"),
                 notedTuesday = {tuesday.fast, "slept well"},
                 longTuesday = ended(2, "2026-02-24 19:00", "2026-02-25 20:00");

struct ChangeRow {
  const char* name;
  std::vector<FastRecord> before, after;
  RowChange change;
  std::vector<std::size_t> retold;  // of the rows after
};
void PrintTo(const ChangeRow& row, std::ostream* out) { *out << row.name; }

class HistoryChanges : public testing::TestWithParam<ChangeRow> {};

TEST_P(HistoryChanges, touchOnlyTheRowsThatDiffer) {
  const HistoryFacts before = factsOf(GetParam().before), after = factsOf(GetParam().after);
  EXPECT_EQ(rowChange(before, after), GetParam().change);
  EXPECT_EQ(rowsThatDiffer(before, after), GetParam().retold);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HistoryChanges,
    testing::Values(ChangeRow{"none", {monday, tuesday}, {monday, tuesday}, {2, 0, 0}, {}},
                    ChangeRow{"first", {}, {monday}, {0, 0, 1}, {}},
                    ChangeRow{"latestAdded", {monday, tuesday}, {monday, tuesday, wednesday}, {0, 0, 1}, {}},
                    ChangeRow{"middleGone", {monday, tuesday, wednesday}, {monday, wednesday}, {1, 1, 0}, {}},
                    ChangeRow{"allGone", {monday, tuesday}, {}, {0, 2, 0}, {}},
                    ChangeRow{"begins", {monday}, {monday, running("2026-03-01 10:00")}, {1, 0, 0}, {}},
                    ChangeRow{
                        "edited", {monday, tuesday, wednesday}, {monday, longTuesday, wednesday}, {1, 1, 1}, {0, 1}},
                    ChangeRow{"noted", {monday, tuesday}, {monday, notedTuesday}, {0, 1, 1}, {0}},
                    ChangeRow{"overlapGone", {monday, longTuesday, wednesday}, {monday, wednesday}, {1, 1, 0}, {0}},
                    ChangeRow{"overlapMoved",
                              {longTuesday, wednesday},
                              {ended(2, "2026-02-24 18:00", "2026-02-25 20:00"), wednesday},
                              {1, 1, 1},
                              {0, 1}},
                    ChangeRow{"movedPastAnother",
                              {monday, tuesday},
                              {tuesday, ended(1, "2026-02-24 20:00", "2026-02-25 01:00")},
                              {0, 2, 2},
                              {0, 1}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(HistoryMonths, beginWhereTheirLatestFastIs) {
  const auto facts =
      factsOf({ended(1, "2025-12-31 23:59", "2026-01-01 10:00"), ended(2, "2026-02-01 00:00", "2026-02-01 16:00"),
               ended(3, "2026-02-27 20:00", "2026-02-28 08:00"), ended(4, "2026-02-28 20:00", "2026-03-01 08:00"),
               running("2026-03-01 09:00")});
  const auto clients = tests::Pages{};
  EXPECT_EQ(composeHistoryMonths(facts, clients.at(now)),
            (std::vector<HistoryMonth>{{"02-28", "3 fasts", 0}, {"12-31", "1 fast", 3}}));
  EXPECT_TRUE(composeHistoryPage(facts, clients.at(now)).hasMonths);
  EXPECT_FALSE(composeHistoryPage(factsOf({running("2026-01-01 09:00")}), clients.at(now)).hasMonths);
  const auto oneMonth =
      factsOf({ended(1, "2026-02-01 00:00", "2026-02-01 16:00"), ended(2, "2026-02-28 20:00", "2026-03-01 08:00")});
  EXPECT_FALSE(composeHistoryPage(oneMonth, clients.at(now)).hasMonths);
  EXPECT_EQ(composeHistoryMonths(factsOf({}), clients.at(now)), std::vector<HistoryMonth>{});
}

}  // namespace
}  // namespace mivo::host
