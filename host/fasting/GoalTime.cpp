// SPDX-License-Identifier: MIT
#include "host/fasting/GoalTime.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "host/history/Header.h"
#include "mivo/model/Date.h"

namespace mivo::host {
namespace {

constexpr std::int64_t secondsPerMinute = 60, minutesPerHour = 60;

std::string_view withoutBlanks(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

bool isDigits(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, [](char letter) { return letter >= '0' && letter <= '9'; });
}

std::int64_t number(std::string_view digits) {
  std::int64_t value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

/// "16:30"; the minutes are two digits below 60.
std::optional<double> clockHours(std::string_view hours, std::string_view minutes) {
  constexpr std::size_t mostDigits = 4;
  if (!isDigits(hours) || hours.size() > mostDigits || !isDigits(minutes) || minutes.size() != 2) return std::nullopt;
  if (number(minutes) >= minutesPerHour) return std::nullopt;
  return static_cast<double>(number(hours)) + static_cast<double>(number(minutes)) / double{minutesPerHour};
}

std::optional<double> hoursOf(std::string_view text) {
  if (const auto colon = text.find(':'); colon != std::string_view::npos)
    return clockHours(text.substr(0, colon), text.substr(colon + 1));
  const bool isPlain = !text.empty() && isDigits(text.substr(0, 1));  // no sign, nothing that is not finite
  return isPlain ? decimalNumber(text, true) : std::nullopt;
}

}  // namespace

std::optional<std::int64_t> parseGoal(std::string_view typed) {
  std::string_view text = withoutBlanks(typed);
  if (text.ends_with('h')) text = withoutBlanks(text.substr(0, text.size() - 1));
  const auto hours = hoursOf(text);
  if (!hours || *hours > mostTypedGoalHours) return std::nullopt;
  return std::llround(*hours * double{minutesPerHour}) * secondsPerMinute;
}

std::string goalText(double seconds, const DurationFormatter& hours, const DurationFormatter& hoursAndMinutes) {
  const bool isWhole = std::fmod(seconds, secondsPerHour) < double{secondsPerMinute};
  return (isWhole ? hours : hoursAndMinutes).string(seconds).value_or("");
}

std::string typedGoal(double seconds) {
  const auto minutes = static_cast<std::int64_t>(seconds) / secondsPerMinute;
  std::string text = std::to_string(minutes / minutesPerHour);
  const std::string rest = std::to_string(minutes % minutesPerHour);
  if (rest != "0") text += (rest.size() == 1 ? ":0" : ":") + rest;
  return text;
}

}  // namespace mivo::host
