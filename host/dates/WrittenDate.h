// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/dates/DateText.h"

namespace mivo::host {

/// Which of two numbers in a date is the day: 1/2/2026 is 1 February or January 2.
enum class DateOrder { dayFirst, monthFirst };

/// The names that a language gives to months (1 to 12), days of the week (0 = Sunday), the halves of the day (0 = AM,
/// 1 = PM), today and yesterday (0 and 1 days ago) and now, in small letters and without points, full and short; the
/// words that may stand between a day and its time, and those between a start and its end; and how a text comes into
/// small letters, of those scripts that the language is written in.
struct DateNames {
  struct Name {
    std::string text;
    unsigned number = 0;
  };
  std::vector<Name> months, weekdays, halves, daysAgo;
  std::vector<std::string> now, links, untils;
  std::function<std::string(std::string_view)> inSmallLetters;
};

/// The number of a name, whatever its ASCII case and its points.
std::optional<unsigned> numberOf(const std::vector<DateNames::Name>& names, std::string_view word);

/// Those of files, which write English.
const DateNames& englishDateNames();

/// A time of day.
struct WrittenTime {
  std::chrono::seconds sinceMidnight{0};
  std::string_view fraction = {};  ///< digits of a second, part of the text that was read
};

/// A date as spreadsheets and apps write it, before it is known which of two numbers is the day. The two days are the
/// same where nothing is left open, and one is missing where only the other order gives a date.
struct WrittenDate {
  std::optional<std::chrono::local_days> dayFirst, monthFirst;
  std::optional<WrittenTime> time = {};
  std::optional<std::chrono::seconds> offset = {};  ///< east of UTC

  bool isOpen() const { return dayFirst && monthFirst && *dayFirst != *monthFirst; }
};

/// Reads what `parseDateText` reads, and
///
///     25.11.2026 8:00   11/25/2026, 8:00:15 AM   26-Sep-2015   Oct 23 2019   Sat, 7 Mar 2026 20:00 +01:00
///     20261125   202611250800   20261125080015   1764057600   1764057600123
///
/// A date with points has the day first. Two digits are a year from 1970 to 2069. Numbers alone are a date without
/// separators, or seconds or milliseconds since 1970 where that is in the years 2001 to 2100; others are none, since
/// what they count from is not known. `AM` and `PM` may stand behind any time. Nothing for any other text.
/// Thread: any.
std::optional<WrittenDate> readWrittenDate(std::string_view text, const DateNames& names = englishDateNames());

/// Reads a time alone: "20:30", "8:30:15 PM", "8 pm".
std::optional<WrittenTime> readWrittenTime(std::string_view text, const DateNames& names = englishDateNames());

/// The date in one order; nothing where that order gives none.
std::optional<DateText> ordered(const WrittenDate& date, DateOrder order);

}  // namespace mivo::host
