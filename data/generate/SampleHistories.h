// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "host/history/History.h"

namespace mivo::data {

/// "three-weeks"  somebody who has just begun
/// "one-year"     with weights: quick at first, then a plateau, then Christmas, then on
/// "ten-years"    3,650 fasts of somebody who moves between continents
inline constexpr std::array sampleNames{"three-weeks", "one-year", "ten-years"};

/// All samples end at noon UTC of Sunday, 1 March 2026, and are always the same. Nothing for any other name.
std::optional<host::History> sampleHistory(std::string_view name);

}  // namespace mivo::data
