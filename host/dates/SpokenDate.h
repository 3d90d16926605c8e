// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "adapters/time/TimeZone.h"
#include "host/dates/WrittenDate.h"
#include "mivo/model/Date.h"
#include "mivo/model/Translatable.h"

namespace mivo::host {

/// What a date that somebody types is understood by.
struct SpokenFrame {
  Date now;
  const adapters::TimeZone& zone;
  DateOrder order;                 ///< of the user's locale; holds where a date can be read in both
  std::optional<Date> after = {};  ///< for the end of something: its start
};

/// Said of a date that is two, as `typedDate` writes them.
inline constexpr std::string_view expectedOneOfTwo =
    translatable("expected {1} or {2}, since the clocks show this twice");

/// Why a text gives no date: it is none, or it is two that clocks show alike.
struct SpokenFault {
  struct Readings {
    Date first, second;
    bool operator==(const Readings&) const = default;
  };
  std::optional<Readings> readings;
  bool operator==(const SpokenFault&) const = default;
};

/// Reads a date and time as people say it, in small letters:
///
///     20:00   8 pm   yesterday 20:00   sat 7am   2h ago   -90m   now   25.11.2026 8:00   11/25/2026 8:00 am
///
/// and whatever `readWrittenDate` reads that has a time. Of a time alone, or of one on a day of the week, the last one
/// that has passed is meant; behind `after` the first one after it. A time that the clocks skipped is the first instant
/// after the gap; of one that they show twice, whichever the frame leaves, else both are the answer.
tl::expected<Date, SpokenFault> readSpokenDate(std::string_view text, const DateNames& names, const SpokenFrame& frame);

/// "2026-02-28 20:04", as it can be typed; with the offset where the clocks show
/// that time twice: "2026-10-25 02:30+01:00".
std::string typedDate(Date date, const adapters::TimeZone& zone);

/// The offset of a date whose time the clocks show twice, "+01:00"; empty for any other.
std::string offsetIfDoubled(Date date, const adapters::TimeZone& zone);

}  // namespace mivo::host
