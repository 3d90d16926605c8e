// SPDX-License-Identifier: MIT
#include "mivo/achievements/Badges.h"

#include <algorithm>
#include <cstddef>

namespace mivo {
namespace {

struct StreakColors {
  Color start, end, background;
};

constexpr std::array<StreakColors, 4> streakColors{{
    {{0xFF, 0xE0, 0x8A}, {0xF2, 0x70, 0x2B}, {0x3A, 0x28, 0x20}},
    {{0xFF, 0xC6, 0xA8}, {0xE8, 0x41, 0x6F}, {0x3C, 0x1F, 0x2C}},
    {{0xF0, 0xC6, 0xFF}, {0x93, 0x55, 0xE8}, {0x2E, 0x23, 0x50}},
    {{0xC9, 0xF5, 0xFF}, {0x2E, 0x9B, 0xEA}, {0x14, 0x30, 0x49}},
}};

double grayscale(std::int64_t threshold, std::int64_t count) { return count >= threshold ? 0 : 1; }

}  // namespace

std::string countedText(std::int64_t count, StreakSettings::CountingEntity entity, const TextLookup& texts,
                        const NumberFormatter& numbers) {
  const std::string counted = entity == StreakSettings::CountingEntity::days
                                  ? texts.plural("{1} day", "{1} days", count)
                                  : texts.plural("{1} fast", "{1} fasts", count);
  return filledIn(counted, {numbers.string(count)});
}

int badgeRank(std::int64_t threshold) {
  const auto above = std::ranges::upper_bound(badgeThresholds, threshold);
  return std::max(0, static_cast<int>(above - badgeThresholds.begin()) - 1);
}

MilestoneBadge milestoneBadge(std::int64_t fastCount, std::int64_t totalFasts, double size, bool showLabel,
                              const TextLookup& texts, const NumberFormatter& numbers) {
  return {.size = size,
          .fastCount = fastCount,
          .totalFasts = totalFasts,
          .grayscale = grayscale(fastCount, totalFasts),
          .starCount = badgeMarkCount(badgeRank(fastCount)),
          .labelText = countedText(fastCount, StreakSettings::CountingEntity::fasts, texts, numbers),
          .showLabel = showLabel};
}

StreakBadge streakBadge(std::int64_t streakCount, std::int64_t maxStreak, double size, bool showLabel) {
  const int rank = badgeRank(streakCount);
  const StreakColors& colors = streakColors[static_cast<std::size_t>(badgeTier(rank))];
  return {.flameCount = badgeMarkCount(rank),
          .flameColorStart = colors.start,
          .flameColorEnd = colors.end,
          .backgroundColor = colors.background,
          .streakCount = streakCount,
          .maxStreak = maxStreak,
          .size = size,
          .grayscale = grayscale(streakCount, maxStreak),
          .showLabel = showLabel};
}

double BadgeProgress::fraction() const { return next ? static_cast<double>(count) / static_cast<double>(*next) : 1; }

BadgeProgress badgeProgress(std::span<const std::int64_t> thresholds, std::int64_t count) {
  const auto next = std::ranges::upper_bound(thresholds, count);
  return {.count = std::max<std::int64_t>(0, count),
          .earnedBadges = next - thresholds.begin(),
          .next = next == thresholds.end() ? std::nullopt : std::optional{*next}};
}

std::string progressText(const BadgeProgress& progress, const TextLookup& texts, const NumberFormatter& numbers) {
  if (!progress.next) return texts.text("All badges earned");
  return filledIn(texts.text("{1} of {2}"), {numbers.string(progress.count), numbers.string(*progress.next)});
}

std::string remainingText(const BadgeProgress& progress, const TextLookup& texts, const NumberFormatter& numbers) {
  if (!progress.next) return {};
  return filledIn(texts.text("{1} more to {2}"),
                  {numbers.string(*progress.next - progress.count), numbers.string(*progress.next)});
}

}  // namespace mivo
