// SPDX-License-Identifier: MIT
#include "mivo/statistics/ScreenInput.h"

#include "mivo/statistics/AddWeightForm.h"
#include "mivo/store/Print.h"
#include "tests/statistics/StatisticsWorld.h"

namespace mivo {
namespace {

class InputOfAState : public tests::StatisticsTest {};

TEST_F(InputOfAState, takesEachThingFromItsPlace) {
  StatisticsFeature::State state = emptyState();
  state.stats.fastingChartState.now = dateSince1970(1782907200);  // a Wednesday
  state.timeRange = TimeRange::week;
  state.currentTipID = "streaks";
  state.showHealthKitCard = true;
  state.streakSettings = StreakSettings{.countingEntity = StreakSettings::CountingEntity::fasts};
  state.goalWeightCardState.goalInKg = 70;
  state.goalWeightCardState.weightUnit = WeightUnit::pounds;
  state.addWeightLogState.problem = AddWeightLogFeature::Problem::notAWeight;

  const ScreenInput input = screenInput(state);
  EXPECT_EQ(&input.stats, &state.stats);
  EXPECT_EQ(&input.dashboardSettings, &state.dashboardSettings);
  EXPECT_EQ(input.timeRange, TimeRange::week);
  EXPECT_EQ(input.now, world.clock->now());
  EXPECT_EQ(input.tip, (Tip{"streaks", "Title", "Message"}));
  EXPECT_TRUE(input.showHealthKitCard);
  EXPECT_EQ(input.countingEntity, StreakSettings::CountingEntity::fasts);
  EXPECT_EQ(input.daysOfThisRange, 3) << "the averages are as old as the bars";
  EXPECT_EQ(input.goalWeightInKg, 70);
  EXPECT_EQ(input.weightUnit, WeightUnit::pounds);
  EXPECT_EQ(input.weightProblem, problemText(state.addWeightLogState, tests::EnglishTexts{}));
  EXPECT_NE(input.weightProblem, "");
  EXPECT_EQ(input.platformVersion, 17);
}

TEST_F(InputOfAState, asksForNoTipWhereNoneIsCurrent) {
  const StatisticsFeature::State state = emptyState();
  EXPECT_EQ(screenInput(state).tip, std::nullopt);
}

}  // namespace
}  // namespace mivo
