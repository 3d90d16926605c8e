// SPDX-License-Identifier: MIT
#include "mivo/platform/JSONValue.h"

#include <algorithm>
#include <cmath>
#include <ranges>

namespace mivo {

const JSONValue* JSONValue::member(std::string_view key) const {
  const Object* members = object();
  if (!members) return nullptr;
  const auto latestFirst = std::views::reverse(*members);
  const auto found = std::ranges::find(latestFirst, key, &Member::name);
  return found == latestFirst.end() || found->value.isNull() ? nullptr : &found->value;
}

std::optional<std::int64_t> JSONValue::whole() const {
  if (const auto* number = std::get_if<std::int64_t>(&content)) return *number;
  const auto* number = std::get_if<double>(&content);
  constexpr double beyond = 9223372036854775808.0;  // 2^63, the first that does not fit
  if (!number || !(*number >= -beyond && *number < beyond) || std::trunc(*number) != *number) return std::nullopt;
  return static_cast<std::int64_t>(*number);
}

}  // namespace mivo
