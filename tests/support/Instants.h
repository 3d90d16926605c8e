// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <string>

#include "mivo/model/Date.h"

namespace mivo::tests {

/// The instant of a UTC time: utc("2026-03-29 01:00"), with ":30" or ":30.25" behind it where seconds matter.
inline Date utc(const std::string& text) {
  int year = 0, hour = 0, minute = 0;
  unsigned month = 0, day = 0;
  double seconds = 0;
  if (std::sscanf(text.c_str(), "%d-%u-%u %d:%d:%lf", &year, &month, &day, &hour, &minute, &seconds) < 5)
    throw std::invalid_argument{"expected a time such as 2026-03-29 01:00, found " + text};
  const std::chrono::sys_days date{std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day)};
  return Date{date} + Duration{hour * 3600.0 + minute * 60.0 + seconds};
}

/// "2026-03-29 01:00:00" in UTC, with a fraction where there is one; "none".
inline std::string text(std::optional<Date> date) {
  if (!date) return "none";
  const auto day = std::chrono::floor<std::chrono::days>(*date);
  const std::chrono::year_month_day ymd{day};
  const double seconds = std::chrono::duration<double>{*date - day}.count();
  const int minutes = static_cast<int>(seconds / 60);
  const double rest = seconds - minutes * 60.0;
  std::array<char, 64> buffer{};
  std::snprintf(buffer.data(), buffer.size(),
                rest == std::floor(rest) ? "%04d-%02u-%02u %02d:%02d:%02.0f" : "%04d-%02u-%02u %02d:%02d:%09.6f",
                int{ymd.year()}, unsigned{ymd.month()}, unsigned{ymd.day()}, minutes / 60, minutes % 60, rest);
  return buffer.data();
}

}  // namespace mivo::tests
