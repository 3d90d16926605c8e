// SPDX-License-Identifier: MIT
#include "mivo/weights/WeightUnits.h"

#include <algorithm>
#include <array>

namespace mivo {
namespace {

struct UnitName {
  std::string_view text;
  WeightUnit unit;
};

// The first of each unit is its sign; what another name begins with stands before that.
constexpr std::array<UnitName, 8> names{{{"kg", WeightUnit::kilograms},
                                         {"kgs", WeightUnit::kilograms},
                                         {"lb", WeightUnit::pounds},
                                         {"lbs", WeightUnit::pounds},
                                         {"pounds", WeightUnit::pounds},
                                         {"st", WeightUnit::stones},
                                         {"stone", WeightUnit::stones},
                                         {"stones", WeightUnit::stones}}};

}  // namespace

std::string_view weightUnitSign(WeightUnit unit) { return std::ranges::find(names, unit, &UnitName::unit)->text; }

std::optional<WeightUnit> weightUnitNamed(std::string_view name) {
  const auto* const known = std::ranges::find(names, name, &UnitName::text);
  return known == names.end() ? std::nullopt : std::optional{known->unit};
}

std::optional<WeightUnit> takeWeightUnit(std::string_view& text) {
  const auto longest =
      std::find_if(names.rbegin(), names.rend(), [text](const UnitName& name) { return text.starts_with(name.text); });
  if (longest == names.rend()) return std::nullopt;
  text.remove_prefix(longest->text.size());
  return longest->unit;
}

std::optional<WeightUnit> weightUnitAtEnd(std::string_view text) {
  const auto* const last =
      std::ranges::find_if(names, [text](const UnitName& name) { return text.ends_with(name.text); });
  return last == names.end() ? std::nullopt : std::optional{last->unit};
}

}  // namespace mivo
