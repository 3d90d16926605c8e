// SPDX-License-Identifier: MIT
#include "mivo/model/DecimalNumber.h"

#include <array>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace mivo {
namespace {

// What a double holds exactly, so that one multiplication or division of them is rounded only once.
constexpr std::uint64_t largestExact = std::uint64_t{1} << DBL_MANT_DIG;
constexpr std::array<double, 23> powersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                             1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::size_t digitsOf64Bits = 19;
constexpr std::int64_t largestExponent = 1'000'000'000'000;  // no text is so long that more could matter

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view takeDigits(std::string_view& text) {
  std::size_t count = 0;
  while (count < text.size() && isDigit(text[count])) ++count;
  const std::string_view digits = text.substr(0, count);
  text.remove_prefix(count);
  return digits;
}

std::int64_t takeExponent(std::string_view& text) {
  if (text.empty() || (text.front() != 'e' && text.front() != 'E')) return 0;
  std::string_view rest = text.substr(1);
  const bool isNegative = rest.starts_with('-');
  if (isNegative || rest.starts_with('+')) rest.remove_prefix(1);
  const std::string_view digits = takeDigits(rest);
  if (digits.empty()) return 0;
  text = rest;
  std::int64_t exponent = 0;
  for (const char digit : digits)
    if (exponent < largestExponent) exponent = exponent * 10 + (digit - '0');
  return isNegative ? -exponent : exponent;
}

/// The digits, without a point, times ten to that power.
struct Scanned {
  std::string_view whole, fraction;
  std::int64_t exponent = 0;
};

std::optional<double> ofShort(const Scanned& number) {
  if (FLT_EVAL_METHOD != 0 || number.whole.size() + number.fraction.size() > digitsOf64Bits) return std::nullopt;
  std::uint64_t digits = 0;
  for (const std::string_view part : {number.whole, number.fraction})
    for (const char digit : part) digits = digits * 10 + static_cast<std::uint64_t>(digit - '0');
  const auto power = static_cast<std::uint64_t>(std::abs(number.exponent));
  if (digits > largestExact || power >= powersOfTen.size()) return std::nullopt;
  const auto exact = static_cast<double>(digits);
  return number.exponent < 0 ? exact / powersOfTen[power] : exact * powersOfTen[power];
}

/// By the C library, which sees no point, the one thing of a number that its locale changes.
std::optional<double> ofAny(const Scanned& number) {
  std::string digits;
  digits.reserve(number.whole.size() + number.fraction.size() + 24);
  digits.append(number.whole).append(number.fraction);
  const bool isZero = digits.find_first_not_of('0') == std::string::npos;
  digits.append("e").append(std::to_string(number.exponent));
  const double nearest = std::strtod(digits.c_str(), nullptr);
  if (std::isinf(nearest) || (nearest == 0 && !isZero)) return std::nullopt;
  return nearest;
}

}  // namespace

std::optional<double> takeDecimalNumber(std::string_view& text) {
  std::string_view rest = text;
  const bool isNegative = rest.starts_with('-');
  if (isNegative) rest.remove_prefix(1);
  Scanned number{.whole = takeDigits(rest), .fraction = {}};
  if (rest.starts_with('.')) {
    std::string_view behind = rest.substr(1);
    number.fraction = takeDigits(behind);
    rest = behind;
  }
  if (number.whole.empty() && number.fraction.empty()) return std::nullopt;
  number.exponent = takeExponent(rest) - static_cast<std::int64_t>(number.fraction.size());
  auto nearest = ofShort(number);
  if (!nearest) nearest = ofAny(number);
  if (!nearest) return std::nullopt;
  text = rest;
  return isNegative ? -*nearest : *nearest;
}

std::optional<double> readDecimalNumber(std::string_view text) {
  const auto number = takeDecimalNumber(text);
  return text.empty() ? number : std::nullopt;
}

}  // namespace mivo
