// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <ostream>
#include <ranges>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "mivo/model/Date.h"
#include "mivo/model/UUID.h"
#include "mivo/store/Action.h"
#include "mivo/store/Names.h"
#include "mivo/store/Observed.h"
#include "mivo/store/Presentation.h"

namespace mivo {

// How states and actions read in test messages and issue reports:
//
//     didTapBar{0: 6BA7B810-...}   {totalFasts: 3, now: 2026-07-01T12:00:00Z, data: [...], timeRange: week}

template <class Candidate>
inline constexpr bool isOptional = false;
template <class Value>
inline constexpr bool isOptional<std::optional<Value>> = true;

template <class Candidate>
inline constexpr bool isPair = false;
template <class First, class Second>
inline constexpr bool isPair<std::pair<First, Second>> = true;

template <auto member, class Visit>
void fields(const Write<member>& write, Visit&& visit) {
  visit(memberName<member>(), write.value);
}

/// Prints what has a list of fields, cases, or a meaning of its own; the name of the type for anything else.
template <class Value>
void print(std::ostream& out, const Value& value);

/// The same as text.
template <class Value>
std::string printed(const Value& value) {
  std::ostringstream out;
  print(out, value);
  return out.str();
}

template <class Number, class... Format>
  requires std::is_arithmetic_v<Number>
void printNumber(std::ostream& out, Number number, Format... format) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, format...).ptr;
  out << std::string_view{digits.data(), static_cast<std::size_t>(end - digits.data())};
}

inline void printDate(std::ostream& out, Date date) {
  if (!isRepresentable(date)) {
    printNumber(out, secondsSince1970(date));
    out << " s";
    return;
  }
  const auto second = std::chrono::floor<std::chrono::seconds>(date);
  const auto day = std::chrono::floor<std::chrono::days>(second);
  const std::chrono::year_month_day ymd{day};
  const std::chrono::hh_mm_ss time{second - day};
  const auto digits = [&out](long long number, const char* after) {
    out << (number < 10 ? "0" : "") << number << after;
  };
  const int year = static_cast<int>(ymd.year());
  out << (year < 10 ? "000" : year < 100 ? "00" : year < 1000 ? "0" : "") << year << '-';
  digits(static_cast<unsigned>(ymd.month()), "-");
  digits(static_cast<unsigned>(ymd.day()), "T");
  digits(time.hours().count(), ":");
  digits(time.minutes().count(), ":");
  digits(time.seconds().count(), "");
  if (const double fraction = secondsBetween(second, date); fraction > 0) {
    std::ostringstream text;
    printNumber(text, fraction, std::chars_format::fixed, 7);  // more than a date can tell apart today
    out << text.view().substr(1);
  }
  out << 'Z';
}

template <std::ranges::input_range Range>
void printElements(std::ostream& out, const Range& range) {
  const char* separator = "[";
  for (const auto& element : range) {
    out << std::exchange(separator, ", ");
    print(out, element);
  }
  out << (*separator == '[' ? "[]" : "]");
}

template <Record Listed>
void printFields(std::ostream& out, const Listed& record) {
  const char* separator = "{";
  fields(record, [&](std::string_view name, const auto& field) {
    out << std::exchange(separator, ", ") << name << ": ";
    print(out, field);
  });
  out << (*separator == '{' ? "{}" : "}");
}

/// `didTapBar(...)`: a case with one field needs no list of fields, one with more does.
template <class Case>
void printCase(std::ostream& out, const Case& value) {
  out << typeName<Case>();
  if constexpr (Record<const Case>) {
    printFields(out, value);
  } else if constexpr (std::is_aggregate_v<Case> && !std::is_empty_v<Case>) {
    out << '(';
    print(out, payload(value));
    out << ')';
  }
}

template <class Value>
void print(std::ostream& out, const Value& value) {
  if constexpr (isObserved<Value>)
    print(out, value.value());
  else if constexpr (isOptional<Value> || isPresentation<Value>)
    value ? print(out, *value) : void(out << "none");
  else if constexpr (isPair<Value>)
    out << printed(value.first) << ": " << printed(value.second);
  else if constexpr (std::is_same_v<Value, bool>)
    out << (value ? "true" : "false");
  else if constexpr (std::is_arithmetic_v<Value>)
    printNumber(out, value);
  else if constexpr (std::is_enum_v<Value>)
    out << enumeratorText(value);
  else if constexpr (std::is_convertible_v<const Value&, std::string_view>)
    out << '"' << std::string_view{value} << '"';
  else if constexpr (std::is_same_v<Value, Date>)
    printDate(out, value);
  else if constexpr (std::is_same_v<Value, Duration>)
    out << printed(value.count()) << " s";
  else if constexpr (std::is_same_v<Value, UUID>)
    out << text(value);
  else if constexpr (Record<const Value>)
    printFields(out, value);
  else if constexpr (CaseUnion<Value>)
    std::visit([&out](const auto& active) { printCase(out, active); }, value);
  else if constexpr (std::ranges::input_range<const Value>)
    printElements(out, value);
  else
    out << typeName<Value>();
}

/// So that test frameworks and logs print what is ours: fields, records, actions, lists.
template <class Value>
  requires(isObserved<Value> || Record<const Value> || SharedList<Value> || CaseUnion<Value>)
std::ostream& operator<<(std::ostream& out, const Value& value) {
  print(out, value);
  return out;
}

}  // namespace mivo
