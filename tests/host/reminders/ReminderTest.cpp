// SPDX-License-Identifier: MIT
#include "host/reminders/Reminder.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/Instants.h"

namespace mivo::host {
namespace {

using tests::text;
using Kind = ReminderKind;

/// Hours of a Monday and the days after it.
Date at(double hour) { return tests::utc("2026-03-02 00:00") + Duration{hour * secondsPerHour}; }

constexpr std::int64_t sixteenHours = 57600;

FastRecord ended(std::uint64_t id, double from, double to) {
  return {finishedFast({0, id}, at(from), at(to), sixteenHours), "a note"};
}

FastRecord running(std::uint64_t id, double from, std::int64_t goal = sixteenHours) {
  return {ongoingFast({0, id}, at(from), goal), "a note"};
}

constexpr ReminderSettings off{}, ofGoals{.tellsGoal = true}, ofWindows{.tellsEatingWindow = true},
    ofBoth{.tellsGoal = true, .tellsEatingWindow = true}, ofSixHours{.tellsEatingWindow = true, .eatingWindowHours = 6};

struct Row {
  const char* name;
  std::vector<FastRecord> fasts;
  ReminderSettings settings;
  double now;
  std::string expected = "nothing";
  ToldFasts told = {};
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

/// "goal of 2 at 26: 16": what, of which fast, due when, after how many hours.
std::string shown(const std::optional<Reminder>& reminder) {
  if (!reminder) return "nothing";
  const auto hours = [](double seconds) {
    std::string all = std::to_string(seconds / secondsPerHour);
    while (all.back() == '0') all.pop_back();
    return all.back() == '.' ? all.substr(0, all.size() - 1) : all;
  };
  return (reminder->kind == Kind::goal ? "goal of " : "window after ") + std::to_string(reminder->fast.low) + " at " +
         hours(secondsBetween(at(0), reminder->due)) + ": " + hours(reminder->duration);
}

class NextReminder : public testing::TestWithParam<Row> {};

TEST_P(NextReminder, isWhatTheUserAskedFor) {
  const Row& row = GetParam();
  EXPECT_EQ(shown(nextReminder(row.fasts, row.settings, row.told, at(row.now))), row.expected);
}

// Two days with fasts from 20 to 12 o'clock: the eating window between them took 8 hours.
const std::vector<FastRecord> twoDays{ended(1, 20, 36), ended(2, 44, 60)};
const std::vector<FastRecord> third{ended(1, 20, 36), ended(2, 44, 60), running(3, 68)};

INSTANTIATE_TEST_SUITE_P(
    Rows, NextReminder,
    testing::Values(
        Row{"noHistory", {}, ofBoth, 60}, Row{"goalAhead", third, ofBoth, 70, "goal of 3 at 84: 16"},
        Row{"goalReached", third, ofBoth, 84, "goal of 3 at 84: 16"}, Row{"goalNotAskedFor", third, ofWindows, 84},
        Row{"nothingAskedFor", third, off, 84}, Row{"goalTold", third, ofBoth, 84, "nothing", {.goal = UUID{0, 3}}},
        Row{"goalOfAnotherFastTold", third, ofGoals, 84, "goal of 3 at 84: 16", {.goal = UUID{0, 2}}},
        Row{"windowToldIsNoGoal", third, ofGoals, 84, "goal of 3 at 84: 16", {.eatingWindow = UUID{0, 3}}},
        Row{"goalOfOneNight", third, ofGoals, 96, "goal of 3 at 84: 16"}, Row{"goalOfLongAgo", third, ofGoals, 96.01},
        Row{"noGoal", {running(1, 0, 0)}, ofGoals, 30},
        Row{"clockSetBack", {running(1, 20)}, ofGoals, 10, "goal of 1 at 36: 16"},
        Row{"windowAhead", twoDays, ofBoth, 61, "window after 2 at 68: 8"},
        Row{"windowOver", twoDays, ofWindows, 69, "window after 2 at 68: 8"},
        Row{"windowNotAskedFor", twoDays, ofGoals, 69},
        Row{"windowTold", twoDays, ofWindows, 69, "nothing", {.eatingWindow = UUID{0, 2}}},
        Row{"windowOfLongAgo", twoDays, ofWindows, 70.01},
        Row{"chosenWindow", twoDays, ofSixHours, 61, "window after 2 at 66: 6"},
        Row{"chosenWindowOfTheFirstFast", {ended(1, 0, 16)}, ofSixHours, 17, "window after 1 at 22: 6"},
        Row{"noWindowBefore", {ended(1, 0, 16)}, ofWindows, 17},
        Row{"daysWithoutFasts", {ended(1, 0, 16), ended(2, 60, 76)}, ofWindows, 77},
        Row{"aDayWithoutFasts", {ended(1, 0, 16), ended(2, 40, 56)}, ofWindows, 57, "window after 2 at 80: 24"},
        Row{"stoppedByMistake",
            {ended(1, 0, 16), ended(2, 24, 30), ended(3, 30.25, 40)},
            ofWindows,
            41,
            "window after 3 at 48: 8"},
        Row{"overlapping",
            {ended(1, 0, 16), ended(2, 22, 40), ended(3, 24, 30)},
            ofWindows,
            41,
            "window after 2 at 46: 6"},
        Row{"withoutLength",
            {ended(1, 0, 16), ended(2, 22, 40), ended(3, 45, 45), ended(4, 46, 44)},
            ofWindows,
            44,
            "window after 2 at 46: 6"},
        Row{"onlyWithoutLength", {ended(1, 16, 16)}, ofSixHours, 17}),
    [](const auto& row) { return std::string{row.param.name}; });

// A program that is started and killed, put to sleep and woken at any time.
RC_GTEST_PROP(Reminders, comeOnceForEachFastWhoeverSlept, (const std::vector<std::uint8_t>& naps)) {
  const std::vector<FastRecord> all{running(1, 1), running(2, 50, 36000), running(3, 90)};
  std::map<UUID, int> told;
  ToldFasts kept;
  std::map<UUID, bool> wasAwakeInTime;
  double hour = 0;
  for (const std::uint8_t nap : naps) {
    hour += nap / 12.0;
    const auto& fast = hour < 50 ? all[0] : hour < 90 ? all[1] : all[2];
    const Date goal = fast.fast.start + Duration{static_cast<double>(fast.fast.goalSeconds)};
    const double late = secondsBetween(goal, at(hour));
    if (late >= 0 && late <= tellableFor(Kind::goal)) wasAwakeInTime[fast.fast.id] = true;
    const auto next = nextReminder(std::span{&fast, 1}, ofGoals, kept, at(hour));
    if (!next || next->due > at(hour)) continue;
    ++told[next->fast];
    kept.goal = next->fast;
  }
  for (const FastRecord& fast : all) RC_ASSERT(told[fast.fast.id] == (wasAwakeInTime[fast.fast.id] ? 1 : 0));
}

}  // namespace
}  // namespace mivo::host
