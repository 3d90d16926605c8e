// SPDX-License-Identifier: MIT
#pragma once

#include <unicode/calendar.h>
#include <unicode/unistr.h>

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

namespace mivo::adapters {

// ICU never learns a time zone here: its copy of the rules is as old as the library. Every calendar and formatter runs
// in UTC on wall-clock time.

/// A calendar of ICU in UTC, by its identifier and for a locale ("root" where only its fields are asked for). Gregorian
/// dates, and those of its relatives that count other years, are not dropped in 1582. Null where ICU cannot open it.
std::unique_ptr<icu::Calendar> openCalendar(std::string_view identifier, const std::string& localeTag);

/// The locale with a calendar chosen: names of months and eras, and the order of fields, are that calendar's.
icu::Locale localeWithCalendar(std::string_view identifier, const std::string& localeTag);

inline UDate millisecondsOf(std::chrono::local_seconds wall) {
  return static_cast<UDate>(wall.time_since_epoch().count()) * 1000;
}

std::string utf8(const icu::UnicodeString& text);

}  // namespace mivo::adapters
