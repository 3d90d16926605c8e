// SPDX-License-Identifier: MIT
#include "host/history/WeightText.h"

#include <algorithm>
#include <array>

#include "host/history/Header.h"

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

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? text.substr(0, 0)
                                         : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

std::optional<double> parsePlain(std::string_view text, WeightUnit fallback) {
  const auto [digits, unit] = splitUnit(text);
  const auto number = decimalNumber(digits, true);
  return number ? std::optional{*number * kilogramsPer(unit.value_or(fallback))} : std::nullopt;
}

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

std::optional<double> parseWeight(std::string_view text, WeightUnit unit) {
  text = withoutBlanks(text);
  const std::size_t stones = text.find("st");
  const std::string_view rest = withoutBlanks(text.substr(std::min(stones, text.size())));
  if (rest.size() <= 2) return parsePlain(text, unit);
  const auto whole = parsePlain(text.substr(0, stones + 2), WeightUnit::stones);
  const auto pounds = parsePlain(withoutBlanks(rest.substr(2)), WeightUnit::pounds);
  const bool isCarried = pounds && *pounds >= 0 && *pounds < kilogramsPer(WeightUnit::stones);
  return whole && isCarried ? std::optional{*whole + *pounds} : std::nullopt;
}

}  // namespace mivo::host
