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

/// A time zone of the system's database, with its rules carried on without end.
///
/// A day is the half-open span between the first instants of two consecutive dates; a date's first instant is the first
/// one at which the clocks show its 00:00 or later. So a date that the zone skipped is empty, and an instant belongs to
/// the latest date that has begun by then, even where the clocks then went back over midnight.
///
/// Years 1 to 9999, a day more on either side.
/// Thread: any. Cost: 2 to 4 ns where the offset is that of the last question or the next one, a binary search else.
class TimeZone {
 public:
  /// "Europe/Berlin"; an error says what was expected. Reads a file the first time, and takes about 0.1 ms.
  static tl::expected<std::shared_ptr<const TimeZone>, std::string> load(const std::string& name);

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

  TimeZone(std::string name, Changes changes);

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
