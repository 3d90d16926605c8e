// SPDX-License-Identifier: MIT
#include "host/import/LengthText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "host/history/FieldRules.h"
#include "host/history/Header.h"
#include "mivo/model/Date.h"

namespace mivo::host {
namespace {

// What another one ends with stands behind it.
constexpr std::array<LengthUnit, 16> units{{{"seconds", 1},
                                            {"second", 1},
                                            {"secs", 1},
                                            {"sec", 1},
                                            {"minutes", 60},
                                            {"minute", 60},
                                            {"mins", 60},
                                            {"min", 60},
                                            {"hours", secondsPerHour},
                                            {"hour", secondsPerHour},
                                            {"hrs", secondsPerHour},
                                            {"hr", secondsPerHour},
                                            {"days", secondsPerDay},
                                            {"h", secondsPerHour},
                                            {"m", 60},
                                            {"s", 1}}};

constexpr std::size_t longest = 40;  // of any length that somebody writes

std::size_t countDigits(std::string_view text) { return std::min(text.find_first_not_of("0123456789"), text.size()); }

void skipBlanks(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(' '), text.size())); }

std::optional<double> takeWhole(std::string_view& text, std::size_t mostDigits) {
  const std::size_t count = countDigits(text);
  if (count == 0 || count > mostDigits) return std::nullopt;
  double number = 0;
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

/// "16h 30m", "16 hours 30 minutes": whole numbers, the larger units first.
std::optional<double> namedLength(std::string_view text) {
  double seconds = 0, last = std::numeric_limits<double>::infinity();
  while (!text.empty()) {
    const auto number = takeWhole(text, 6);
    if (!number) return std::nullopt;
    skipBlanks(text);
    const std::string_view word = text.substr(0, std::min(text.find_first_of(" 0123456789"), text.size()));
    const auto unit = lengthUnitAtEnd(word);
    if (!unit || unit->name != word || unit->seconds >= last) return std::nullopt;
    text.remove_prefix(word.size());
    skipBlanks(text);
    last = unit->seconds;
    seconds += *number * last;
  }
  return seconds;
}

bool mayPartThousands(std::string_view text) {
  const std::size_t comma = text.rfind(',');
  return comma != std::string_view::npos && text.size() - comma - 1 == 3;
}

std::string lowerCase(std::string_view text) {
  std::string result{text};
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return result;
}

}  // namespace

std::optional<LengthUnit> lengthUnitAtEnd(std::string_view text) {
  const auto* const unit =
      std::ranges::find_if(units, [text](const LengthUnit& one) { return text.ends_with(one.name); });
  return unit == units.end() ? std::nullopt : std::optional{*unit};
}

std::optional<double> readLengthText(std::string_view text, std::optional<double> secondsPerUnit) {
  if (text.empty() || text.size() > longest) return std::nullopt;
  if (const auto length = clockLength(text)) return length;
  if (const auto number = decimalNumber(text, true)) {
    if (!secondsPerUnit || *number < 0 || mayPartThousands(text)) return std::nullopt;
    return std::round(*number * *secondsPerUnit);
  }
  return namedLength(lowerCase(text));
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
