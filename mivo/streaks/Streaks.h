// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

#include "mivo/model/Fasts.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/platform/Calendar.h"
#include "mivo/streaks/FastsByStart.h"

namespace mivo {

/// Lengths of streaks, in calendar dates or in fasts as the settings say.
struct StreakLengths {
  std::int64_t current = 0;  ///< of the last streak, whether or not it reaches today
  std::int64_t max = 0;      ///< of the longest one
  bool operator==(const StreakLengths&) const = default;
};

/// The current and the longest streak of a history: runs of fasts each of which begins before the deadline that the one
/// before it set, `maxBreakHours` of elapsed time after its end. With the current dependencies' calendars.
///
/// fasts   in any order; those that missed their goal are left out unless the settings say otherwise. None gives 0 and
///         0, a single one 1 and 1, however many dates it spans.
/// Errors  a deadline outside the years 1 to 9999 is reported as "no date" and breaks the streak.
/// Cost    O(n), 3 ns a fast where they are in order; the calendar is asked only about streaks that can be the
///         longest or the last. Thread: any.
///
/// The walk ends at the first fast that ends when the last one does, and a last fast that a long break separates from
/// the rest is in no streak at all. Both are meant.
StreakLengths streaks(std::span<const FinishedFastingDataEntry> fasts, const StreakSettings& settings);

/// The same with the calendars given: streak days are counted on `calendar`, which is Gregorian (see `streakCalendar`),
/// and deadlines are set by `currentCalendar`.
StreakLengths streaks(const FastsByStart& fasts, const StreakSettings& settings, const Calendar& calendar,
                      const Calendar& currentCalendar);

}  // namespace mivo
