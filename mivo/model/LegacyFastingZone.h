// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "mivo/model/Date.h"

namespace mivo {

/// What a trend row is about: the whole fasting time, the whole eating time, and the five zones by the time since a
/// fast began.
enum class LegacyFastingZone { fasting, eating, anabolic, catabolic, fatBurning, ketosis, deepKetosis };

inline constexpr std::array allFastingZones{LegacyFastingZone::fasting,    LegacyFastingZone::eating,
                                            LegacyFastingZone::anabolic,   LegacyFastingZone::catabolic,
                                            LegacyFastingZone::fatBurning, LegacyFastingZone::ketosis,
                                            LegacyFastingZone::deepKetosis};

/// Where the five zones begin, in seconds since a fast began; a zone ends where the next begins, the last one never.
inline constexpr std::array<double, 5> zoneBounds{0 * secondsPerHour, 4 * secondsPerHour, 16 * secondsPerHour,
                                                  24 * secondsPerHour, 72 * secondsPerHour};

/// "Fat Burning (16-24h)": the raw value.
std::string_view rawValue(LegacyFastingZone zone);

/// "fatBurning": the name in reports.
std::string_view caseName(LegacyFastingZone zone);

/// "Fat Burning": the name put into sentences, in English; also its key in the message catalogues.
std::string_view displayString(LegacyFastingZone zone);

}  // namespace mivo
