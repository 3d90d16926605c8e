// SPDX-License-Identifier: MIT
#include "mivo/streaks/Streaks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "mivo/streaks/Streak.h"
#include "tests/histories/ZoneRows.h"
#include "tests/support/FixedClients.h"

namespace mivo {

void PrintTo(const StreakLengths& lengths, std::ostream* out) { *out << lengths.current << " of " << lengths.max; }

namespace {

using tests::gregorianCalendar;

constexpr auto days = StreakSettings::CountingEntity::days;
constexpr auto inFasts = StreakSettings::CountingEntity::fasts;

// Hours after 2026-07-01T00:00Z.
constexpr Date at(double hours) { return dateSince1970(1782864000) + Duration{hours * secondsPerHour}; }

FinishedFastingDataEntry fast(double startHour, double endHour, std::int64_t goalSeconds = 0) {
  return {at(startHour), at(endHour), goalSeconds};
}

struct StreaksRow {
  const char* name;
  std::vector<FinishedFastingDataEntry> fasts;
  StreakSettings settings;
  StreakLengths expected;
};
void PrintTo(const StreaksRow& row, std::ostream* out) { *out << row.name; }
class Streaks : public testing::TestWithParam<StreaksRow> {};

TEST_P(Streaks, areCounted) {
  const auto utc = gregorianCalendar("UTC");
  EXPECT_EQ(streaks(FastsByStart{GetParam().fasts}, GetParam().settings, *utc, *utc), GetParam().expected);
}

const FinishedFastingDataEntry monday = fast(20, 36), tuesday = fast(44, 60), wednesday = fast(68, 84),
                               nextWeek = fast(200, 216), dayAfter = fast(224, 240);

INSTANTIATE_TEST_SUITE_P(
    Rows, Streaks,
    testing::Values(
        StreaksRow{"noFasts", {}, {days}, {0, 0}}, StreaksRow{"oneFastOverTwoDatesIsOneDay", {monday}, {days}, {1, 1}},
        StreaksRow{"oneThatEndsBeforeItStarts", {fast(9, 8)}, {days, true}, {1, 1}},
        StreaksRow{"allMissedTheirGoal", {fast(0, 10, 36001), fast(20, 30, 36001)}, {days}, {0, 0}},
        StreaksRow{"missedGoalsIgnored", {fast(0, 10, 36001), fast(20, 30, 36001)}, {inFasts, true}, {2, 2}},
        StreaksRow{"exactlyTheGoalCounts", {fast(0, 10, 36000), fast(20, 30, 36000)}, {inFasts}, {2, 2}},
        StreaksRow{"oneOfTwoReachesItsGoal", {fast(0, 10, 36000), fast(20, 30, 36001)}, {inFasts}, {1, 1}},
        StreaksRow{"withinTheBreak", {monday, tuesday}, {inFasts}, {2, 2}},
        StreaksRow{"withinTheBreakInDays", {monday, tuesday}, {days}, {3, 3}},
        StreaksRow{"exactlyTheBreakIsABreak", {fast(0, 10), fast(34, 44)}, {inFasts}, {1, 1}},
        StreaksRow{"exactlyTheBreakInDays", {fast(20, 36), fast(60, 70)}, {days}, {2, 2}},
        StreaksRow{"aSecondBeforeTheDeadline", {fast(0, 10), fast(34 - 1.0 / 3600, 44)}, {inFasts}, {2, 2}},
        StreaksRow{"unsorted", {wednesday, monday, tuesday}, {inFasts}, {3, 3}},
        StreaksRow{"loneLastFastIsDropped", {monday, tuesday, nextWeek}, {inFasts}, {2, 2}},
        StreaksRow{"currentIsTheLastOne", {monday, tuesday, wednesday, nextWeek, dayAfter}, {inFasts}, {2, 3}},
        StreaksRow{"currentIsTheLastOneInDays", {monday, tuesday, wednesday, nextWeek, dayAfter}, {days}, {3, 4}},
        StreaksRow{"aLoneFastInTheMiddle", {monday, nextWeek, fast(500, 510), fast(512, 520)}, {inFasts}, {2, 2}},
        StreaksRow{
            "endsAtTheFirstOfEqualEnds", {fast(0, 10), fast(20, 50), fast(25, 30), fast(45, 50)}, {inFasts}, {2, 2}},
        StreaksRow{"equalEndAfterABreakEndsNothing", {fast(0, 10), fast(100, 150), fast(110, 150)}, {inFasts}, {2, 2}},
        StreaksRow{"noBreakAllowed", {fast(0, 10), fast(10, 20), fast(19, 30)}, {inFasts, false, 0}, {2, 2}},
        StreaksRow{"negativeBreak", {fast(0, 10), fast(9.5, 20), fast(10, 30)}, {inFasts, false, -1}, {2, 2}},
        StreaksRow{"streakOfNoLengthIsNone", {fast(0, 0), fast(50, 50), fast(100, 100)}, {inFasts}, {0, 0}},
        StreaksRow{"noLengthIsNotTheLongest",
                   {fast(0, 0), fast(0, 0), fast(0, 0), fast(100, 110), fast(112, 120)},
                   {inFasts},
                   {2, 2}},
        StreaksRow{"backwardStreakIsLeftOut", {fast(0, 10), fast(50, 40), fast(100, 110)}, {inFasts}, {1, 1}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(StreaksDeadline, outsideTheYearsIsReportedAndKeepsTheCounter) {
  const auto issues = std::make_shared<tests::RecordedIssues>();
  auto clients = std::make_shared<Dependencies>();
  clients->issueReporter = issues;
  clients->calendar = clients->currentCalendar = gregorianCalendar("UTC");
  constexpr std::int64_t tooLong = 87660000;
  const auto inJuly = withDependencies(
      clients, [] { return streaks(std::vector{monday, tuesday, wednesday}, {inFasts, false, tooLong}); });
  EXPECT_EQ(inJuly, (StreakLengths{0, 0})) << "each pair closes a streak of the untouched counter";
  EXPECT_THAT(issues->messages, testing::ElementsAre("no date", "no date"));

  // Two count before the third one's deadline lies in the year 10000, and the counter is not reset there.
  const Date late = lastDate - Duration{100 * secondsPerHour};
  const auto lateFast = [late](double from, double to) {
    return FinishedFastingDataEntry{late + Duration{from * 3600}, late + Duration{to * 3600}, 0};
  };
  issues->messages.clear();
  const auto atTheEnd = withDependencies(clients, [&] {
    return streaks(std::vector{lateFast(0, 10), lateFast(20, 30), lateFast(40, 80), lateFast(85, 90)}, {inFasts});
  });
  EXPECT_EQ(atTheEnd, (StreakLengths{2, 2}));
  EXPECT_THAT(issues->messages, testing::ElementsAre("no date"));
}

TEST(StreaksCalendars, daysAreGregorianInTheZoneOfTheRightCalendar) {
  struct Hebrew : Calendar {
    std::string_view identifier() const override { return "hebrew"; }
    std::string_view timeZone() const override { return "UTC"; }
    int firstWeekday() const override { return 1; }
    std::optional<Date> adding(CalendarComponent, std::int64_t, Date) const override { return std::nullopt; }
    std::optional<Date> lastMatch(const MatchingComponents&, Date) const override { return std::nullopt; }
    std::optional<Date> startOfDay(Date) const override { return std::nullopt; }
    std::optional<Date> endOfDay(Date) const override { return std::nullopt; }
    std::optional<Date> startOfWeek(Date) const override { return std::nullopt; }
    std::optional<Date> endOfWeek(Date) const override { return std::nullopt; }
    std::optional<Date> startOfMonth(Date) const override { return std::nullopt; }
    std::optional<Date> endOfMonth(Date) const override { return std::nullopt; }
    std::optional<std::int64_t> calendarDatesBetween(Date, Date) const override { return std::nullopt; }
    std::shared_ptr<const Calendar> gregorian() const override { return nullptr; }
  };
  // 22:00 to 02:00 and 03:00 to 04:00 in UTC: two dates there, one in New York.
  const std::vector history{fast(22, 26), fast(26.5, 27)};
  auto clients = std::make_shared<Dependencies>();
  clients->currentCalendar = gregorianCalendar("America/New_York");
  clients->calendar = gregorianCalendar("UTC");
  EXPECT_EQ(withDependencies(clients, [&] { return streaks(history, {days}); }), (StreakLengths{2, 2}));
  clients->calendar = std::make_shared<Hebrew>();
  EXPECT_EQ(withDependencies(clients, [&] { return streaks(history, {days}); }), (StreakLengths{1, 1}));
}

}  // namespace
}  // namespace mivo
