// SPDX-License-Identifier: MIT
#include "mivo/streaks/Streaks.h"

#include <algorithm>
#include <optional>

#include "mivo/platform/Dependencies.h"
#include "mivo/streaks/FastsByStart.h"
#include "mivo/streaks/Streak.h"

namespace mivo {
namespace {

using Fast = FinishedFastingDataEntry;
using Fasts = std::span<const Fast>;

// The least and the greatest of the instants that a calendar would be asked about. It answers for all dates of some
// years, so where it answers for these two it answers for all between them.
struct Extent {
  Date start;              // of the first fast
  Date firstEnd, lastEnd;  // of all fasts
};

Extent extent(Fasts byStart) {
  Extent extent{byStart.front().start, byStart.front().end, byStart.front().end};
  for (const Fast& fast : byStart) {
    extent.firstEnd = std::min(extent.firstEnd, fast.end);
    extent.lastEnd = std::max(extent.lastEnd, fast.end);
  }
  return extent;
}

// When the next fast has to begin after one that ended. Elapsed time is plain addition, so the calendar is asked for
// every deadline only where it may have none.
class Deadlines {
 public:
  Deadlines(std::int64_t breakHours, const Extent& extent, const Calendar& currentCalendar)
      : maxBreakHours{breakHours},
        maxBreak{static_cast<double>(breakHours) * secondsPerHour},
        calendar{currentCalendar} {
    allExist = after(extent.firstEnd) && after(extent.lastEnd);
  }

  std::optional<Date> after(Date end) const {
    if (allExist) return end + maxBreak;
    return calendar.adding(CalendarComponent::hour, maxBreakHours, end);
  }

 private:
  std::int64_t maxBreakHours;
  Duration maxBreak;
  const Calendar& calendar;
  bool allExist = false;
};

// The streaks that a walk closes, of which only the longest and the last are of interest.
class ClosedStreaks {
 public:
  ClosedStreaks(StreakSettings::CountingEntity entity, const Extent& extent, const Calendar& streakDays)
      : countsDays{entity == StreakSettings::CountingEntity::days},
        calendar{streakDays},
        allCountable{calendar.calendarDatesBetween(extent.start, extent.lastEnd).has_value()} {}

  void close(Date start, Date end, std::int64_t fasts) {
    if (!(start < end)) return;
    if (!allCountable || (countsDays && canBeLongest(start, end))) {
      const auto streak = Streak::make(start, end, fasts, calendar);
      if (!streak) return;
      longest = std::max(longest, length(*streak));
    } else if (!countsDays) {
      longest = std::max(longest, fasts);
    }
    last = Closed{start, end, fasts};
  }

  StreakLengths lengths() const {
    if (!last) return {0, 0};
    const auto streak = Streak::make(last->start, last->end, last->fasts, calendar);
    return streak ? StreakLengths{length(*streak), std::max(longest, length(*streak))} : StreakLengths{};
  }

 private:
  struct Closed {
    Date start, end;
    std::int64_t fasts = 0;
  };

  std::int64_t length(const Streak& streak) const { return countsDays ? streak.days : streak.fasts; }

  bool canBeLongest(Date start, Date end) const {
    // Both ends count, the time of day decides one more, and a zone that changes sides of the date line another two.
    constexpr double datesBeyondElapsedDays = 4;
    return secondsBetween(start, end) / secondsPerDay + datesBeyondElapsedDays > static_cast<double>(longest);
  }

  bool countsDays;
  const Calendar& calendar;
  bool allCountable;
  std::int64_t longest = 0;
  std::optional<Closed> last;
};

void walk(Fasts byStart, const auto& counts, const Deadlines& deadlines, ClosedStreaks& closed) {
  const Fast& last = byStart.back();
  Date streakStart = byStart.front().start, previousEnd = byStart.front().end;
  std::int64_t counter = 0;
  for (const Fast& next : byStart.subspan(1)) {
    if (!counts(next)) continue;
    const auto deadline = deadlines.after(previousEnd);
    if (!deadline) {
      reportIssue("no date");
      closed.close(streakStart, previousEnd, counter);
      streakStart = next.start;
    } else if (++counter; next.start < *deadline) {
      if (next.end == last.end) return closed.close(streakStart, next.end, counter + 1);
    } else {
      closed.close(streakStart, previousEnd, counter);
      streakStart = next.start;
      counter = 0;
    }
    previousEnd = next.end;
  }
}

}  // namespace

StreakLengths streaks(Fasts fasts, const StreakSettings& settings) {
  const auto& currentCalendar = dependency(&Dependencies::currentCalendar);
  const auto calendar = streakCalendar(dependency(&Dependencies::calendar), currentCalendar);
  return streaks(fasts, settings, *calendar, *currentCalendar);
}

StreakLengths streaks(Fasts fasts, const StreakSettings& settings, const Calendar& calendar,
                      const Calendar& currentCalendar) {
  const auto counts = [ignoresGoal = settings.ignoreFastGoal](const Fast& fast) {
    return ignoresGoal || !(secondsBetween(fast.start, fast.end) < static_cast<double>(fast.goalSeconds));
  };
  const FastsByStart ordered{fasts};
  const Fasts all = ordered.list();
  const auto first = std::ranges::find_if(all, counts);
  if (first == all.end()) return {0, 0};
  const auto pastLast = std::find_if(all.rbegin(), all.rend(), counts).base();
  if (pastLast - first == 1) return {1, 1};

  const Fasts byStart{first, pastLast};
  const Extent reach = extent(byStart);
  ClosedStreaks closed{settings.countingEntity, reach, calendar};
  walk(byStart, counts, Deadlines{settings.maxBreakHours, reach, currentCalendar}, closed);
  return closed.lengths();
}

}  // namespace mivo
