// SPDX-License-Identifier: MIT
#include "host/pages/FastingPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/json/RecordJson.h"
#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::utc;

constexpr std::int64_t hours = 3600;

FastRecord ended(std::uint64_t id, const char* start, const char* end) {
  return {finishedFast({0, id}, utc(start), utc(end), 16 * hours), ""};
}

FastRecord running(const char* start, std::int64_t goalSeconds = 16 * hours) {
  return {ongoingFast({0, 9}, utc(start), goalSeconds), ""};
}

FastingPage pageOf(const std::vector<FastRecord>& fasts, const char* now, std::int64_t nextGoal = 16 * hours) {
  return composeFastingPage(fastingPageFacts(fasts, nextGoal, utc(now)), tests::Pages{}.at(utc(now)));
}

struct SaidRow {
  const char* name;
  std::vector<FastRecord> fasts;
  const char* now;
  std::string status, elapsed, startText, goal, button;
};
void PrintTo(const SaidRow& row, std::ostream* out) { *out << row.name; }

class FastingPageText : public testing::TestWithParam<SaidRow> {};

TEST_P(FastingPageText, saysHowFarTheFastHasCome) {
  const auto& row = GetParam();
  const FastingPage page = pageOf(row.fasts, row.now);
  EXPECT_EQ(page.status, row.status);
  EXPECT_EQ(page.elapsed, row.elapsed);
  EXPECT_EQ(page.startText, row.startText);
  EXPECT_EQ(page.goal, row.goal);
  EXPECT_EQ(page.button, row.button);
  EXPECT_EQ(page.warning, "");
}

const FastRecord lastNight = ended(1, "2026-02-27 19:00", "2026-02-28 11:30");

