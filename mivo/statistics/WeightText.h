// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "mivo/platform/Formatters.h"

namespace mivo {

/// A person's weight lies above 0 and below this many kilograms.
inline constexpr double heaviestWeightInKg = 1000;

/// Reads a weight as people type it, in kilograms: "81.4", "81,4", "179 lb", "12 st 11", "12st 11lb", "٨١٫٤".
///
///     parseWeight("179 lb", WeightUnit::kilograms);  // 81.19...: a unit in the text comes first
///     parseWeight("12 11", WeightUnit::stones);      // 81.19...: stones and pounds
///
/// unit    of a number without one. The decimal sign is a dot or a comma, whatever the locale: nobody weighs thousands.
/// Errors  nothing for a text that is not a number, or not a person's weight.
std::optional<double> parseWeight(std::string_view text, WeightUnit unit);

/// What the weight field shows for a weight: "81.4", "179.5", "12 st 11 lb".
std::string weightFieldText(double weightInKg, WeightUnit unit, const NumberFormatter& numbers,
                            const MassFormatter& masses);

/// What stands beside it: "kg", "lb"; nothing for stones, which say their unit themselves.
std::string weightFieldUnit(WeightUnit unit);

}  // namespace mivo
