// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace mivo {

/// A universally unique identifier; all zeros is the nil identifier.
struct UUID {
  std::uint64_t high = 0, low = 0;
  auto operator<=>(const UUID&) const = default;
};

/// `6BA7B810-9DAD-11D1-80B4-00C04FD430C8`: five groups, capital letters.
std::string text(UUID id);

/// Reads five groups of hexadecimal digits in either case; nothing for any other text.
std::optional<UUID> parseUUID(std::string_view text);

}  // namespace mivo

template <>
struct std::hash<mivo::UUID> {
  std::size_t operator()(const mivo::UUID& id) const noexcept {
    return static_cast<std::size_t>(id.high ^ (id.low * 0x9E3779B97F4A7C15u));
  }
};
