// SPDX-License-Identifier: MIT
#include "tally/server/DateTexts.h"

#include <array>
#include <ctime>

namespace mivo::tally {
namespace {

constexpr std::size_t millisecondsAt = 20;  // "2026-11-24T21:50:00."

std::string formatted(const std::tm& time, const char* format) {
  std::array<char, 40> text{};
  return {text.data(), std::strftime(text.data(), text.size(), format, &time)};
}

}  // namespace

std::string_view DateTexts::http(Instant now) {
  refresh(std::chrono::system_clock::to_time_t(std::chrono::floor<std::chrono::seconds>(now)));
  return httpText;
}

std::string_view DateTexts::log(Instant now) {
  const auto second = std::chrono::floor<std::chrono::seconds>(now);
  refresh(std::chrono::system_clock::to_time_t(second));
  auto rest = std::chrono::floor<std::chrono::milliseconds>(now - second).count();
  for (auto at = millisecondsAt + 3; at-- > millisecondsAt; rest /= 10)
    logText[at] = static_cast<char>('0' + rest % 10);
  return logText;
}

void DateTexts::refresh(std::time_t second) {
  if (second == secondShown) return;
  secondShown = second;
  std::tm time{};
  ::gmtime_r(&second, &time);
  httpText = formatted(time, "%a, %d %b %Y %H:%M:%S GMT");
  logText = formatted(time, "%Y-%m-%dT%H:%M:%S.000Z");
}

}  // namespace mivo::tally
