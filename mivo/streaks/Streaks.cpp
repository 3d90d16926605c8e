// SPDX-License-Identifier: MIT
#include "mivo/streaks/Streaks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "mivo/platform/Dependencies.h"
#include "mivo/streaks/Streak.h"

namespace mivo {
namespace {

using Fast = FinishedFastingDataEntry;
using Fasts = std::span<const Fast>;

// Without a branch.
bool counts(const Fast& fast, bool ignoresGoal) {
  return ignoresGoal | !(secondsBetween(fast.start, fast.end) < static_cast<double>(fast.goalSeconds));
}

// The least and the greatest of the instants that a calendar would be asked about. It answers for all dates of some
// years, so where it answers for these two it answers for all between them.
struct Extent {
  Date start;              // of the first fast
  Date firstEnd, lastEnd;  // of all fasts
};

Extent extent(Fasts byStart) {
  constexpr std::size_t lanes = 4;  // side by side, so that no comparison waits for the one before it
  std::array<double, lanes> firstEnds, lastEnds;
  firstEnds.fill(secondsSince1970(byStart.front().end));
  lastEnds = firstEnds;
  const auto look = [&](std::size_t lane, const Fast& fast) {
    // On plain doubles: the comparison of two dates keeps the compiler from taking a minimum in one instruction.
    firstEnds[lane] = std::min(firstEnds[lane], secondsSince1970(fast.end));
    lastEnds[lane] = std::max(lastEnds[lane], secondsSince1970(fast.end));
  };
  std::size_t index = 0;
  for (; index + lanes <= byStart.size(); index += lanes)
    for (std::size_t lane = 0; lane < lanes; ++lane) look(lane, byStart[index + lane]);
  for (; index < byStart.size(); ++index) look(0, byStart[index]);
  return {byStart.front().start, dateSince1970(std::ranges::min(firstEnds)), dateSince1970(std::ranges::max(lastEnds))};
}

// When the next fast has to begin after one that ended. Elapsed time is plain addition, so the calendar is asked for
// every deadline only where it may have none.
class Deadlines {
 public:
  static constexpr double none = -std::numeric_limits<double>::infinity();

  Deadlines(std::int64_t breakHours, const Extent& extent, const Calendar& currentCalendar)
      : maxBreakHours{breakHours}, calendar{currentCalendar} {
    if (after(extent.firstEnd) != none && after(extent.lastEnd) != none)
      sureSeconds = static_cast<double>(breakHours) * secondsPerHour;
  }

  /// How long after its end the deadline of any fast is; `none` where some may have none.
  double secondsIfSure() const { return sureSeconds; }

  /// In seconds since 1970: an optional date would take the way through memory.
  double after(Date end) const {
    if (sureSeconds != none) return secondsSince1970(end) + sureSeconds;
    const auto deadline = calendar.adding(CalendarComponent::hour, maxBreakHours, end);
    return deadline ? secondsSince1970(*deadline) : none;
  }

 private:
  std::int64_t maxBreakHours;
  const Calendar& calendar;
  double sureSeconds = none;
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

// Whether a fast reached its goal, and whether a streak breaks before it, is hard to foresee. So some hundred fasts at
// a time are looked through without a branch: first for those that count, then for the few at which something happens.
class Block {
 public:
  static constexpr std::size_t mostFasts = 256;

  /// `before` is the last fast in front of the block that counts, and takes place 0.
  Block(const Fast& before, Fasts fasts, bool ignoresGoal) {
    counted[0] = &before;
    for (const Fast& fast : fasts) {
      counted[end] = &fast;
      end += static_cast<std::size_t>(counts(fast, ignoresGoal));
    }
  }

  /// The places before which a streak may break, or at which the walk may end.
  std::span<const std::size_t> turns(double deadlineSeconds, Date lastEnd) {
    std::size_t count = 0;
    for (std::size_t place = 1, stop = end; place < stop; ++place) {
      const double previousEnd = secondsSince1970(fast(place - 1).end);
      const bool goesOn = secondsSince1970(fast(place).start) < previousEnd + deadlineSeconds;
      places[count] = place;
      count += static_cast<std::size_t>(!goesOn | (fast(place).end == lastEnd));
    }
    return std::span{places}.first(count);
  }

  const Fast& fast(std::size_t place) const { return *counted[place]; }
  std::size_t last() const { return end - 1; }

 private:
  std::array<const Fast*, mostFasts + 1> counted;
  std::array<std::size_t, mostFasts> places;
  std::size_t end = 1;
};

class Walk {
 public:
  Walk(const Fast& first, const Fast& last, const Deadlines& toStart, ClosedStreaks& found)
      : streakStart{first.start}, lastEnd{last.end}, deadlines{toStart}, closed{found} {}

  /// From a fast that counts to the next one, which `fastsBefore` of them precede; false where the walk ends.
  bool turn(const Fast& previous, const Fast& next, std::int64_t fastsBefore) {
    const std::int64_t fasts = fastsBefore - notInStreak;
    if (const double deadline = deadlines.after(previous.end); deadline == Deadlines::none) {
      reportIssue("no date");
      closed.close(streakStart, previous.end, fasts - 1);
      streakStart = next.start;
      ++notInStreak;
    } else if (!(secondsSince1970(next.start) < deadline)) {
      closed.close(streakStart, previous.end, fasts);
      streakStart = next.start;
      notInStreak = fastsBefore;
    } else if (next.end == lastEnd) {
      closed.close(streakStart, next.end, fasts + 1);
      return false;
    }
    return true;
  }

 private:
  Date streakStart, lastEnd;
  std::int64_t notInStreak = 0;
  const Deadlines& deadlines;
  ClosedStreaks& closed;
};

void walk(Fasts byStart, bool ignoresGoal, const Deadlines& deadlines, ClosedStreaks& closed) {
  Walk walk{byStart.front(), byStart.back(), deadlines, closed};
  const Fast* before = &byStart.front();
  std::size_t fastsBefore = 0;
  for (Fasts rest = byStart.subspan(1); !rest.empty();) {
    const Fasts fasts = rest.first(std::min(rest.size(), Block::mostFasts));
    rest = rest.subspan(fasts.size());
    Block block{*before, fasts, ignoresGoal};
    for (const std::size_t place : block.turns(deadlines.secondsIfSure(), byStart.back().end))
      if (!walk.turn(block.fast(place - 1), block.fast(place), static_cast<std::int64_t>(fastsBefore + place))) return;
    before = &block.fast(block.last());
    fastsBefore += block.last();
  }
}

}  // namespace

StreakLengths streaks(Fasts fasts, const StreakSettings& settings) {
  const auto& currentCalendar = dependency(&Dependencies::currentCalendar);
  const auto calendar = streakCalendar(dependency(&Dependencies::calendar), currentCalendar);
  return streaks(FastsByStart{fasts}, settings, *calendar, *currentCalendar);
}

StreakLengths streaks(const FastsByStart& fasts, const StreakSettings& settings, const Calendar& calendar,
                      const Calendar& currentCalendar) {
  const auto isCounted = [&settings](const Fast& fast) { return counts(fast, settings.ignoreFastGoal); };
  const Fasts all = fasts.list();
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
