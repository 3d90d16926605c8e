// SPDX-License-Identifier: MIT
#include "mivo/achievements/BadgesPage.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "mivo/achievements/Badges.h"

namespace mivo {
namespace {

using Entity = StreakSettings::CountingEntity;
constexpr std::size_t shownAround = 5, beforePresent = 2;

struct Family {
  std::string_view title, countLabel;
  const List<std::int64_t>& thresholds;
  std::int64_t count;
  Entity entity;
};

std::vector<BadgeItem> around(const std::vector<BadgeItem>& all, std::size_t present) {
  const std::size_t count = std::min(shownAround, all.size());
  const std::size_t first = std::min(present - std::min(present, beforePresent), all.size() - count);
  const auto begin = all.begin() + static_cast<std::ptrdiff_t>(first);
  return {begin, begin + static_cast<std::ptrdiff_t>(count)};
}

BadgeFamilyPage familyPage(const Family& family, const TextLookup& texts, const NumberFormatter& numbers) {
  const BadgeProgress progress = badgeProgress(family.thresholds.elements(), family.count);
  const auto counted = [&](std::int64_t count) { return countedText(count, family.entity, texts, numbers); };
  BadgeFamilyPage page;
  for (const std::int64_t threshold : family.thresholds)
    page.all.push_back({.threshold = threshold,
                        .isEarned = family.count >= threshold,
                        .number = numbers.string(threshold),
                        .label = counted(threshold)});
  const auto present = static_cast<std::size_t>(std::max<std::int64_t>(0, progress.earnedBadges - 1));
  if (present < page.all.size()) page.present = page.all[present];
  page.around = around(page.all, present);
  page.title = texts.text(family.title);
  page.count = counted(family.count);
  page.countLabel = texts.text(family.countLabel);
  page.remaining = progress.next ? remainingText(progress, texts, numbers) : progressText(progress, texts, numbers);
  page.allLabel =
      filledIn(texts.text("All {1}"), {numbers.string(static_cast<std::int64_t>(family.thresholds.size()))});
  page.spoken = page.title + ": " + page.count + ", " + page.remaining;
  page.fraction = progress.fraction();
  return page;
}

std::optional<BadgeList> openList(const BadgeSummaryFeature::State& state) {
  if (!state.destination) return std::nullopt;
  using Case = BadgeSummaryFeature::Destination::State;
  return std::holds_alternative<Case::milestones>(*state.destination) ? BadgeList::milestones : BadgeList::streaks;
}

}  // namespace

BadgesPage composeBadges(const BadgeSummaryFeature::State& state, Entity entity, const TextLookup& texts,
                         const NumberFormatter& numbers) {
  const Family milestones{translatable("Milestones"), translatable("Number of fasts"), state.allMilestones,
                          state.totalFasts, Entity::fasts};
  const Family streaks{translatable("Streaks"), translatable("Longest streak"), state.allStreaks, state.maxStreak,
                       entity};
  return {.title = texts.text("Badges"),
          .milestones = familyPage(milestones, texts, numbers),
          .streaks = familyPage(streaks, texts, numbers),
          .list = openList(state)};
}

}  // namespace mivo