INSTANTIATE_TEST_SUITE_P(Rows, FastingPageText,
                         testing::Values(SaidRow{"running",
                                                 {lastNight, running("2026-03-01 06:48")},
                                                 "2026-03-01 12:00:59.5",
                                                 "Fasting 5h 12m, Catabolic, 10h 47m to your goal",
                                                 "5:12:59",
                                                 "Today, 06:48",
                                                 "16h, today 22:48",
                                                 "Stop fast"},
                                         SaidRow{"atItsGoal",
                                                 {running("2026-02-28 20:00")},
                                                 "2026-03-01 12:00",
                                                 "Fasting 16h 0m, Fat Burning, 0m past your goal",
                                                 "16:00:00",
                                                 "Yesterday, 20:00",
                                                 "16h, today 12:00",
                                                 "Stop fast"},
                                         SaidRow{"pastItsGoalOfYesterday",
                                                 {running("2026-02-28 04:00")},
                                                 "2026-03-01 12:00",
                                                 "Fasting 32h 0m, Ketosis, 16h 0m past your goal",
                                                 "32:00:00",
                                                 "Yesterday, 04:00",
                                                 "16h, yesterday 20:00",
                                                 "Stop fast"},
                                         SaidRow{"untilTomorrow",
                                                 {running("2026-03-01 11:59", 16 * hours + 1800)},
                                                 "2026-03-01 12:00",
                                                 "Fasting 1m, Anabolic, 16h 29m to your goal",
                                                 "0:01:00",
                                                 "Today, 11:59",
                                                 "16h 30m, tomorrow 04:29",
                                                 "Stop fast"},
                                         SaidRow{"untilAnotherDay",
                                                 {running("2026-03-01 11:00", 72 * hours)},
                                                 "2026-03-01 12:00",
                                                 "Fasting 1h 0m, Anabolic, 71h 0m to your goal",
                                                 "1:00:00",
                                                 "Today, 11:00",
                                                 "72h, 03-04 11:00",
                                                 "Stop fast"},
                                         SaidRow{"eating",
                                                 {lastNight},
                                                 "2026-02-28 14:32",
                                                 "Eating, 3h 2m since your last fast",
                                                 "3:02:00",
                                                 "16h 30m",
                                                 "16h",
                                                 "Start fast"},
                                         SaidRow{"nothingYet",
                                                 {},
                                                 "2026-03-01 12:00",
                                                 "Your first fast: Start it when you have eaten your last meal.",
                                                 "",
                                                 "",
                                                 "16h",
                                                 "Start fast"}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(FastingPage, countsEatingFromTheFastThatEndedLast) {
  const FastingPage page = pageOf(
      {ended(1, "2026-02-27 08:00", "2026-02-28 11:00"), lastNight, ended(2, "2026-02-28 00:00", "2026-02-28 06:00")},
      "2026-02-28 12:30");
  EXPECT_EQ(page.duration, "1h 0m");
  EXPECT_TRUE(page.isEating);
}

TEST(FastingPage, warnsOfAFastOfTheFutureBeforeOneThatOverlaps) {
  const std::vector<FastRecord> fasts{lastNight, running("2026-02-28 11:00")};
  EXPECT_EQ(pageOf(fasts, "2026-02-28 12:00").warning, "Overlaps the fast of 02-27");
  const FastingPage future = pageOf({running("2026-03-02 12:00")}, "2026-03-01 12:00");
  EXPECT_EQ(future.warning, "This fast begins in the future. Check the clock, or change when it started.");
  EXPECT_EQ(future.elapsed, "0:00:00") << "it has not begun";
  EXPECT_EQ(future.goalText, "16h 0m to your goal");
}

TEST(FastingPage, offersTheUsualGoals) {
  const auto chosen = [](const FastingPage& page) {
    std::string all;
    for (const GoalOffer& offer : page.goals) all += offer.text + (offer.isChosen ? "! " : " ");
    return all;
  };
  EXPECT_EQ(chosen(pageOf({running("2026-03-01 06:48", 18 * hours)}, "2026-03-01 12:00")),
            "12h 13h 14h 15h 16h 18h! 20h 24h ");
  EXPECT_EQ(chosen(pageOf({}, "2026-03-01 12:00", 17 * hours)), "12h 13h 14h 15h 16h 18h 20h 24h ");
}

TEST(FastingPage, speaksItsTilesWithTheirLabels) {
  const FastingPage page = pageOf({running("2026-03-01 06:48")}, "2026-03-01 12:00");
  EXPECT_EQ(page.startSpoken, "Started, Today, 06:48");
  EXPECT_EQ(page.goalSpoken, "Goal, 16h, today 22:48");
}

TEST(FastingPage, saysWhyTheStartCannotMove) {
  const Date now = utc("2026-03-01 12:00");
  const auto problem = [&](const std::vector<FastRecord>& fasts, const char* start) {
    return startProblem(fasts, utc(start), tests::Pages{}.at(now));
  };
  EXPECT_EQ(problem({running("2026-03-01 06:48")}, "2026-03-01 11:00"), "");
  EXPECT_EQ(problem({running("2026-03-01 06:48")}, "2026-03-01 12:01"),
            "The start is in the future. Is the clock right?");
  EXPECT_EQ(problem({lastNight}, "2026-03-01 12:01"), "") << "none runs";
}

TEST(FastingPage, tellsTheZonesThatTheFastWentThrough) {
  const FastingPage page = pageOf({running("2026-03-01 06:48")}, "2026-03-01 12:00");
  EXPECT_THAT(
      page.zones,
      ElementsAre(ZoneTimeText{LegacyFastingZone::anabolic, "Anabolic", "4h 0m", "Anabolic, 4h 0m", false},
                  ZoneTimeText{LegacyFastingZone::catabolic, "Catabolic", "1h 12m", "Catabolic, 1h 12m", true}));
  EXPECT_EQ(page.spoken, "Catabolic, 5h 12m, 10h 48m to your goal");
  EXPECT_THAT(pageOf({lastNight}, "2026-03-01 12:00").zones, IsEmpty());
}

struct RingRow {
  const char* name;
  double passed;  // hours
  std::int64_t goal;
  bool isEating;
  double span;
  std::vector<double> marks;
};
void PrintTo(const RingRow& row, std::ostream* out) { *out << row.name; }

class Ring : public testing::TestWithParam<RingRow> {};

TEST_P(Ring, spansTheGoalOrWhatIsBeyondIt) {
  const auto& row = GetParam();
  const Date now = utc("2026-03-01 12:00"), then = now - Duration{row.passed * hours};
  FastingPageFacts facts{.nextGoalSeconds = row.goal * hours};
  if (row.isEating)
    facts.last = FinishedFastingDataEntry{.start = then - Duration{hours}, .end = then, .goalSeconds = 0};
  else
    facts.running = FastRecord{ongoingFast({0, 1}, then, row.goal * hours), ""};
  const FastingPage page = composeFastingPage(facts, tests::Pages{}.at(now));
  EXPECT_EQ(page.ringSpan / hours, row.span);
  std::vector<double> marks;
  for (const RingMark& mark : page.marks) marks.push_back(mark.seconds / hours);
  EXPECT_EQ(marks, row.marks);
}

INSTANTIATE_TEST_SUITE_P(Rows, Ring,
                         testing::Values(RingRow{"towardsTheGoal", 5, 16, false, 16, {4, 16}},
                                         RingRow{"aZoneJustBeforeTheGoal", 5, 17, false, 17, {4, 16, 17}},
                                         RingRow{"atTheGoal", 16, 16, false, 16, {4, 16}},
                                         RingRow{"pastItToTheEndOfTheZone", 16.5, 16, false, 24, {4, 16, 24}},
                                         RingRow{"pastADay", 25, 16, false, 72, {4, 16, 24, 72}},
                                         RingRow{"dayByDay", 73, 16, false, 96, {16, 24, 72, 96}},
                                         RingRow{"aShortGoal", 0.2, 0, false, 1, {1}},
                                         RingRow{"eating", 2, 16, true, 8, {4, 8}},
                                         RingRow{"eatingAfterALongGoal", 2, 36, true, 1, {0.5, 1}}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(FastingPage, movesItsRingInStepsOfTenSeconds) {
  EXPECT_EQ(pageOf({running("2026-03-01 11:00")}, "2026-03-01 11:00:19.9").ringSeconds, 10);
  EXPECT_EQ(pageOf({running("2026-03-01 11:00")}, "2026-03-01 11:00:20").ringSeconds, 20);
}

TEST(NextTick, isTheNextSecondOrMinuteOfWhatIsShown) {
  const auto next = [](const std::vector<FastRecord>& fasts, bool seesSeconds) {
    const Date now = utc("2026-03-01 12:00:10.25");
    return untilNextTick(fastingPageFacts(fasts, 0, now), seesSeconds, now);
  };
  EXPECT_EQ(next({running("2026-03-01 11:59:30")}, true), 0.75);
  EXPECT_EQ(next({running("2026-03-01 11:59:30")}, false), 19.75);
  EXPECT_EQ(next({running("2026-03-01 12:00:10.5")}, true), 0.25) << "one that has not begun";
  EXPECT_EQ(next({lastNight}, true), 0.75);
  EXPECT_EQ(next({lastNight}, false), std::nullopt) << "nobody sees how long they have eaten";
  EXPECT_EQ(next({}, true), std::nullopt);
}

TEST(FastingPage, printsAsJson) {
  JsonWriter json;
  writeJson(json, pageOf({running("2026-03-01 06:48")}, "2026-03-01 12:00"));
  const std::string text = std::move(json).text();
  EXPECT_THAT(text, testing::HasSubstr(R"("status": "Fasting 5h 12m, Catabolic, 10h 48m to your goal")"));
  EXPECT_THAT(text, testing::HasSubstr(R"("zone": "catabolic")"));
  EXPECT_THAT(text, testing::HasSubstr(R"("started": "2026-03-01T06:48:00Z")"));
}

}  // namespace
}  // namespace mivo::host
