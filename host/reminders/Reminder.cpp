// SPDX-License-Identifier: MIT
#include "host/reminders/Reminder.h"

namespace mivo::host {
namespace {

constexpr double shortestEatingWindow = secondsPerHour / 2, longestEatingWindow = secondsPerDay;

std::optional<Reminder> goalOf(const FastingDataEntry& running) {
  if (running.goalSeconds <= 0) return std::nullopt;
  const auto goal = static_cast<double>(running.goalSeconds);
  return Reminder{ReminderKind::goal, running.id, running.start + Duration{goal}, goal};
}

/// The last time that was spent fasting without an eating window in it, and when the one before ended.
struct LastFasting {
  Date start, end;
  UUID fast;  ///< that ends it
  std::optional<Date> endBefore = {};
};

std::optional<LastFasting> lastFasting(std::span<const FastRecord> fasts) {
  std::optional<LastFasting> last;
  for (const auto& [fast, note] : fasts) {
    if (!fast.finished || fast.finished->duration() <= 0) continue;
    const Date end = fast.finished->end;
    if (!last || secondsBetween(last->end, fast.start) >= shortestEatingWindow) {
      last = LastFasting{fast.start, end, fast.id, last ? std::optional{last->end} : std::nullopt};
    } else if (end >= last->end) {
      last->end = end;
      last->fast = fast.id;
    }
  }
  return last;
}

std::optional<double> lengthBefore(const LastFasting& last) {
  if (!last.endBefore) return std::nullopt;
  const double length = secondsBetween(*last.endBefore, last.start);
  return length <= longestEatingWindow ? std::optional{length} : std::nullopt;
}

std::optional<Reminder> eatingWindowAfter(std::span<const FastRecord> fasts, const ReminderSettings& settings) {
  const auto last = lastFasting(fasts);
  if (!last) return std::nullopt;
  const auto& hours = settings.eatingWindowHours;
  const auto length = hours ? std::optional{static_cast<double>(*hours) * secondsPerHour} : lengthBefore(*last);
  if (!length) return std::nullopt;
  return Reminder{ReminderKind::eatingWindow, last->fast, last->end + Duration{*length}, *length};
}

}  // namespace

double tellableFor(ReminderKind kind) { return (kind == ReminderKind::goal ? 12 : 2) * secondsPerHour; }

ToldFasts toldFasts(const UserDefaults& defaults) {
  return {toldFast(defaults, ReminderKind::goal), toldFast(defaults, ReminderKind::eatingWindow)};
}

std::optional<Reminder> nextReminder(std::span<const FastRecord> fasts, const ReminderSettings& settings,
                                     const ToldFasts& told, Date now) {
  const FastRecord* running = runningFast(fasts);
  if (!(running ? settings.tellsGoal : settings.tellsEatingWindow)) return std::nullopt;
  const auto next = running ? goalOf(running->fast) : eatingWindowAfter(fasts, settings);
  if (!next || next->fast == (running ? told.goal : told.eatingWindow)) return std::nullopt;
  return secondsBetween(next->due, now) <= tellableFor(next->kind) ? next : std::nullopt;
}

}  // namespace mivo::host
