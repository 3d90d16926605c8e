// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <utility>

#include "mivo/platform/Formatters.h"

namespace mivo::host {

/// The unit that a text ends with (kg, lb, lbs, pounds, st), and what stands before it.
std::pair<std::string_view, std::optional<WeightUnit>> splitUnit(std::string_view text);

/// A weight as people write it, in kilograms; nothing for another text.
///
///     "81.4kg"   "179 lb"   "12st 11lb"   "81,4"
///
/// `unit` is that of a number without one; the decimal sign is a point or a comma. The weight may be one that no body
/// has.
std::optional<double> parseWeight(std::string_view text, WeightUnit unit);

}  // namespace mivo::host
