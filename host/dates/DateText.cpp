// SPDX-License-Identifier: MIT
#include "host/dates/DateText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "host/dates/Scanner.h"
#include "mivo/model/DecimalNumber.h"

namespace mivo::host {
namespace {

using namespace std::chrono;

std::optional<local_days> scanDay(Scanner& scanner) {
  const auto yearNumber = scanner.number<4>();
  if (!yearNumber || *yearNumber < 1 || !scanner.take('-')) return std::nullopt;
  const auto monthNumber = scanner.number<2>();
  if (!monthNumber || !scanner.take('-')) return std::nullopt;
  const auto dayNumber = scanner.number<2>();
  if (!dayNumber) return std::nullopt;
  const year_month_day date{year{static_cast<int>(*yearNumber)}, month{*monthNumber}, day{*dayNumber}};
  if (!date.ok()) return std::nullopt;
  return local_days{date};
}

struct TimeOfDay {
  seconds sinceMidnight{0};
  bool isLeapSecond = false;
  std::string_view fraction = {};
};

std::optional<TimeOfDay> scanTime(Scanner& scanner) {
  const auto hour = scanner.number<2>();
  if (!hour || *hour > 23 || !scanner.take(':')) return std::nullopt;
  const auto minute = scanner.number<2>();
  if (!minute || *minute > 59) return std::nullopt;
  TimeOfDay time{.sinceMidnight = hours{*hour} + minutes{*minute}};
  if (!scanner.take(':')) return time;
  const auto second = scanner.number<2>();
  if (!second || *second > 60) return std::nullopt;
  time.sinceMidnight += seconds{*second};
  time.isLeapSecond = *second == 60;
  if (!scanner.take('.', ',')) return time;
  time.fraction = scanner.digits();
  if (time.fraction.empty()) return std::nullopt;
  return time;
}

/// 1 minus a fraction, digit by digit and so exact: "25" gives "75". The digits are not all zero.
void complement(char* first, char* last) {
  const auto isZero = [](char digit) { return digit == '0'; };
  char* const lastNonZero =
      std::find_if_not(std::make_reverse_iterator(last), std::make_reverse_iterator(first), isZero).base() - 1;
  for (char* digit = first; digit != lastNonZero; ++digit) *digit = static_cast<char>('9' - (*digit - '0'));
  *lastNonZero = static_cast<char>('9' + 1 - (*lastNonZero - '0'));
}

/// Rounds once, from the decimal digits of the whole instant, so that what `rfc3339` writes reads back.
Date instantAt(sys_seconds whole, std::string_view fraction) {
  const std::int64_t wholeSeconds = whole.time_since_epoch().count();
  constexpr std::size_t digitsThatMatter = 40;
  fraction = fraction.substr(0, digitsThatMatter);
  if (fraction.find_first_not_of('0') == std::string_view::npos)
    return dateSince1970(static_cast<double>(wholeSeconds));

  const bool isNegative = wholeSeconds < 0;
  std::array<char, 24 + digitsThatMatter> decimal;
  char* end = std::to_chars(decimal.data(), decimal.data() + 24, isNegative ? -wholeSeconds - 1 : wholeSeconds).ptr;
  *end++ = '.';
  char* const firstDigit = end;
  end = std::copy(fraction.begin(), fraction.end(), end);
  if (isNegative) complement(firstDigit, end);
  const double magnitude = readDecimalNumber({decimal.data(), end}).value_or(0);
  return dateSince1970(isNegative ? -magnitude : magnitude);
}

char* twoDigits(char* out, char separator, unsigned number) {
  *out++ = separator;
  *out++ = static_cast<char>('0' + number / 10);
  *out++ = static_cast<char>('0' + number % 10);
  return out;
}

char* yearInto(char* out, int year) {
  if (year < 0 || year > 9999) return out + std::snprintf(out, 8, "%04d", year);
  for (int place = 1000; place > 0; place /= 10) *out++ = static_cast<char>('0' + year / place % 10);
  return out;
}

/// The point and the digits after it, as many as tell the instant from all others.
char* fractionInto(char* out, double unixSeconds) {
  std::array<char, 400> decimal;
  char* const end =
      std::to_chars(decimal.data(), decimal.data() + decimal.size(), std::abs(unixSeconds), std::chars_format::fixed)
          .ptr;
  char* const point = std::find(decimal.data(), end, '.');
  if (unixSeconds < 0) complement(point + 1, end);
  return std::copy(point, end, out);
}

std::optional<Date> representable(Date date) { return isRepresentable(date) ? std::optional{date} : std::nullopt; }

}  // namespace

std::optional<DateText> parseDateText(std::string_view text) {
  Scanner scanner{text};
  const auto day = scanDay(scanner);
  if (!day) return std::nullopt;
  if (scanner.atEnd()) return DateText{.wallTime = *day};
  if (!scanner.take('T', 't', ' ')) return std::nullopt;
  const auto time = scanTime(scanner);
  if (!time) return std::nullopt;
  DateText date{.wallTime = *day + time->sinceMidnight, .fraction = time->fraction, .hasTime = true};
  scanner.take(' ');
  if (!scanner.atEnd()) {
    date.offset = scanOffset(scanner);
    if (!date.offset || !scanner.atEnd()) return std::nullopt;
  }
  if (time->isLeapSecond) {
    if (!date.offset || (date.wallTime.time_since_epoch() - *date.offset) % days{1} != seconds{0}) return std::nullopt;
  }
  return date;
}

std::optional<Date> instant(const DateText& date) {
  if (!date.offset) return std::nullopt;
  return representable(instantAt(sys_seconds{date.wallTime.time_since_epoch() - *date.offset}, date.fraction));
}

std::optional<Date> instant(const DateText& date, const adapters::TimeZone& zone) {
  if (date.offset) return instant(date);
  return representable(instantAt(zone.firstInstant(date.wallTime), date.fraction));
}

std::string_view Rfc3339::write(Date date) {
  const double unixSeconds = secondsSince1970(date);
  if (!std::isfinite(unixSeconds)) return std::isnan(unixSeconds) ? "nan" : unixSeconds < 0 ? "-inf" : "inf";
  const double wholeSeconds = std::floor(unixSeconds);
  const sys_seconds whole{seconds{static_cast<std::int64_t>(wholeSeconds)}};
  const sys_days dayBegin = floor<days>(whole);
  const year_month_day fields{dayBegin};
  const hh_mm_ss time{whole - dayBegin};

  char* out = yearInto(text.data(), static_cast<int>(fields.year()));
  out = twoDigits(out, '-', static_cast<unsigned>(fields.month()));
  out = twoDigits(out, '-', static_cast<unsigned>(fields.day()));
  out = twoDigits(out, 'T', static_cast<unsigned>(time.hours().count()));
  out = twoDigits(out, ':', static_cast<unsigned>(time.minutes().count()));
  out = twoDigits(out, ':', static_cast<unsigned>(time.seconds().count()));
  if (unixSeconds != wholeSeconds) out = fractionInto(out, unixSeconds);
  *out++ = 'Z';
  return {text.data(), out};
}

std::string rfc3339(Date date) {
  Rfc3339 text;
  return std::string{text.write(date)};
}

}  // namespace mivo::host
