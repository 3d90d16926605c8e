// SPDX-License-Identifier: MIT
#include "host/dates/WrittenDate.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "host/dates/Scanner.h"
#include "mivo/model/LowerCase.h"

namespace mivo::host {
namespace {

using namespace std::chrono;

struct Number {
  unsigned value = 0;
  std::size_t digitCount = 0;
};

std::optional<Number> scanNumber(Scanner& scanner, std::size_t mostDigits) {
  const std::string_view digits = scanner.digits();
  if (digits.empty() || digits.size() > mostDigits) return std::nullopt;
  Number number{.digitCount = digits.size()};
  std::from_chars(digits.data(), digits.data() + digits.size(), number.value);
  return number;
}

std::optional<local_days> day(unsigned yearNumber, unsigned monthNumber, unsigned dayNumber) {
  const year_month_day date{year{static_cast<int>(yearNumber)}, month{monthNumber}, std::chrono::day{dayNumber}};
  if (yearNumber < 1 || !date.ok()) return std::nullopt;
  return local_days{date};
}

/// In lower case, without points: "Sept." is "sept", "a.m." is "am".
std::string folded(std::string_view word) {
  std::string result;
  for (const char c : word)
    if (c != '.') result += lowerCase(c);
  return result;
}

std::optional<unsigned> scanYear(Scanner& scanner) {
  const auto number = scanNumber(scanner, 4);
  if (!number || (number->digitCount != 4 && number->digitCount != 2)) return std::nullopt;
  if (number->digitCount == 4) return number->value;
  return number->value + (number->value < 70 ? 2000 : 1900);
}

WrittenDate decided(std::optional<local_days> date) { return {.dayFirst = date, .monthFirst = date}; }

/// "Oct 23 2019", "Oct 23rd, 2019", behind the month.
WrittenDate scanAfterMonth(Scanner& scanner, unsigned monthNumber) {
  scanner.blanks();
  const auto dayNumber = scanNumber(scanner, 2);
  if (!dayNumber) return {};
  const std::string ending = folded(scanner.word());
  if (!ending.empty() && ending != "st" && ending != "nd" && ending != "rd" && ending != "th") return {};
  const bool isApart = scanner.take(',');
  if (!scanner.blanks() && !isApart) return {};
  const auto yearNumber = scanYear(scanner);
  return yearNumber ? decided(day(*yearNumber, monthNumber, dayNumber->value)) : WrittenDate{};
}

bool takeBetween(Scanner& scanner) {
  const bool isSeparated = scanner.take('-', '/', '.', ',');
  return scanner.blanks() || isSeparated;
}

/// "-Sep-2015", " Oct 2019", behind a day; nothing where no name of a month follows.
std::optional<WrittenDate> scanNamedMonth(Scanner& scanner, const DateNames& names, unsigned dayNumber) {
  Scanner ahead = scanner;
  takeBetween(ahead);
  const std::string_view word = ahead.word();
  if (word.empty()) return std::nullopt;
  scanner = ahead;
  const auto monthNumber = numberOf(names.months, word);
  if (!monthNumber || (!takeBetween(scanner) && !word.ends_with('.'))) return WrittenDate{};
  const auto yearNumber = scanYear(scanner);
  return yearNumber ? decided(day(*yearNumber, *monthNumber, dayNumber)) : WrittenDate{};
}

/// Three numbers between equal separators.
WrittenDate scanNumbers(Scanner& scanner, const Number& first) {
  const char separator = scanner.front();
  if (!scanner.take('-', '/', '.')) return {};
  scanner.blanks();
  const auto second = scanNumber(scanner, 2);
  if (!second || !scanner.take(separator)) return {};
  scanner.blanks();
  if (first.digitCount == 4) {
    const auto dayNumber = scanNumber(scanner, 2);
    return dayNumber ? decided(day(first.value, second->value, dayNumber->value)) : WrittenDate{};
  }
  const auto yearNumber = first.digitCount > 2 ? std::nullopt : scanYear(scanner);
  if (!yearNumber) return {};
  const auto dayFirst = day(*yearNumber, second->value, first.value);
  if (separator == '.') return decided(dayFirst);
  return {.dayFirst = dayFirst, .monthFirst = day(*yearNumber, first.value, second->value)};
}

WrittenDate scanDay(Scanner& scanner, const DateNames& names) {
  std::string_view word = scanner.word();
  if (!word.empty() && numberOf(names.weekdays, word)) {
    const bool isApart = scanner.take(',');
    if (!scanner.blanks() && !isApart) return {};
    word = scanner.word();
  }
  if (!word.empty()) {
    const auto monthNumber = numberOf(names.months, word);
    return monthNumber ? scanAfterMonth(scanner, *monthNumber) : WrittenDate{};
  }
  const auto first = scanNumber(scanner, 4);
  if (!first) return {};
  if (first->digitCount <= 2)
    if (const auto named = scanNamedMonth(scanner, names, first->value)) return *named;
  return scanNumbers(scanner, *first);
}

/// The half of the day that a word names, which may be in two parts: "p. m.".
std::optional<unsigned> scanHalfName(Scanner& scanner, const DateNames& names) {
  std::string name{scanner.word()};
  if (const auto half = numberOf(names.halves, name)) return half;
  if (name.empty() || !scanner.blanks()) return std::nullopt;
  return numberOf(names.halves, name.append(scanner.word()));
}

/// AM or PM behind a time, if they are there.
bool scanHalf(Scanner& scanner, const DateNames& names, unsigned& hour, bool isNeeded) {
  Scanner ahead = scanner;
  ahead.blanks();
  const auto half = scanHalfName(ahead, names);
  if (!half) return !isNeeded;
  if (hour > 12) return false;
  hour = hour % 12 + *half * 12;
  scanner = ahead;
  return true;
}

/// A colon, or the "h" of "20 h 30" and "20h30".
bool takeBeforeMinutes(Scanner& scanner) {
  if (scanner.take(':')) return true;
  Scanner ahead = scanner;
  ahead.blanks();
  if (!ahead.take('h', 'H')) return false;
  ahead.blanks();
  if (ahead.front() < '0' || ahead.front() > '9') return false;
  scanner = ahead;
  return true;
}

std::optional<WrittenTime> scanTime(Scanner& scanner, const DateNames& names) {
  auto hour = scanNumber(scanner, 2);
  if (!hour || hour->value > 23) return std::nullopt;
  WrittenTime time;
  const bool hasMinutes = takeBeforeMinutes(scanner);
  if (hasMinutes) {
    const auto minute = scanner.number<2>();
    if (!minute || *minute > 59) return std::nullopt;
    time.sinceMidnight = minutes{*minute};
    if (scanner.take(':')) {
      const auto second = scanner.number<2>();
      if (!second || *second > 59) return std::nullopt;
      time.sinceMidnight += seconds{*second};
      if (scanner.take('.', ',') && (time.fraction = scanner.digits()).empty()) return std::nullopt;
    }
  }
  if (!scanHalf(scanner, names, hour->value, !hasMinutes)) return std::nullopt;
  time.sinceMidnight += hours{hour->value};
  return time;
}

/// "+01:00", "Z", "UTC", "GMT+1" behind a time.
bool scanZone(Scanner& scanner, std::optional<seconds>& offset) {
  scanner.blanks();
  if (scanner.atEnd()) return true;
  Scanner ahead = scanner;
  const std::string name = folded(ahead.word());
  if (name == "utc" || name == "gmt") {
    scanner = ahead;
    if (scanner.atEnd()) {
      offset = seconds{0};
      return true;
    }
  }
  offset = scanOffset(scanner);
  return offset && scanner.atEnd();
}

/// "at" between a day and its time.
void takeLink(Scanner& scanner, const DateNames& names) {
  Scanner ahead = scanner;
  if (std::ranges::find(names.links, folded(ahead.word())) == names.links.end()) return;
  ahead.blanks();
  scanner = ahead;
}

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

WrittenDate from(const DateText& text) {
  WrittenDate date = decided(floor<days>(text.wallTime));
  if (text.hasTime) date.time = WrittenTime{text.wallTime - *date.dayFirst, text.fraction};
  date.offset = text.offset;
  return date;
}

/// Seconds since 1970, if they lie in the years 2001 to 2100.
std::optional<WrittenDate> sinceEpoch(std::string_view digits, std::string_view fraction) {
  constexpr sys_seconds first{sys_days{2001y / 1 / 1}}, end{sys_days{2101y / 1 / 1}};
  std::int64_t count = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), count);
  const sys_seconds instant{seconds{count}};
  if (instant < first || instant >= end) return std::nullopt;
  return from({.wallTime = local_seconds{instant.time_since_epoch()},
               .fraction = fraction,
               .offset = seconds{0},
               .hasTime = true});
}

