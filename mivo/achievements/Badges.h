// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "mivo/model/Record.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"

namespace mivo {

/// Where badges are earned: numbers of fasts for milestones, lengths for streaks. A badge is earned at or above its
/// threshold.
inline constexpr std::array<std::int64_t, 11> badgeThresholds{1, 5, 10, 25, 50, 100, 250, 500, 1000, 2500, 5000};

/// "1 day", "25 fasts": a number of what is counted.
std::string countedText(std::int64_t count, StreakSettings::CountingEntity entity, const TextLookup& texts,
                        const NumberFormatter& numbers);

/// Three badges share a tier, with one, two and three stars or flames: copper, silver, gold and aurora for milestones;
/// ember, rose, violet and blue for streaks. The rank is the badge's place in `badgeThresholds`.
constexpr int badgeTier(int rank) { return rank / 3; }
constexpr int badgeMarkCount(int rank) { return rank % 3 + 1; }

/// The place of a threshold in `badgeThresholds`; for any other number, that of the largest threshold below it, or 0.
int badgeRank(std::int64_t threshold);

/// An opaque colour, 0 to 255 a channel.
struct Color {
  std::uint8_t red = 0, green = 0, blue = 0;
  bool operator==(const Color&) const = default;
};

/// A badge for a number of fasts, ready to draw.
struct MilestoneBadge {
  double size = 0;             ///< edge of its square, points
  std::int64_t fastCount = 0;  ///< its threshold
  std::int64_t totalFasts = 0;
  double grayscale = 0;  ///< 0 earned, 1 not yet
  std::int64_t starCount = 0;
  std::string labelText;  ///< "25 fasts"
  bool showLabel = false;
  bool operator==(const MilestoneBadge&) const = default;
};

template <RecordOf<MilestoneBadge> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [size, fastCount, totalFasts, grayscale, starCount, labelText, showLabel] = record;
  visit("size", size);
  visit("fastCount", fastCount);
  visit("totalFasts", totalFasts);
  visit("grayscale", grayscale);
  visit("starCount", starCount);
  visit("labelText", labelText);
  visit("showLabel", showLabel);
}

/// A badge for the length of a streak, ready to draw. Its colours are those of its tier, earned or not.
struct StreakBadge {
  std::int64_t flameCount = 0;
  Color flameColorStart, flameColorEnd, backgroundColor;
  std::int64_t streakCount = 0;  ///< its threshold
  std::int64_t maxStreak = 0;
  double size = 0;       ///< edge of its square, points
  double grayscale = 0;  ///< 0 earned, 1 not yet
  bool showLabel = false;
  bool operator==(const StreakBadge&) const = default;
};

template <RecordOf<StreakBadge> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [flameCount, flameColorStart, flameColorEnd, backgroundColor, streakCount, maxStreak, size, grayscale,
         showLabel] = record;
  visit("flameCount", flameCount);
  visit("flameColorStart", flameColorStart);
  visit("flameColorEnd", flameColorEnd);
  visit("backgroundColor", backgroundColor);
  visit("streakCount", streakCount);
  visit("maxStreak", maxStreak);
  visit("size", size);
  visit("grayscale", grayscale);
  visit("showLabel", showLabel);
}

/// The label is made in any case; `showLabel` says whether this place shows it.
MilestoneBadge milestoneBadge(std::int64_t fastCount, std::int64_t totalFasts, double size, bool showLabel,
                              const TextLookup& texts, const NumberFormatter& numbers);
StreakBadge streakBadge(std::int64_t streakCount, std::int64_t maxStreak, double size, bool showLabel);

/// How far the user has come in a family of badges.
struct BadgeProgress {
  std::int64_t count = 0;            ///< fasts, or length of the longest streak
  std::int64_t earnedBadges = 0;     ///< how many badges are earned
  std::optional<std::int64_t> next;  ///< the threshold of the first that is not; none once all are earned

  /// How much of the way from nothing to `next` is done, 0 to 1; 1 once all are earned.
  double fraction() const;
  bool operator==(const BadgeProgress&) const = default;
};

/// thresholds  ascending, none equal. A count below zero counts as zero.
BadgeProgress badgeProgress(std::span<const std::int64_t> thresholds, std::int64_t count);

/// "7 of 10"; "All badges earned".
std::string progressText(const BadgeProgress& progress, const TextLookup& texts, const NumberFormatter& numbers);

/// "3 more to 10"; empty once all are earned.
std::string remainingText(const BadgeProgress& progress, const TextLookup& texts, const NumberFormatter& numbers);

}  // namespace mivo
