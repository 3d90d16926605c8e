// SPDX-License-Identifier: MIT
#include "host/dates/NamedLength.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "mivo/model/Date.h"

namespace mivo::host {
namespace {

// What another one ends with stands behind it.
constexpr std::array<LengthUnit, 18> units{{{"seconds", 1},
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
                                            {"day", secondsPerDay},
                                            {"h", secondsPerHour},
                                            {"d", secondsPerDay},
                                            {"m", 60},
                                            {"s", 1}}};

constexpr std::size_t mostDigits = 6;

void skipBlanks(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(' '), text.size())); }

}  // namespace

std::optional<LengthUnit> lengthUnitAtEnd(std::string_view text) {
  const auto* const unit =
      std::ranges::find_if(units, [text](const LengthUnit& one) { return text.ends_with(one.name); });
  return unit == units.end() ? std::nullopt : std::optional{*unit};
}

std::optional<double> readNamedLength(std::string_view text) {
  if (text.empty()) return std::nullopt;
  double seconds = 0, last = std::numeric_limits<double>::infinity();
  while (!text.empty()) {
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    if (count == 0 || count > mostDigits) return std::nullopt;
    const std::string_view digits = text.substr(0, count);
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    text.remove_prefix(count);
    skipBlanks(text);
    const std::string_view word = text.substr(0, std::min(text.find_first_of(" 0123456789"), text.size()));
    const auto unit = lengthUnitAtEnd(word);
    if (!unit || unit->name != word || unit->seconds >= last) return std::nullopt;
    text.remove_prefix(word.size());
    skipBlanks(text);
    last = unit->seconds;
    seconds += number * last;
  }
  return seconds;
}

}  // namespace mivo::host
