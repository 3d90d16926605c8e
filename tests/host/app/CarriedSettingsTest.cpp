// SPDX-License-Identifier: MIT
#include "host/app/CarriedSettings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/app/Settings.h"
#include "host/history/Snapshot.h"
#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

std::vector<Setting> throughASnapshot(const std::vector<Setting>& settings) {
  std::vector<Setting> read;
  const tests::CountingUUIDs ids;
  EXPECT_TRUE(readSnapshot(writeSnapshot({}, settings), "a.json", ids, &read));
  return read;
}

TEST(CarriedSettings, areAllThatAPersonCanChoose) {
  const tests::MemoryDefaults chosen, chosenInGroup, other, otherGroup;
  EXPECT_TRUE(carriedSettings({chosen, chosenInGroup}).empty());
  setGoalWeight(chosen, 75);
  setWeightUnit(chosen, WeightUnit::stones);
  setGoalSeconds(chosen, 64800);
  setLanguage(chosen, "de \"DE\"");
  setFirstWeekday(chosen, 2);
  setAppearanceMode(chosen, AppearanceMode::dark);
  setTextScale(chosen, 1.25);
  setReducedMotion(chosen, true);
  chosenInGroup.setStreakSettings(
      {.countingEntity = StreakSettings::CountingEntity::fasts, .ignoreFastGoal = true, .maxBreakHours = 30});
  chosen.setValue("showSummary", false);
  chosen.setValue("showDeepKetosisHours", true);
  const auto all = chosen.values;
  setWindowState(chosen, {.size = "390x844", .tab = "settings"});
  chosen.setValue("launches", std::int64_t{3});

  const auto carried = throughASnapshot(carriedSettings({chosen, chosenInGroup}));
  EXPECT_EQ(carried.size(), all.size() + 3);
  EXPECT_EQ(choose(carried, {other, otherGroup}), carried.size());
  EXPECT_EQ(other.values, all);
  EXPECT_EQ(otherGroup.values, chosenInGroup.values);
}

TEST(CarriedSettings, leaveOutWhatIsUnknownOrOfAnotherKind) {
  const tests::MemoryDefaults defaults;
  EXPECT_EQ(choose(std::vector<Setting>{{"password", std::string{"x"}},
                                        {"windowTab", std::string{"settings"}},
                                        {"textScale", std::string{"2"}},
                                        {"showSummary", std::int64_t{1}}},
                   {defaults, defaults}),
            0u);
  EXPECT_THAT(defaults.values, testing::IsEmpty());
}

}  // namespace
}  // namespace mivo::host
