// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <utility>

#include "mivo/platform/Formatters.h"

namespace mivo::host {

/// The unit that a text ends with (kg, lb, lbs, pounds, st), and what stands before it.
std::pair<std::string_view, std::optional<WeightUnit>> splitUnit(std::string_view text);

}  // namespace mivo::host
