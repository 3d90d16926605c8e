// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "mivo/platform/Formatters.h"

namespace mivo {

/// A goal as people type it, in seconds: "17" and "16.5" or "16,5" are hours, "16:30" hours and minutes; an "h" may
/// follow. Whole minutes. Nothing for another text, for no time at all and for more than a year of hours.
std::optional<double> parseGoalTime(std::string_view text);

/// "16h", "16h 30m", in the user's language.
std::string goalText(double seconds, const DurationFormatter& hourMin, const DurationFormatter& hour);

/// For a field to type in: "16:30"; "16" where no minutes are left over. What `parseGoalTime` reads back.
std::string goalTimeText(double seconds);

}  // namespace mivo
