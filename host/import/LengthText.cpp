// SPDX-License-Identifier: MIT
#include "host/import/LengthText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "host/dates/NamedLength.h"
#include "host/history/FieldRules.h"
#include "host/history/Header.h"
#include "mivo/model/Date.h"
#include "mivo/model/LowerCase.h"

namespace mivo::host {
namespace {

constexpr std::size_t longest = 40;  // of any length that somebody writes

std::size_t countDigits(std::string_view text) { return std::min(text.find_first_not_of("0123456789"), text.size()); }

std::optional<double> takeWhole(std::string_view& text, std::size_t mostDigits) {
  const std::size_t count = countDigits(text);
  if (count == 0 || count > mostDigits) return std::nullopt;
  int number = 0;
  const std::string_view digits = text.substr(0, count);
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  text.remove_prefix(count);
  return number;
}

/// "16:30", "16:30:00".
std::optional<double> clockLength(std::string_view text) {
  const auto hours = takeWhole(text, 6);
  if (!hours) return std::nullopt;
  double seconds = *hours * secondsPerHour;
  for (const double unit : {60.0, 1.0}) {
    if (unit == 1 && text.empty()) break;
    if (!text.starts_with(':')) return std::nullopt;
    text.remove_prefix(1);
    const bool hasTwoDigits = countDigits(text) == 2;
    const auto part = takeWhole(text, 2);
    if (!hasTwoDigits || *part > 59) return std::nullopt;
    seconds += *part * unit;
  }
  return text.empty() ? std::optional{seconds} : std::nullopt;
}

bool mayPartThousands(std::string_view text) {
  const std::size_t comma = text.rfind(',');
  return comma != std::string_view::npos && text.size() - comma - 1 == 3;
}

}  // namespace

std::optional<double> readLengthText(std::string_view text, std::optional<double> secondsPerUnit) {
  if (text.empty() || text.size() > longest) return std::nullopt;
  if (const auto length = clockLength(text)) return length;
  if (const auto number = decimalNumber(text, true)) {
    if (!secondsPerUnit || *number < 0 || mayPartThousands(text)) return std::nullopt;
    return std::round(*number * *secondsPerUnit);
  }
  return readNamedLength(lowerCase(text));
}

std::optional<std::int64_t> readGoalText(std::string_view text, double secondsPerUnit) {
  const std::size_t colon = text.find(':');
  const bool isRatio = colon != std::string_view::npos && colon > 0 && text.size() == colon + 2;
  if (isRatio && countDigits(text.substr(colon + 1)) == 1) text = text.substr(0, colon);
  const auto seconds = readLengthText(text, isRatio ? secondsPerHour : secondsPerUnit);
  if (!seconds || *seconds > largestGoalHours * secondsPerHour) return std::nullopt;
  return std::llround(*seconds);
}

}  // namespace mivo::host
