// SPDX-License-Identifier: MIT
#include "mivo/fasting/GoalTime.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "mivo/model/Date.h"

namespace mivo {
namespace {

constexpr double secondsPerMinute = 60, minutesPerHour = 60, mostHours = 8784;
constexpr std::size_t mostDigits = 4;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\n\v\f\r";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

/// One to four digits as a number; nothing for another text.
std::optional<int> whole(std::string_view text) {
  if (text.empty() || text.size() > mostDigits || !std::ranges::all_of(text, isDigit)) return std::nullopt;
  int number = 0;
  for (const char digit : text) number = number * 10 + (digit - '0');
  return number;
}

/// What stands behind the whole hours, ":30" or ".5", in hours.
std::optional<double> rest(std::string_view text) {
  if (text.empty()) return 0;
  const auto number = whole(text.substr(1));
  if (!number) return std::nullopt;
  if (text[0] == ':') return text.size() == 3 && *number < 60 ? std::optional{*number / minutesPerHour} : std::nullopt;
  if (text[0] != '.' && text[0] != ',') return std::nullopt;
  return *number / std::pow(10, static_cast<double>(text.size() - 1));
}

}  // namespace

std::optional<double> parseGoalTime(std::string_view text) {
  text = trimmed(text);
  if (text.ends_with('h')) text = trimmed(text.substr(0, text.size() - 1));
  const auto end = std::ranges::find_if_not(text, isDigit);
  const auto length = static_cast<std::size_t>(end - text.begin());
  const auto hours = whole(text.substr(0, length));
  const auto more = rest(text.substr(length));
  if (!hours || !more) return std::nullopt;
  const double all = *hours + *more, minutes = std::round(all * minutesPerHour);
  if (minutes < 1 || all > mostHours) return std::nullopt;
  return minutes * secondsPerMinute;
}

std::string goalText(double seconds, const DurationFormatter& hourMin, const DurationFormatter& hour) {
  const bool hasMinutes = std::fmod(seconds, secondsPerHour) >= secondsPerMinute;
  return (hasMinutes ? hourMin : hour).string(std::max(0.0, seconds)).value_or("");
}

std::string goalTimeText(double seconds) {
  const auto minutes = static_cast<std::int64_t>(seconds / secondsPerMinute);
  const std::string hours = std::to_string(minutes / 60);
  const auto left = minutes % 60;
  return left == 0 ? hours : hours + (left < 10 ? ":0" : ":") + std::to_string(left);
}

}  // namespace mivo
