// SPDX-License-Identifier: MIT
#include "mivo/fasting/GoalTime.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "mivo/model/Date.h"

namespace mivo {
namespace {

constexpr std::int64_t secondsPerMinute = 60, minutesPerHour = 60;
constexpr std::size_t mostDigits = 6;

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
  if (!isDigits(hours) || hours.size() > mostDigits || !isDigits(minutes) || minutes.size() != 2) return std::nullopt;
  if (number(minutes) >= minutesPerHour) return std::nullopt;
  return static_cast<double>(number(hours)) + static_cast<double>(number(minutes)) / double{minutesPerHour};
}

/// "16", "16.5", "16,5".
std::optional<double> decimalHours(std::string_view text) {
  const auto mark = text.find_first_of(".,");
  const auto whole = text.substr(0, mark);
  if (!isDigits(whole) || whole.size() > mostDigits) return std::nullopt;
  const auto hours = static_cast<double>(number(whole));
  if (mark == std::string_view::npos) return hours;
  const auto rest = text.substr(mark + 1, mostDigits);  // later digits are far below a minute
  if (!isDigits(text.substr(mark + 1))) return std::nullopt;
  return hours + static_cast<double>(number(rest)) / std::pow(10.0, static_cast<double>(rest.size()));
}

std::optional<double> hoursOf(std::string_view text) {
  const auto colon = text.find(':');
  return colon == std::string_view::npos ? decimalHours(text)
                                         : clockHours(text.substr(0, colon), text.substr(colon + 1));
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

}  // namespace mivo
