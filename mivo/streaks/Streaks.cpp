// SPDX-License-Identifier: MIT
#include "mivo/streaks/Streaks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "mivo/platform/Dependencies.h"
#include "mivo/streaks/FastsByStart.h"
#include "mivo/streaks/Streak.h"

namespace mivo {
namespace {

using Fast = FinishedFastingDataEntry;
using Fasts = std::span<const Fast>;

bool counts(const Fast& fast, bool ignoresGoal) {
  return ignoresGoal || !(secondsBetween(fast.start, fast.end) < static_cast<double>(fast.goalSeconds));
}

// The least and the greatest of the instants that a calendar would be asked about. It answers for all dates of some
// years, so where it answers for these two it answers for all between them.
struct Extent {
  Date start;              // of the first fast
  Date firstEnd, lastEnd;  // of all fasts
};

Extent extent(Fasts byStart) {
  // On plain doubles: the comparison of two dates keeps the compiler from taking a minimum in one instruction.
  double firstEnd = secondsSince1970(byStart.front().end), lastEnd = firstEnd;
  for (const Fast& fast : byStart) {
    firstEnd = std::min(firstEnd, secondsSince1970(fast.end));
    lastEnd = std::max(lastEnd, secondsSince1970(fast.end));
  }
  return {byStart.front().start, dateSince1970(firstEnd), dateSince1970(lastEnd)};
}

// When the next fast has to begin after one that ended. Elapsed time is plain addition, so the calendar is asked for
// every deadline only where it may have none.
class Deadlines {
 public:
  Deadlines(std::int64_t breakHours, const Extent& extent, const Calendar& currentCalendar)
      : maxBreakHours{breakHours}, calendar{currentCalendar} {
    if (after(extent.firstEnd) && after(extent.lastEnd)) sureSeconds = static_cast<double>(breakHours) * secondsPerHour;
  }

  /// True only where there is a deadline and `start` is before it.
  bool areSurelyMet(Date end, Date start) const {
    return secondsSince1970(start) < secondsSince1970(end) + sureSeconds;
  }

  std::optional<Date> after(Date end) const {
    if (std::isfinite(sureSeconds)) return end + Duration{sureSeconds};
    return calendar.adding(CalendarComponent::hour, maxBreakHours, end);
  }

 private:
  std::int64_t maxBreakHours;
  const Calendar& calendar;
  double sureSeconds = -std::numeric_limits<double>::infinity();
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
    last = {start, end, fasts};
  }

  StreakLengths lengths() const {
    const auto streak = Streak::make(last.start, last.end, last.fasts, calendar);
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
  Closed last;  // of no length, and so no streak, until one is closed
};

// One step a fast that counts, in order of their starts.
class Walk {
 public:
  Walk(const Fast& first, const Fast& last, const Deadlines& toStart, ClosedStreaks& found)
      : streakStart{first.start}, previousEnd{first.end}, lastEnd{last.end}, deadlines{toStart}, closed{found} {}

  /// False where the walk ends.
  bool step(const DateInterval& next) {
    if (deadlines.areSurelyMet(previousEnd, next.start) && next.end != lastEnd) {
      ++counter;
    } else if (const auto deadline = deadlines.after(previousEnd); !deadline) {
      reportIssue("no date");
      closed.close(streakStart, previousEnd, counter);
      streakStart = next.start;
    } else if (++counter; next.start < *deadline) {
      if (next.end == lastEnd) return closed.close(streakStart, next.end, counter + 1), false;
    } else {
      closed.close(streakStart, previousEnd, counter);
      streakStart = next.start;
      counter = 0;
    }
    previousEnd = next.end;
    return true;
  }

 private:
  Date streakStart, previousEnd, lastEnd;
  std::int64_t counter = 0;
  const Deadlines& deadlines;
  ClosedStreaks& closed;
};

// Whether a fast reached its goal is hard to foresee, so the ones that count are gathered without a branch, some
// hundred at a time, and walked from there.
class Gathered {
 public:
  static constexpr std::size_t mostFasts = 256;

  Gathered(Fasts fasts, bool ignoresGoal) {
    for (const Fast& fast : fasts) {
      kept[count] = {fast.start, fast.end};
      count += counts(fast, ignoresGoal) ? 1 : 0;
    }
  }

  std::span<const DateInterval> list() const { return {kept.data(), count}; }

 private:
  std::array<DateInterval, mostFasts> kept;
  std::size_t count = 0;
};

void walk(Fasts byStart, bool ignoresGoal, const Deadlines& deadlines, ClosedStreaks& closed) {
  Walk walk{byStart.front(), byStart.back(), deadlines, closed};
  for (Fasts rest = byStart.subspan(1); !rest.empty();) {
    const Fasts block = rest.first(std::min(rest.size(), Gathered::mostFasts));
    rest = rest.subspan(block.size());
    const Gathered gathered{block, ignoresGoal};
    for (const DateInterval& next : gathered.list())
      if (!walk.step(next)) return;
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
  const auto isCounted = [&settings](const Fast& fast) { return counts(fast, settings.ignoreFastGoal); };
  const FastsByStart ordered{fasts};
  const Fasts all = ordered.list();
  const auto first = std::ranges::find_if(all, isCounted);
  if (first == all.end()) return {0, 0};
  const auto pastLast = std::find_if(all.rbegin(), all.rend(), isCounted).base();
  if (pastLast - first == 1) return {1, 1};

  const Fasts byStart{first, pastLast};
  const Extent reach = extent(byStart);
  ClosedStreaks closed{settings.countingEntity, reach, calendar};
  walk(byStart, settings.ignoreFastGoal, Deadlines{settings.maxBreakHours, reach, currentCalendar}, closed);
  return closed.lengths();
}

}  // namespace mivo
