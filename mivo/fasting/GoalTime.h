// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "mivo/platform/Formatters.h"

namespace mivo {

/// The longest goal that can be typed: a week. Files may bring longer ones.
inline constexpr int mostTypedGoalHours = 168;

/// A goal as people type it, in seconds, to the minute: "17", "17 h" and "16.5" or "16,5" are hours, "16:30" hours and
/// minutes; 0 is no goal. Nothing for another text and for more than `mostTypedGoalHours`.
std::optional<std::int64_t> parseGoal(std::string_view text);

/// "16h", "16h 30m": by one formatter for whole hours, and one for hours and minutes.
std::string goalText(double seconds, const DurationFormatter& hours, const DurationFormatter& hoursAndMinutes);

/// For a field to type in: "16:30"; "16" where no minutes are left over.
std::string typedGoal(double seconds);

}  // namespace mivo
