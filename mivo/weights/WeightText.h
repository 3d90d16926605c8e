// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "mivo/platform/TextLookup.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo {

/// What keeps a text from being a weight.
enum class WeightTextFault { noNumber, noUnit };

/// Reads a weight as people and tables write it, in kilograms: "81.4", "81,4", "179 lb", "12 st 11", "12st 11lb",
/// "٨١٫٤".
///
///     readWeight("179 lb", WeightUnit::kilograms);  // 81.19...: a unit in the text comes first
///     readWeight("12 11", WeightUnit::stones);      // 81.19...: stones and pounds, a blank or "st" between them
///
/// unit    of a number without one; without it such a number is none. The decimal sign is a dot or a comma, whatever
///         the locale: nobody weighs thousands.
/// Answer  0 or more, however heavy: whoever asks knows which limit holds.
std::variant<double, WeightTextFault> readWeight(std::string_view text, std::optional<WeightUnit> unit);

/// What a person typed, in kilograms; nothing for a text that is no weight, or not within `largestTypedWeightInKg`.
std::optional<double> parseTypedWeight(std::string_view text, WeightUnit unit);

/// Why not: "Type up to 700 kg or 1543 lb, such as 81.4."
std::string refusedWeightText(const TextLookup& texts);

/// What the weight field shows for a weight: "81.4", "179.5", "12 st 11 lb".
std::string weightFieldText(double weightInKg, WeightUnit unit, const NumberFormatter& numbers,
                            const MassFormatter& masses);

/// What stands beside it: "kg", "lb"; nothing for stones, which say their unit themselves.
std::string weightFieldUnit(WeightUnit unit);

}  // namespace mivo
