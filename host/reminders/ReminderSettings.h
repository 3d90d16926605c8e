// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "mivo/model/UUID.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

enum class ReminderKind {
  goal,         ///< the running fast has reached its goal
  eatingWindow  ///< it is so long since the last fast
};

/// What the user wants to be told of; nothing before they chose.
struct ReminderSettings {
  bool tellsGoal = false, tellsEatingWindow = false;
  /// How long an eating window is to be, in whole hours; nothing for as long as the one before.
  std::optional<std::int64_t> eatingWindowHours = {};
  bool isAny() const { return tellsGoal || tellsEatingWindow; }
  bool operator==(const ReminderSettings&) const = default;
};

inline constexpr std::int64_t leastEatingWindowHours = 1, mostEatingWindowHours = 12;

/// A length that lies outside of these is as good as none.
ReminderSettings reminderSettings(const UserDefaults& defaults);
void setTellsGoal(const UserDefaults& defaults, bool isOn);
void setTellsEatingWindow(const UserDefaults& defaults, bool isOn);
void setEatingWindowHours(const UserDefaults& defaults, std::optional<std::int64_t> hours);

/// The fast that the user was told of last; nothing before the first time.
///
/// Kept among the settings and not in the history: who was told is a matter of this machine. A history that was copied
/// to another one or put back from a backup is told of there as its fasts say, and one that may not be written is told
/// of too. One fast a kind is enough, because only the fast that runs, or ended last, is ever told of.
std::optional<UUID> toldFast(const UserDefaults& defaults, ReminderKind kind);
void setToldFast(const UserDefaults& defaults, ReminderKind kind, UUID fast);

}  // namespace mivo::host
