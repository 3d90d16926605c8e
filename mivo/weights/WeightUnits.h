// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "mivo/platform/Formatters.h"

namespace mivo {

/// How a unit is written in settings, options and beside fields: "kg", "lb", "st".
std::string_view weightUnitSign(WeightUnit unit);

/// The unit of one of its names: kg, kgs, lb, lbs, pounds, st, stone, stones. Nothing for any other text.
std::optional<WeightUnit> weightUnitNamed(std::string_view name);

/// The unit whose name a text begins with, which is taken off it; or ends with.
std::optional<WeightUnit> takeWeightUnit(std::string_view& text);
std::optional<WeightUnit> weightUnitAtEnd(std::string_view text);

/// Heavier records are a slipped decimal sign or grams: no file, and no host, brings any.
inline constexpr double largestWeightInKg = 1000;

/// What a person may type: nobody was ever heavier than this.
inline constexpr double largestTypedWeightInKg = 700;

constexpr bool isBodyWeight(double weightInKg) { return weightInKg > 0 && weightInKg <= largestWeightInKg; }
constexpr bool isTypedWeight(double weightInKg) { return weightInKg > 0 && weightInKg <= largestTypedWeightInKg; }

}  // namespace mivo
