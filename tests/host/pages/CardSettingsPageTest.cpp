// SPDX-License-Identifier: MIT
#include "host/pages/CardSettingsPage.h"

#include <gtest/gtest.h>

#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

using Flags = DashboardSettingsFeature::State;

CardSettingsPage page(const Flags& flags, const StreakSettings& streaks = {}) {
  const tests::Pages pages;
  return composeCardSettings(flags, streaks, pages.at(tests::utc("2026-03-01 12:00")));
}

auto& rowsOf(auto& page, CardGroup group) {
  if (group == CardGroup::cards) return page.cards;
  return group == CardGroup::charts ? page.charts : page.trends;
}

TEST(CardSettingsPage, switchesEveryCardAloneAndBack) {
  const Flags before;
  int switched = 0;
  for (const CardGroup group : {CardGroup::cards, CardGroup::charts, CardGroup::trends}) {
    const CardSettingsPage shown = page(before);
    const auto count = std::ssize(rowsOf(shown, group));
    for (std::int64_t row = 0; row < count; ++row, ++switched) {
      const Flags after = toggled(before, group, row);
      CardSettingsPage expected = shown;
      auto& one = rowsOf(expected, group)[static_cast<std::size_t>(row)];
      one.isShown = !one.isShown;
      EXPECT_EQ(page(after), expected) << one.title;
      EXPECT_EQ(toggled(after, group, row), before) << one.title;
    }
  }
  int flags = 0;
  fields(before, [&flags](std::string_view, const auto&) { ++flags; });
  EXPECT_EQ(switched, flags) << "no card without a switch";
}

TEST(CardSettingsPage, namesTheHoursAndTheColourOfAZone) {
  const CardSettingsPage shown = page({});
  EXPECT_EQ(shown.trends[3], (CardSwitch{"Catabolic", "4–16h", "catabolic", true}));
  EXPECT_EQ(shown.trends[6], (CardSwitch{"Deep Ketosis", "72h+", "deepKetosis", false}));
  EXPECT_EQ(shown.trends[0], (CardSwitch{"Fasting", "", "fasting", true}));
  EXPECT_EQ(shown.charts[2], (CardSwitch{"Weight", "", "weight", true}));
  EXPECT_EQ(shown.cards[0], (CardSwitch{"Summary", "", "", true}));
}

TEST(CardSettingsPage, tellsWhatCountsAsAStreak) {
  const StreakSettings chosen{
      .countingEntity = StreakSettings::CountingEntity::fasts, .ignoreFastGoal = true, .maxBreakHours = 100'000};
  const CardSettingsPage shown = page({}, chosen);
  EXPECT_EQ(shown.counted.chosen, 1);
  EXPECT_EQ(countingEntityAt(shown.counted.chosen), chosen.countingEntity);
  EXPECT_TRUE(shown.countsBelowGoal);
  EXPECT_EQ(shown.longestBreak, (Steps{"Longest break", 8760, 1, 8760, 1})) << "no longer than a year";
  EXPECT_EQ(page({}, {.maxBreakHours = 0}).longestBreak.value, 1);
  EXPECT_EQ(page({}).counted.chosen, 0);
}

}  // namespace
}  // namespace mivo::host
