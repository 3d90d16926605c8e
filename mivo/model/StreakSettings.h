// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "mivo/model/Record.h"

namespace mivo {

/// What the user counts as a streak.
struct StreakSettings {
  enum class CountingEntity { days, fasts };

  CountingEntity countingEntity = CountingEntity::days;
  bool ignoreFastGoal = false;      ///< true: fasts that missed their goal count too
  std::int64_t maxBreakHours = 24;  ///< a fast that begins this long after the last one ended breaks the streak
  bool operator==(const StreakSettings&) const = default;
};

template <RecordOf<StreakSettings> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [countingEntity, ignoreFastGoal, maxBreakHours] = record;
  visit("countingEntity", countingEntity);
  visit("ignoreFastGoal", ignoreFastGoal);
  visit("maxBreakHours", maxBreakHours);
}

}  // namespace mivo
