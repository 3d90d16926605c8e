// SPDX-License-Identifier: MIT
#include "mivo/model/UUID.h"

#include <array>

namespace mivo {
namespace {

constexpr std::string_view digits = "0123456789ABCDEF";
constexpr std::size_t textLength = 36;

constexpr bool isHyphenPlace(std::size_t index) { return index == 8 || index == 13 || index == 18 || index == 23; }

constexpr std::uint8_t noDigit = 0x10;

// What each character is worth as a hexadecimal digit.
constexpr std::array<std::uint8_t, 256> digitValues = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(noDigit);
  for (std::uint8_t value = 0; value < 16; ++value) {
    values[static_cast<unsigned char>(digits[value])] = value;
    if (value >= 10) values[static_cast<unsigned char>(digits[value] - 'A' + 'a')] = value;
  }
  return values;
}();

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
  unsigned allDigits = 0;  // told apart at the end: nearly every text is an identifier
  std::size_t nibble = 0;
  for (std::size_t index = 0; index < textLength; ++index) {
    if (isHyphenPlace(index)) {
      if (text[index] != '-') return std::nullopt;
      continue;
    }
    const unsigned digit = digitValues[static_cast<unsigned char>(text[index])];
    allDigits |= digit;
    auto& half = halves[nibble / 16];
    half = (half << 4) | digit;
    ++nibble;
  }
  if ((allDigits & noDigit) != 0) return std::nullopt;
  return UUID{halves[0], halves[1]};
}

}  // namespace mivo
