// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "host/place/PlaceOptions.h"

namespace mivo::cli {

using host::Read, host::readDate, host::readLocale, host::readTimeZone, host::wrong;

template <class Value>
struct Choice {
  std::string_view name;
  Value value;
};

template <class Value>
Read<Value> readChoice(std::string_view option, std::string_view expected, std::span<const Choice<Value>> choices,
                       std::string_view text) {
  for (const auto& [name, value] : choices)
    if (name == text) return value;
  return wrong(option, expected, text);
}

/// `--format`: whether it is json.
Read<bool> readFormat(std::string_view text);

/// A whole number from `low` to `high`.
Read<std::int64_t> readNumber(std::string_view option, std::string_view expected, std::string_view text,
                              std::int64_t low, std::int64_t high);

}  // namespace mivo::cli
