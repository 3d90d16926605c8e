// SPDX-License-Identifier: MIT
#include "mivo/fasting/GoalTime.h"

#include <gtest/gtest.h>

#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

struct TypedRow {
  const char* name;
  std::string text;
  std::optional<double> minutes;
};
void PrintTo(const TypedRow& row, std::ostream* out) { *out << row.name; }

class TypedGoal : public testing::TestWithParam<TypedRow> {};

TEST_P(TypedGoal, isHours) {
  const auto seconds = parseGoalTime(GetParam().text);
  EXPECT_EQ(seconds, GetParam().minutes ? std::optional{*GetParam().minutes * 60} : std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TypedGoal,
    testing::Values(TypedRow{"whole", "17", 1020}, TypedRow{"point", "16.5", 990}, TypedRow{"comma", "16,25", 975},
                    TypedRow{"minutes", "16:30", 990}, TypedRow{"blanksAndUnit", " 16:05 h ", 965},
                    TypedRow{"unitAtOnce", "20h", 1200}, TypedRow{"roundedToMinutes", "0.3333", 20},
                    TypedRow{"aYear", "8784", 527040}, TypedRow{"moreThanAYear", "8784:01", {}},
                    TypedRow{"noTime", "0", {}}, TypedRow{"lessThanAMinute", "0.008", {}},
                    TypedRow{"halfAMinute", "0.0084", 1}, TypedRow{"nothing", "", {}}, TypedRow{"unitAlone", "h", {}},
                    TypedRow{"sixtyMinutes", "16:60", {}}, TypedRow{"oneDigitOfMinutes", "16:5", {}},
                    TypedRow{"nothingBehindThePoint", "16.", {}}, TypedRow{"tooManyDigits", "00016", {}},
                    TypedRow{"negative", "-16", {}}, TypedRow{"words", "sixteen", {}}, TypedRow{"twoUnits", "16hh", {}},
                    TypedRow{"blankInside", "1 6", {}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(GoalText, namesMinutesOnlyWhereThereAreSome) {
  const tests::EnglishHoursAndMinutes hourMin;
  const tests::EnglishHours hour;
  EXPECT_EQ(goalText(16 * 3600, hourMin, hour), "16h");
  EXPECT_EQ(goalText(16 * 3600 + 59, hourMin, hour), "16h");
  EXPECT_EQ(goalText(16 * 3600 + 60, hourMin, hour), "16h 1m");
}

TEST(GoalTimeText, isReadBack) {
  EXPECT_EQ(goalTimeText(16 * 3600), "16");
  EXPECT_EQ(goalTimeText(16 * 3600 + 5 * 60), "16:05");
  for (const double minutes : {1, 59, 60, 61, 990, 1439})
    EXPECT_EQ(parseGoalTime(goalTimeText(minutes * 60)), minutes * 60);
}

}  // namespace
}  // namespace mivo
