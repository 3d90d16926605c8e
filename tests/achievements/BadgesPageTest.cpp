// SPDX-License-Identifier: MIT
#include "mivo/achievements/BadgesPage.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "mivo/achievements/BadgeCardState.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using Entity = StreakSettings::CountingEntity;
using Destination = BadgeSummaryFeature::Destination;
using Numbers = std::vector<std::int64_t>;

BadgesPage page(std::int64_t totalFasts, std::int64_t maxStreak = 0, Entity entity = Entity::days,
                Presentation<Destination::State> list = std::nullopt) {
  return composeBadges({.totalFasts = totalFasts,
                        .maxStreak = maxStreak,
                        .allMilestones = badgeThresholdList(),
                        .allStreaks = badgeThresholdList(),
                        .destination = std::move(list)},
                       entity, tests::EnglishTexts{}, tests::PlainNumbers{});
}

Numbers thresholds(const std::vector<BadgeItem>& badges) {
  Numbers all;
  for (const BadgeItem& badge : badges) all.push_back(badge.threshold);
  return all;
}

struct FamilyRow {
  const char* name;
  std::int64_t count;
  BadgeItem present;
  Numbers around;
  std::string remaining;
  double fraction;
};
void PrintTo(const FamilyRow& row, std::ostream* out) { *out << row.name; }
class BadgeFamily : public testing::TestWithParam<FamilyRow> {};

TEST_P(BadgeFamily, showsTheBestBadgeAmongFive) {
  const FamilyRow& row = GetParam();
  const BadgeFamilyPage family = page(row.count).milestones;
  EXPECT_EQ(family.present, row.present);
  EXPECT_EQ(thresholds(family.around), row.around);
  EXPECT_EQ(family.remaining, row.remaining);
  EXPECT_DOUBLE_EQ(family.fraction, row.fraction);
  EXPECT_EQ(family.all.size(), 11u);
  for (const BadgeItem& badge : family.all) EXPECT_EQ(badge.isEarned, badge.threshold <= row.count) << badge.label;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadgeFamily,
    testing::Values(
        FamilyRow{"none", 0, {1, false, "1", "1 fast"}, {1, 5, 10, 25, 50}, "1 more to 1", 0},
        FamilyRow{"first", 1, {1, true, "1", "1 fast"}, {1, 5, 10, 25, 50}, "4 more to 5", 0.2},
        FamilyRow{"third", 10, {10, true, "10", "10 fasts"}, {1, 5, 10, 25, 50}, "15 more to 25", 0.4},
        FamilyRow{"fourth", 40, {25, true, "25", "25 fasts"}, {5, 10, 25, 50, 100}, "10 more to 50", 0.8},
        FamilyRow{"lastButOne",
                  4999,
                  {2500, true, "2500", "2500 fasts"},
                  {250, 500, 1000, 2500, 5000},
                  "1 more to 5000",
                  0.9998},
        FamilyRow{
            "all", 5000, {5000, true, "5000", "5000 fasts"}, {250, 500, 1000, 2500, 5000}, "All badges earned", 1}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(BadgesPage, countsStreaksInWhatTheUserChose) {
  const BadgesPage days = page(7, 1, Entity::days), fasts = page(7, 3, Entity::fasts);
  EXPECT_EQ(days.milestones.count, "7 fasts");
  EXPECT_EQ(days.streaks.count, "1 day");
  EXPECT_EQ(days.streaks.all[1].label, "5 days");
  EXPECT_EQ(fasts.streaks.count, "3 fasts");
  EXPECT_EQ(fasts.streaks.spoken, "Streaks: 3 fasts, 2 more to 5");
  EXPECT_EQ(fasts.streaks.allLabel, "All 11");
}

TEST(BadgesPage, saysWhichListIsOpen) {
  EXPECT_EQ(page(7).list, std::nullopt);
  EXPECT_EQ(page(7, 0, Entity::days, Destination::State::milestones{}).list, BadgeList::milestones);
  EXPECT_EQ(page(7, 0, Entity::days, Destination::State::streaks{}).list, BadgeList::streaks);
}

TEST(BadgesPage, isComposedOfAnyThresholds) {
  const auto few = composeBadges({.totalFasts = 2,
                                  .maxStreak = 0,
                                  .allMilestones = List<std::int64_t>{{2, 4}},
                                  .allStreaks = List<std::int64_t>{}},
                                 Entity::days, tests::EnglishTexts{}, tests::PlainNumbers{});
  EXPECT_EQ(thresholds(few.milestones.around), (Numbers{2, 4}));
  EXPECT_TRUE(few.streaks.around.empty());
}

}  // namespace
}  // namespace mivo
