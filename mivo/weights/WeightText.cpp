// SPDX-License-Identifier: MIT
#include "mivo/weights/WeightText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "mivo/model/DecimalNumber.h"
#include "mivo/model/LowerCase.h"

namespace mivo {
namespace {

// The first digit of each script that a keyboard may type; nine more follow it.
constexpr std::array<std::uint32_t, 6> zeros{0x660, 0x6F0, 0x966, 0x9E6, 0xE50, 0xFF10};
constexpr std::uint32_t arabicDecimalSign = 0x66B;

std::uint32_t nextCodePoint(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  std::uint32_t point = length == 1 ? first : first & (0x7Fu >> length);
  for (std::size_t index = 1; index < length && index < text.size(); ++index)
    point = point << 6 | (static_cast<unsigned char>(text[index]) & 0x3Fu);
  text.remove_prefix(std::min(length, text.size()));
  return point;
}

/// The text in lower-case ASCII, its digits 0 to 9 and its decimal sign a dot; what is neither stays out as '?'.
std::string plain(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::uint32_t point = nextCodePoint(text);
    char c = point < 0x80 ? lowerCase(static_cast<char>(point)) : '?';
    if (point == ',' || point == arabicDecimalSign) c = '.';
    if (point == 0xA0 || point == 0x202F) c = ' ';
    for (const std::uint32_t zero : zeros)
      if (point >= zero && point < zero + 10) c = static_cast<char>('0' + (point - zero));
    result += c;
  }
  return result;
}

void skipBlanks(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(' '), text.size())); }

std::optional<double> takeNumber(std::string_view& text) {
  skipBlanks(text);
  return text.starts_with('-') ? std::nullopt : takeDecimalNumber(text);
}

std::optional<WeightUnit> takeUnit(std::string_view& text) {
  skipBlanks(text);
  return takeWeightUnit(text);
}

/// The pounds that may follow stones, in kilograms.
std::optional<double> takePounds(std::string_view& text) {
  const auto pounds = takeNumber(text);
  if (!pounds || *pounds >= poundsPerStone) return std::nullopt;
  if (takeUnit(text).value_or(WeightUnit::pounds) != WeightUnit::pounds) return std::nullopt;
  return *pounds * kilogramsPer(WeightUnit::pounds);
}

}  // namespace

std::variant<double, WeightTextFault> readWeight(std::string_view written, std::optional<WeightUnit> unit) {
  const std::string all = plain(written);
  std::string_view text = all;
  const auto number = takeNumber(text);
  if (!number) return WeightTextFault::noNumber;
  const bool isSetApart = text.starts_with(' ');
  const auto named = takeUnit(text);
  const WeightUnit given = named ? *named : unit.value_or(WeightUnit::kilograms);
  double weightInKg = *number * kilogramsPer(given);
  skipBlanks(text);
  if (given == WeightUnit::stones && (named || isSetApart) && !text.empty()) {
    const auto pounds = takePounds(text);
    if (!pounds) return WeightTextFault::noNumber;
    weightInKg += *pounds;
    skipBlanks(text);
  }
  if (!text.empty()) return WeightTextFault::noNumber;
  if (!named && !unit) return WeightTextFault::noUnit;
  return weightInKg;
}

std::optional<double> parseTypedWeight(std::string_view text, WeightUnit unit) {
  const auto read = readWeight(text, unit);
  const double* const weightInKg = std::get_if<double>(&read);
  return weightInKg && isTypedWeight(*weightInKg) ? std::optional{*weightInKg} : std::nullopt;
}

std::string refusedWeightText(const TextLookup& texts) {
  const auto largest = [](WeightUnit unit) {
    return std::to_string(static_cast<int>(largestTypedWeightInKg / kilogramsPer(unit)));
  };
  return filledIn(texts.text("Type up to {1} kg or {2} lb, such as 81.4."),
                  {largest(WeightUnit::kilograms), largest(WeightUnit::pounds)});
}

std::string weightFieldText(double weightInKg, WeightUnit unit, const NumberFormatter& numbers,
                            const MassFormatter& masses) {
  if (unit == WeightUnit::stones) return masses.string(weightInKg, unit);
  return numbers.string(weightInKg / kilogramsPer(unit), 1);
}

std::string weightFieldUnit(WeightUnit unit) {
  return unit == WeightUnit::stones ? std::string{} : std::string{weightUnitSign(unit)};
}

}  // namespace mivo
