// SPDX-License-Identifier: MIT
#include "host/pages/GoalChoice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

constexpr std::int64_t hours = 3600;

GoalChoice choiceOf(const GoalEntry& entry, const std::string& problem = {}) {
  return composeGoalChoice(entry, problem, tests::Pages{}.at({}));
}

std::string chosenOffer(const GoalChoice& choice) {
  std::string all;
  for (const GoalOffer& offer : choice.offers)
    if (offer.isChosen) all += offer.text;
  return all;
}

struct ChoiceRow {
  const char* name;
  GoalEntry entry;
  std::string chosen;
  bool isTyped;
  std::string typed;
  double seconds;
};
void PrintTo(const ChoiceRow& row, std::ostream* out) { *out << row.name; }

class GoalChoices : public testing::TestWithParam<ChoiceRow> {};

TEST_P(GoalChoices, areOfferedOrTyped) {
  const auto& row = GetParam();
  const GoalChoice choice = choiceOf(row.entry);
  EXPECT_EQ(chosenOffer(choice), row.chosen);
  EXPECT_EQ(choice.isTyped, row.isTyped);
  EXPECT_EQ(choice.typed, row.typed);
  EXPECT_EQ(choice.seconds, row.seconds);
  EXPECT_EQ(choice.problem, "");
  EXPECT_TRUE(choice.canSave);
}

const GoalEntry sixteen = goalEntry(16 * hours);
const GoalEntry nonsense = withTypedGoal(withFieldOpen(sixteen), "x");

INSTANTIATE_TEST_SUITE_P(
    Rows, GoalChoices,
    testing::Values(ChoiceRow{"usual", sixteen, "16h", false, "16", 57600},
                    ChoiceRow{"unusual", goalEntry(17 * hours), "", true, "17", 61200},
                    ChoiceRow{"none", goalEntry(0), "", true, "0", 0},
                    ChoiceRow{"usualForBeginners", goalEntry(13 * hours), "13h", false, "13", 46800},
                    ChoiceRow{"another", withUsualGoal(sixteen, 7), "24h", false, "24", 86400},
                    ChoiceRow{"aPlaceThatIsNone", withUsualGoal(sixteen, 8), "16h", false, "16", 57600},
                    ChoiceRow{"fieldOpens", withFieldOpen(sixteen), "", true, "16", 57600},
                    ChoiceRow{"typed", withTypedGoal(withFieldOpen(sixteen), "16:30"), "", true, "16:30", 59400},
                    ChoiceRow{"typedAsOffered", withTypedGoal(withFieldOpen(sixteen), "18"), "", true, "18", 64800},
                    ChoiceRow{"pickedAfterNonsense", withUsualGoal(nonsense, 5), "18h", false, "18", 64800},
                    ChoiceRow{"fieldOpensAgain", withFieldOpen(nonsense), "", true, "16", 57600}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(GoalChoice, keepsTheLastGoalWhileNonsenseIsTyped) {
  for (const char* text : {"x", "", "0", "169"}) {
    const GoalChoice choice = choiceOf(withTypedGoal(withFieldOpen(sixteen), text), "Choose a shorter goal.");
    EXPECT_FALSE(choice.canSave) << text;
    EXPECT_EQ(choice.problem, "Type up to 168 hours, such as 17 or 16:30.") << text;
    EXPECT_EQ(choice.typed, text);
    EXPECT_EQ(choice.seconds, 16 * hours);
  }
}

TEST(GoalChoice, saysHowAGoalIsTyped) {
  const GoalChoice choice = choiceOf(withFieldOpen(sixteen));
  EXPECT_EQ(choice.unit, "h");
  EXPECT_EQ(choice.example, "13:30");
  EXPECT_EQ(choice.hint, "Hours, or hours and minutes, such as 13:30.");
  EXPECT_EQ(choiceOf(nonsense).hint, "") << "its problem says more";
  EXPECT_EQ(choiceOf(sixteen).hint, "") << "nothing is typed";
}

TEST(GoalChoice, saysWhatElseIsWrongWithTheGoal) {
  const GoalChoice choice = choiceOf(sixteen, "Choose a shorter goal.");
  EXPECT_EQ(choice.problem, "Choose a shorter goal.");
  EXPECT_TRUE(choice.canSave);
}

}  // namespace
}  // namespace mivo::host