/// "20261125", "202611250800", "20261125080015", with or without an offset or a `T`; seconds; milliseconds.
std::optional<WrittenDate> readDigits(std::string_view text) {
  Scanner scanner{text};
  const std::string_view digits = scanner.digits();
  if (scanner.atEnd() && digits.size() == 10) return sinceEpoch(digits, {});
  if (scanner.atEnd() && digits.size() == 13) return sinceEpoch(digits.substr(0, 10), digits.substr(10));
  std::string_view clock = digits.substr(std::min<std::size_t>(8, digits.size()));
  if (digits.size() == 8 && scanner.take('T', 't') && (clock = scanner.digits()).empty()) return std::nullopt;
  if (digits.size() < 8 || (clock.size() != 0 && clock.size() != 4 && clock.size() != 6)) return std::nullopt;
  Scanner fields{digits};
  const unsigned yearNumber = *fields.number<4>(), monthNumber = *fields.number<2>();
  WrittenDate date = decided(day(yearNumber, monthNumber, *fields.number<2>()));
  if (!date.dayFirst) return std::nullopt;
  if (clock.empty()) return scanner.atEnd() ? std::optional{date} : std::nullopt;
  Scanner times{clock};
  const unsigned hour = *times.number<2>(), minute = *times.number<2>();
  const unsigned second = times.atEnd() ? 0 : *times.number<2>();
  if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
  date.time = WrittenTime{.sinceMidnight = hours{hour} + minutes{minute} + seconds{second}};
  return scanZone(scanner, date.offset) ? std::optional{date} : std::nullopt;
}

