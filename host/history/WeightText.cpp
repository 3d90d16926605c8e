// SPDX-License-Identifier: MIT
#include "host/history/WeightText.h"

#include <array>

namespace mivo::host {
namespace {

struct UnitName {
  std::string_view name;
  WeightUnit unit;
};
constexpr std::array<UnitName, 5> unitNames{{{"kg", WeightUnit::kilograms},
                                             {"lb", WeightUnit::pounds},
                                             {"lbs", WeightUnit::pounds},
                                             {"pounds", WeightUnit::pounds},
                                             {"st", WeightUnit::stones}}};

}  // namespace

std::pair<std::string_view, std::optional<WeightUnit>> splitUnit(std::string_view text) {
  for (const auto& [name, unit] : unitNames) {
    if (!text.ends_with(name)) continue;
    text.remove_suffix(name.size());
    while (text.ends_with(' ')) text.remove_suffix(1);
    return {text, unit};
  }
  return {text, std::nullopt};
}

}  // namespace mivo::host
