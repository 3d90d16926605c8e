// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>

#include "host/history/History.h"
#include "host/reminders/ReminderSettings.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// Something to tell the user, once.
struct Reminder {
  ReminderKind kind = ReminderKind::goal;
  UUID fast;            ///< the one that runs, or that ended last
  Date due;             ///< when it came to pass, or will
  double duration = 0;  ///< of the goal or the eating window, in seconds
  bool operator==(const Reminder&) const = default;
};

/// How long after it was due a reminder is still told, in seconds: a machine that was off over night tells of a goal in
/// the morning. Within half a day the time alone says when it was. An eating window that ended long ago is no news.
double tellableFor(ReminderKind kind);

/// Which fasts the user was told of already.
struct ToldFasts {
  std::optional<UUID> goal = {}, eatingWindow = {};
};

/// As the settings have them, see `setToldFast`.
ToldFasts toldFasts(const UserDefaults& defaults);

/// What to tell the user next: at once where `due` is not after `now`, and else at `due`, unless the history, the
/// settings or the clock have changed by then. Nothing where there is nothing to wait for.
///
///     const auto next = nextReminder(history.fasts, settings, told, now);
///     if (next && next->due <= now) tell(*next);
///
/// It is worked out from the records alone, so that neither a restart nor a sleep loses it. A fast without goal reaches
/// none; a running one that begins after `now` reaches it later. The eating window runs from the last end of a fast
/// while none is running. The one before it is the last break between fasts of half an hour or more: a shorter one is
/// a fast that was stopped by mistake. Where that break took more than a day it was no eating window, and nothing is
/// told.
///
/// fasts   by start.   Errors: none.   Cost: O(n), no allocation.   Thread: any.
std::optional<Reminder> nextReminder(std::span<const FastRecord> fasts, const ReminderSettings& settings,
                                     const ToldFasts& told, Date now);

}  // namespace mivo::host
