// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/time/TimeZone.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// A date as a text gives it, not yet an instant where no offset stands with it.
struct DateText {
  std::chrono::local_seconds wallTime;
  std::string_view fraction = {};                   ///< digits of a second, part of the text that was read
  std::optional<std::chrono::seconds> offset = {};  ///< east of UTC
  bool hasTime = false;                             ///< false for a day alone, whose `wallTime` is its 00:00
};

/// Reads ISO 8601 as people and programs write it:
///
///     2026-03-01T12:00:00Z   2026-03-01 12:00:00.25 +0100   2026-03-01T12:00+01   2026-03-01
///
/// Capital or small `T` and `Z`, or a blank for the `T`; seconds and their fraction (after a point or a comma) may be
/// left out. Second 60 is taken only for a leap second, the last of a UTC day; it is the first of the next. Nothing for
/// any other text, and for a day or time that no calendar or clock has. Cost: about 20 ns, no allocation. Thread: any.
std::optional<DateText> parseDateText(std::string_view text);

/// The instant of a date with an offset; nothing without one or outside the years 1 to 9999.
std::optional<Date> instant(const DateText& date);

/// The same, with dates without offset read in `zone`: of two instants the first, and where clocks skipped it the first
/// one after the gap.
std::optional<Date> instant(const DateText& date, const adapters::TimeZone& zone);

/// "2026-03-01T12:00:00.25Z": RFC 3339 in UTC, with a fraction only where there is one and then as many digits as read
/// back to the same date. "nan", "inf" or "-inf" for what is not finite. Cost: 20 ns, and 100 more for a fraction.
std::string rfc3339(Date date);

/// The same without an allocation. The text lives until the next one is written.
class Rfc3339 {
 public:
  std::string_view write(Date date);

 private:
  std::array<char, 448> text;  // a double close to 0 has 340 digits after the point
};

}  // namespace mivo::host