DateNames namesOf(const std::array<const char*, 12>& months, const std::array<const char*, 7>& weekdays) {
  DateNames names;
  const auto add = [](std::vector<DateNames::Name>& list, std::string_view name, unsigned number) {
    list.push_back({std::string{name}, number});
    if (name.size() > 3) list.push_back({std::string{name.substr(0, 3)}, number});
  };
  for (unsigned index = 0; index < months.size(); ++index) add(names.months, months[index], index + 1);
  for (unsigned index = 0; index < weekdays.size(); ++index) add(names.weekdays, weekdays[index], index);
  names.months.push_back({"sept", 9});
  names.weekdays.insert(names.weekdays.end(), {{"tues", 2}, {"thur", 4}, {"thurs", 4}});
  names.halves = {{"am", 0}, {"pm", 1}};
  names.daysAgo = {{"today", 0}, {"yesterday", 1}};
  names.now = {"now"};
  names.links = {"at"};
  names.untils = {"to", "until", "till"};
  names.inSmallLetters = [](std::string_view text) { return lowerCase(text); };
  return names;
}

}  // namespace

std::optional<unsigned> numberOf(const std::vector<DateNames::Name>& names, std::string_view word) {
  const std::string plain = folded(word);
  const auto named = std::ranges::find(names, plain, &DateNames::Name::text);
  return named == names.end() ? std::nullopt : std::optional{named->number};
}

const DateNames& englishDateNames() {
  static const DateNames names =
      namesOf({"january", "february", "march", "april", "may", "june", "july", "august", "september", "october",
               "november", "december"},
              {"sunday", "monday", "tuesday", "wednesday", "thursday", "friday", "saturday"});
  return names;
}

std::optional<WrittenDate> readWrittenDate(std::string_view text, const DateNames& names) {
  text = trimmed(text);
  if (const auto plain = parseDateText(text)) return from(*plain);
  if (text.size() >= 8 && text.find_first_not_of("0123456789") >= 8) return readDigits(text);
  Scanner scanner{text};
  WrittenDate date = scanDay(scanner, names);
  if (!date.dayFirst && !date.monthFirst) return std::nullopt;
  if (scanner.atEnd()) return date;
  const bool isMarked = scanner.take('T', 't', ',');
  if (!scanner.blanks() && !isMarked) return std::nullopt;
  takeLink(scanner, names);
  date.time = scanTime(scanner, names);
  return date.time && scanZone(scanner, date.offset) ? std::optional{date} : std::nullopt;
}

std::optional<WrittenTime> readWrittenTime(std::string_view text, const DateNames& names) {
  Scanner scanner{trimmed(text)};
  const auto time = scanTime(scanner, names);
  return scanner.atEnd() ? time : std::nullopt;
}

std::optional<DateText> ordered(const WrittenDate& date, DateOrder order) {
  const auto& chosen = order == DateOrder::dayFirst ? date.dayFirst : date.monthFirst;
  if (!chosen) return std::nullopt;
  DateText text{.wallTime = *chosen, .offset = date.offset, .hasTime = date.time.has_value()};
  if (date.time) {
    text.wallTime += date.time->sinceMidnight;
    text.fraction = date.time->fraction;
  }
  return text;
}

}  // namespace mivo::host
