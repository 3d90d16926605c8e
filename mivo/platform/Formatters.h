// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "mivo/model/Date.h"

namespace mivo {

// Texts for the user, in the user's locale, time zone and calendar. All of them may be used from any thread.

/// Durations as text. The hour-and-minute one says "12h 30m", "10h 0m", and below an hour "45m"; the hours-only one
/// "104h". Rounded to the millisecond, then truncated to whole minutes or hours. No text for what is not finite.
class DurationFormatter {
 public:
  virtual ~DurationFormatter() = default;
  virtual std::optional<std::string> string(double seconds) const = 0;
};

/// Dates as text.
class DateFormatter {
 public:
  virtual ~DateFormatter() = default;
  /// `skeleton` names the fields ("EEE", "MMMd", "yMMMd", "jm"); the locale decides their order and punctuation.
  virtual std::optional<std::string> string(Date date, std::string_view skeleton) const = 0;
};

/// "Jul 1 - 7, 2026": medium date style, no time. The end is outside, so that seven days from a midnight on are those.
class DateIntervalFormatter {
 public:
  virtual ~DateIntervalFormatter() = default;
  virtual std::optional<std::string> string(DateInterval interval) const = 0;
};

enum class WeightUnit { kilograms, pounds, stones };

inline constexpr double poundsPerStone = 14;

/// Kilograms per unit, exact by definition of the avoirdupois pound.
constexpr double kilogramsPer(WeightUnit unit) {
  constexpr double pound = 0.45359237;
  switch (unit) {
    case WeightUnit::kilograms:
      return 1;
    case WeightUnit::pounds:
      return pound;
    case WeightUnit::stones:
      return poundsPerStone * pound;
  }
  return 1;
}

/// Body weights as text: "81.4 kg", "179.5 lb", "12 st 11 lb".
class MassFormatter {
 public:
  virtual ~MassFormatter() = default;
  virtual std::string string(double weightInKg, WeightUnit unit) const = 0;
};

/// Plain numbers, grouped and with the decimal sign of the locale.
class NumberFormatter {
 public:
  virtual ~NumberFormatter() = default;
  virtual std::string string(std::int64_t number) const = 0;
  virtual std::string string(double number, int fractionDigits) const = 0;
};

}  // namespace mivo
