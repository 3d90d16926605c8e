// SPDX-License-Identifier: MIT
#include "mivo/fasting/GoalTime.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

struct GoalRow {
  const char* name;
  const char* typed;
  std::optional<std::int64_t> seconds;
};
void PrintTo(const GoalRow& row, std::ostream* out) { *out << row.name; }
class ParsedGoal : public testing::TestWithParam<GoalRow> {};

TEST_P(ParsedGoal, isHoursOrHoursAndMinutes) { EXPECT_EQ(parseGoal(GetParam().typed), GetParam().seconds); }

INSTANTIATE_TEST_SUITE_P(
    Rows, ParsedGoal,
    testing::Values(GoalRow{"hours", "17", 61200}, GoalRow{"unit", " 17 h ", 61200},
                    GoalRow{"unitAtOnce", "17h", 61200}, GoalRow{"point", "16.5", 59400},
                    GoalRow{"comma", "16,5", 59400}, GoalRow{"minutes", "16:30", 59400},
                    GoalRow{"toTheMinute", "0.333333333333", 1200}, GoalRow{"none", "0", 0},
                    GoalRow{"week", "168", 604800}, GoalRow{"aMinuteMore", "168:01", std::nullopt},
                    GoalRow{"slipOfThePen", "1613", std::nullopt}, GoalRow{"empty", "", std::nullopt},
                    GoalRow{"unitAlone", "h", std::nullopt}, GoalRow{"word", "all day", std::nullopt},
                    GoalRow{"negative", "-1", std::nullopt}, GoalRow{"infinite", "inf", std::nullopt},
                    GoalRow{"sixtyMinutes", "16:60", std::nullopt}, GoalRow{"oneDigitOfMinutes", "16:3", std::nullopt},
                    GoalRow{"noHours", ":30", std::nullopt}, GoalRow{"signedMinutes", "16:-1", std::nullopt},
                    GoalRow{"twoColons", "1:30:00", std::nullopt}, GoalRow{"twoPoints", "1.5.0", std::nullopt},
                    GoalRow{"nothingAfterThePoint", "16.", std::nullopt}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(GoalText, namesMinutesWhereThereAreAny) {
  const tests::EnglishHours hours;
  const tests::EnglishHoursAndMinutes both;
  EXPECT_EQ(goalText(57600, hours, both), "16h");
  EXPECT_EQ(goalText(57659, hours, both), "16h") << "seconds are not shown";
  EXPECT_EQ(goalText(57660, hours, both), "16h 1m");
}

TEST(TypedGoal, readsBackAsItself) {
  for (const std::int64_t seconds : {57600, 59400, 300, 604800})
    EXPECT_EQ(parseGoal(typedGoal(double(seconds))), seconds);
  EXPECT_EQ(typedGoal(57900), "16:05");
}

}  // namespace
}  // namespace mivo
