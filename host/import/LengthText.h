// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace mivo::host {

/// The length of a fast as tables write it, in seconds:
///
///     readLengthText("16:30", {});          // 59400; also "16:30:00", "16h 30m", "16 hours 30 minutes", "45m"
///     readLengthText("16.5", 3600);         // 59400: a number in the unit of its column, to the second
///
/// A number needs a unit. Its sign may be a comma; a comma before three digits at the end may part thousands and is
/// refused. Nothing for any other text, and for what is not finite.
std::optional<double> readLengthText(std::string_view text, std::optional<double> secondsPerUnit);

/// A goal: the same, where "16:8" is 16 hours of fasting and 8 of eating. Nothing for more than ten thousand years.
std::optional<std::int64_t> readGoalText(std::string_view text, double secondsPerUnit);

}  // namespace mivo::host
