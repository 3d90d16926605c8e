// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "mivo/achievements/BadgeSummaryFeature.h"
#include "mivo/model/Record.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"

namespace mivo {

/// One badge of a list.
struct BadgeItem {
  std::int64_t threshold = 0;
  bool isEarned = false;
  std::string number;  ///< "25", on the badge
  std::string label;   ///< "25 fasts", below it
  bool operator==(const BadgeItem&) const = default;
};

template <RecordOf<BadgeItem> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [threshold, isEarned, number, label] = record;
  visit("threshold", threshold);
  visit("isEarned", isEarned);
  visit("number", number);
  visit("label", label);
}

/// How far the user has come in one family of badges, and all its badges.
struct BadgeFamilyPage {
  std::string title;
  std::string count, countLabel;  ///< "239 fasts", "Number of fasts"
  std::string remaining;          ///< "11 more to 250"; "All badges earned"
  std::string allLabel;           ///< "All 11"
  std::string spoken;             ///< the family in one sentence, for who does not see it
  double fraction = 0;            ///< of the way to the next badge, 0 to 1
  BadgeItem present;              ///< the best one earned, or the first
  std::vector<BadgeItem> all;
  std::vector<BadgeItem> around;  ///< five around the present one
  bool operator==(const BadgeFamilyPage&) const = default;
};

template <RecordOf<BadgeFamilyPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, count, countLabel, remaining, allLabel, spoken, fraction, present, all, around] = record;
  visit("title", title);
  visit("count", count);
  visit("countLabel", countLabel);
  visit("remaining", remaining);
  visit("allLabel", allLabel);
  visit("spoken", spoken);
  visit("fraction", fraction);
  visit("present", present);
  visit("all", all);
  visit("around", around);
}

/// The lists of all badges of a family.
enum class BadgeList { milestones, streaks };

/// The screen of all badges.
struct BadgesPage {
  std::string title;
  BadgeFamilyPage milestones, streaks;
  std::optional<BadgeList> list = {};  ///< the one that is open
  bool operator==(const BadgesPage&) const = default;
};

template <RecordOf<BadgesPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, milestones, streaks, list] = record;
  visit("title", title);
  visit("milestones", milestones);
  visit("streaks", streaks);
  visit("list", list);
}

/// Every text, number and flag of the screen of badges; streaks are counted in `entity`. Pure; a few dozen texts.
/// Thread: any.
BadgesPage composeBadges(const BadgeSummaryFeature::State& state, StreakSettings::CountingEntity entity,
                         const TextLookup& texts, const NumberFormatter& numbers);

}  // namespace mivo
