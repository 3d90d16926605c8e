// SPDX-License-Identifier: MIT
#include "mivo/model/UUID.h"

#include <array>

namespace mivo {
namespace {

constexpr std::string_view digits = "0123456789ABCDEF";
constexpr std::size_t textLength = 36;

constexpr bool isHyphenPlace(std::size_t index) { return index == 8 || index == 13 || index == 18 || index == 23; }

std::optional<std::uint64_t> hexDigit(char c) {
  if (c >= '0' && c <= '9') return static_cast<std::uint64_t>(c - '0');
  if (c >= 'A' && c <= 'F') return static_cast<std::uint64_t>(c - 'A' + 10);
  if (c >= 'a' && c <= 'f') return static_cast<std::uint64_t>(c - 'a' + 10);
  return std::nullopt;
}

}  // namespace

std::string text(UUID id) {
  std::string result(textLength, '-');
  std::size_t nibble = 0;
  for (std::size_t index = 0; index < textLength; ++index) {
    if (isHyphenPlace(index)) continue;
    const std::uint64_t half = nibble < 16 ? id.high : id.low;
    result[index] = digits[(half >> (60 - 4 * (nibble % 16))) & 0xF];
    ++nibble;
  }
  return result;
}

std::optional<UUID> parseUUID(std::string_view text) {
  if (text.size() != textLength) return std::nullopt;
  std::array<std::uint64_t, 2> halves{};
  std::size_t nibble = 0;
  for (std::size_t index = 0; index < textLength; ++index) {
    if (isHyphenPlace(index)) {
      if (text[index] != '-') return std::nullopt;
      continue;
    }
    const auto digit = hexDigit(text[index]);
    if (!digit) return std::nullopt;
    auto& half = halves[nibble / 16];
    half = (half << 4) | *digit;
    ++nibble;
  }
  return UUID{halves[0], halves[1]};
}

}  // namespace mivo
