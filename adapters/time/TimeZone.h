// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace mivo::adapters {

/// The instants at which a zone's clocks show a wall time.
///
///     unique    `first` and `second` are the same
///     repeated  the clocks went back over it: `first` is the earlier one, `second` the later one
///     skipped   the clocks went forward over it: `first` reads it with the offset before the change, so it lies as far
///               behind the change as the wall time lies in the gap; `second` reads it with the offset after it
struct WallTimeInstants {
  enum class Kind { unique, repeated, skipped } kind = Kind::unique;
  std::chrono::sys_seconds first, second;
};

/// A change of a zone's clocks: from `instant` on they show UTC plus `offset`, which is less than a day either way.
struct Transition {
  std::chrono::sys_seconds instant;
  std::chrono::seconds offset;  ///< east of UTC
  bool operator==(const Transition&) const = default;
};

/// What is known of a zone: every change of its clocks up to the end of a year, in UTC.
///
/// Where each of the last 40 years has a change the rule behind them is carried on without end: such rules go by month,
/// day and weekday, so that a year has the changes of the latest listed one that begins on the same weekday and is as
/// long; all fourteen kinds of years come within 40. Where one of them has none, the last offset stays for ever. So a
/// list that ends while a zone still follows its moon ("Africa/Casablanca" up to 2087) is to go on beyond that.
struct Transitions {
  static constexpr std::chrono::years yearsThatShowARule{40};
  static constexpr std::chrono::year noYearLeft{9999};  ///< as the last year: there are no further changes

  std::chrono::seconds firstOffset{};  ///< before the first of the list
  std::vector<Transition> list = {};   ///< ascending; within the years 1 to `lastYear`
  std::chrono::year lastYear = noYearLeft;
};

/// A time zone, with its rules carried on without end.
///
///     // Berlin, for whoever asks about 1945 to 1979 only
///     TimeZone::fromTransitions("Europe/Berlin", {.firstOffset = 1h, .list = {{sys_days{1945y / 4 / 2} + 1h, 2h},
///     ...},
///                                                 .lastYear = 1979y});
///
/// A day is the half-open span between the first instants of two consecutive dates; a date's first instant is the first
/// one at which the clocks show its 00:00 or later. So a date that the zone skipped is empty, and an instant belongs to
/// the latest date that has begun by then, even where the clocks then went back over midnight.
///
/// Years 1 to 9999, a day more on either side.
/// Thread: any. Cost: 2 to 4 ns where the offset is that of the last question or the next one, a binary search else.
class TimeZone {
 public:
  /// An error names the zone and the transition, counted from 1, and says what was expected: instants that ascend
  /// within the years, offsets of less than a day, a last year from 1 to 9999. Cost: 10 us where a rule is carried on.
  static tl::expected<std::shared_ptr<const TimeZone>, std::string> fromTransitions(std::string name,
                                                                                    Transitions known);

  std::string_view name() const { return zoneName; }

  /// Seconds east of UTC.
  std::chrono::seconds offset(std::chrono::sys_seconds instant) const;

  /// What the clocks show.
  std::chrono::local_seconds wallTime(std::chrono::sys_seconds instant) const;

  WallTimeInstants instants(std::chrono::local_seconds wall) const;

  /// The first instant at which the clocks show `wall` or later: the first of two, or the end of the gap.
  std::chrono::sys_seconds firstInstant(std::chrono::local_seconds wall) const;

  /// The date that an instant belongs to.
  std::chrono::local_days day(std::chrono::sys_seconds instant) const;

  std::chrono::sys_seconds startOfDay(std::chrono::local_days day) const { return firstInstant(day); }
  /// The start of the day that an instant belongs to, and that of the next one.
  std::chrono::sys_seconds startOfDay(std::chrono::sys_seconds instant) const;
  std::chrono::sys_seconds endOfDay(std::chrono::sys_seconds instant) const;

 private:
  /// From `begin` up to the next span's. `begun` is the latest date that began before it; it only matters where the
  /// clocks went back over midnight.
  struct Span {
    std::chrono::sys_seconds begin;
    std::chrono::duration<std::int32_t> offset;
    std::chrono::duration<std::int32_t, std::chrono::days::period> begun;
  };
  struct Place {
    std::size_t span;
    std::chrono::seconds shift;  ///< a multiple of 400 years, taken off the question and put back on the answer
  };
  using Changes = std::vector<Span>;

  TimeZone(std::string name, Changes changes, bool goesOn);

  std::chrono::seconds cyclesPast(std::chrono::sys_seconds instant) const;
  Place place(std::chrono::sys_seconds instant) const;
  std::size_t search(std::chrono::sys_seconds instant) const;
  std::size_t spanReaching(std::chrono::local_seconds wall, std::size_t from) const;
  std::chrono::sys_seconds reach(std::chrono::local_seconds wall, std::size_t from) const;
  std::chrono::local_days dayIn(const Span& span, std::chrono::sys_seconds instant) const;

  std::string zoneName;
  Changes spans;                        // closed by one that begins at the end of time
  std::chrono::sys_seconds repeatFrom;  // from here on the last 400 years repeat
  std::chrono::seconds largestOffset;
  mutable std::atomic<std::uint32_t> lastSpan{0};
};

}  // namespace mivo::adapters
