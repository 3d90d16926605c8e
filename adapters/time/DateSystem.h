// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace mivo::adapters {

/// A day of a calendar. `month` and `day` count from 1; a leap month (of the Chinese calendar, say) repeats the number
/// of the month before it.
struct DateFields {
  int month = 1, day = 1;
  bool isLeapMonth = false;
  bool operator==(const DateFields&) const = default;
};

/// How a calendar divides days into months and years, without clocks or zones. Thread: any.
class DateSystem {
 public:
  virtual ~DateSystem() = default;

  /// The identifier in the Unicode locale database: "gregorian", "hebrew".
  virtual std::string_view identifier() const = 0;

  virtual DateFields fields(std::chrono::local_days day) const = 0;

  /// The same day of the month, `count` months or years on; the month's last where it has no such day. Missing where
  /// the result lies outside the years that can be counted.
  virtual std::optional<std::chrono::local_days> addingMonths(std::chrono::local_days day,
                                                              std::int64_t count) const = 0;
  virtual std::optional<std::chrono::local_days> addingYears(std::chrono::local_days day, std::int64_t count) const = 0;
};

}  // namespace mivo::adapters
