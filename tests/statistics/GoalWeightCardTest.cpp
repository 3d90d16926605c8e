// SPDX-License-Identifier: MIT
#include "mivo/statistics/GoalWeightSheet.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/TestStore.h"

namespace mivo {
namespace {

using Feature = GoalWeightCardFeature;
using Kind = GoalOutlook::Kind;
using Weight = std::optional<double>;

constexpr Date now = dateSince1970(1782907200);

Feature::State state(Weight goal, Weight current, Weight trend) {
  const std::optional<ClosedDateRange> range{{now - Duration{80 * secondsPerDay}, now}};
  return {.goalInKg = goal,
          .currentWeightInKg = current,
          .weightTrendInKg = trend,
          .trendTimeRange = trend ? range : std::nullopt};
}

struct OutlookRow {
  const char* name;
  Weight goal, current, trend;  // the trend is that of 80 days
  Kind kind;
  double days, fraction;  // -1 for none
};
void PrintTo(const OutlookRow& row, std::ostream* out) { *out << row.name; }
class Outlook : public testing::TestWithParam<OutlookRow> {};

TEST_P(Outlook, saysWhenOrWhyNot) {
  const OutlookRow& row = GetParam();
  const auto card = state(row.goal, row.current, row.trend);
  const GoalOutlook outlook = goalOutlook(card, now);
  EXPECT_EQ(outlook.kind, row.kind);
  EXPECT_NEAR(outlook.date ? secondsBetween(now, *outlook.date) / secondsPerDay : -1, row.days, 1e-6);
  EXPECT_NEAR(goalFraction(card).value_or(-1), row.fraction, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Outlook,
    testing::Values(OutlookRow{"losing", 70, 76, -4, Kind::reachesGoal, 120, 0.4},
                    OutlookRow{"gaining", 82, 80, 2, Kind::reachesGoal, 80, 0.5},
                    OutlookRow{"atTheGoal", 70.04, 70, -4, Kind::goalReached, -1, 1},
                    OutlookRow{"justAtTheGoal", 0.1, 0.05, std::nullopt, Kind::goalReached, -1, -1},
                    OutlookRow{"leavingTheGoal", 70, 72, 2, Kind::movingAway, -1, 0},
                    OutlookRow{"inTenYears", 75.70703125, 70, 0.125, Kind::reachesGoal, 3652.5, 0.125 / 5.83203125},
                    OutlookRow{"passedIt", 72, 70, -4, Kind::goalReached, -1, 1},
                    OutlookRow{"movingAway", 70, 76, 4, Kind::movingAway, -1, 0},
                    OutlookRow{"slow", 70, 76, -0.1, Kind::tooFar, -1, 0.1 / 6.1},
                    OutlookRow{"flat", 70, 76, 0, Kind::noTrend, -1, 0},
                    OutlookRow{"noTrend", 70, 76, std::nullopt, Kind::noTrend, -1, -1},
                    OutlookRow{"noTrendAtTheGoal", 76, 76, std::nullopt, Kind::goalReached, -1, -1},
                    OutlookRow{"noWeight", 70, std::nullopt, std::nullopt, Kind::noWeight, -1, -1},
                    OutlookRow{"noGoal", std::nullopt, 76, -4, Kind::noGoal, -1, -1}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(GoalWeightCard, readsAGoalAsItIsTyped) {
  const tests::TestWorld world;
  const DependencyScope scope = world.enter();
  using Action = Feature::Action;
  tests::TestStore<Feature> store{world, Feature::State{.weightUnit = WeightUnit::pounds}, Feature{}};
  const auto sheet = [&store] {
    return composeGoalWeightSheet(store.state(), tests::EnglishTexts{}, tests::PlainNumbers{}, tests::PlainMasses{});
  };
  EXPECT_EQ(sheet(), (GoalWeightSheet{"Goal weight", "", "lb", "", "Save", ""}));
  store.send(Action::didTypeGoal{"150"}, [](Feature::State& card) { card.goalInKg = 150 * 0.45359237; });
  EXPECT_EQ(sheet(), (GoalWeightSheet{"Goal weight", "150.0", "lb", "", "Save", "Remove goal"}));
  store.send(Action::didTypeGoal{"light"}, [](Feature::State& card) { card.hasGoalProblem = true; });
  EXPECT_EQ(sheet().problem, "Type up to 700 kg or 1543 lb, such as 81.4.");
  EXPECT_EQ(sheet().fieldText, "150.0") << "the goal stays";
  store.send(Action::didOpenGoal{}, [](Feature::State& card) { card.hasGoalProblem = false; });
  store.send(Action::didTypeGoal{" "}, [](Feature::State& card) { card.goalInKg = std::nullopt; });
}

TEST(GoalWeightCard, seesNoTrendInNoTime) {
  Feature::State card = state(70, 76, -4);
  card.trendTimeRange = ClosedDateRange{now, now};
  EXPECT_EQ(goalOutlook(card, now).kind, Kind::noTrend);
  EXPECT_EQ(goalFraction(card), std::nullopt);
}

TEST(GoalWeightCard, takesAGoalThatIsAWeightAndDropsIt) {
  const tests::TestWorld world;
  const DependencyScope scope = world.enter();
  tests::TestStore<Feature> store{world, Feature::State{}, Feature{}};
  store.send(Feature::Action::didSetGoal{72.5}, [](Feature::State& card) { card.goalInKg = 72.5; });
  for (const double noWeight : {-1.0, 0.0, 1000.5}) store.send(Feature::Action::didSetGoal{noWeight});
  store.send(Feature::Action::didSetGoal{std::nullopt}, [](Feature::State& card) { card.goalInKg = std::nullopt; });
}

}  // namespace
}  // namespace mivo
