// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "mivo/achievements/Badges.h"
#include "mivo/model/Record.h"
#include "mivo/store/List.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// The thresholds as a list; every call shares the same storage.
inline const List<std::int64_t>& badgeThresholdList() {
  static const List<std::int64_t> list{std::vector<std::int64_t>(badgeThresholds.begin(), badgeThresholds.end())};
  return list;
}

/// What the badge card of the statistics screen shows.
struct BadgeCardState {
  List<std::int64_t> allMilestones = badgeThresholdList();
  List<std::int64_t> allStreaks = badgeThresholdList();
  Observed<std::int64_t> maxStreak = 0;
  Observed<std::int64_t> totalFasts = 0;
  bool operator==(const BadgeCardState&) const = default;
};

template <RecordOf<BadgeCardState> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [allMilestones, allStreaks, maxStreak, totalFasts] = record;
  visit("allMilestones", allMilestones);
  visit("allStreaks", allStreaks);
  visit("maxStreak", maxStreak);
  visit("totalFasts", totalFasts);
}

}  // namespace mivo
