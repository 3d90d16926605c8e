// SPDX-License-Identifier: MIT
#include "adapters/time/TimeZone.h"

#include <cctz/civil_time.h>
#include <cctz/time_zone.h>

#include <algorithm>
#include <utility>

#include "adapters/time/TimeZoneNames.h"

namespace mivo::adapters {

using namespace std::chrono;

namespace {

// The Gregorian calendar repeats after 400 years, weekdays included, and so does every rule for clock changes.
constexpr seconds cycle = days{146097};

// A zone whose rule goes on for ever is listed by cctz for 400 years past the last change that its file names; every
// other zone has seen its last change by then.
constexpr sys_seconds endlessIfChangedAfter = sys_days{year{2300} / 1 / 1};

seconds sinceEpoch(const cctz::civil_second& wall) { return seconds{wall - cctz::civil_second{1970, 1, 1, 0, 0, 0}}; }

}  // namespace

tl::expected<std::shared_ptr<const TimeZone>, std::string> TimeZone::load(const std::string& name) {
  cctz::time_zone zone;
  if (!isTimeZoneName(name) || !cctz::load_time_zone(name, &zone)) return tl::unexpected{unknownTimeZone(name)};

  const auto beginningOfTime = cctz::time_point<cctz::seconds>::min();
  Changes changes{{sys_seconds::min(), duration<std::int32_t>{zone.lookup(beginningOfTime).offset}, {}}};
  cctz::time_zone::civil_transition change;
  for (auto at = beginningOfTime; zone.next_transition(at, &change);) {
    const seconds before = changes.back().offset;
    at = cctz::time_point<cctz::seconds>{sinceEpoch(change.from) - before};
    const auto after = static_cast<std::int32_t>((before + sinceEpoch(change.to) - sinceEpoch(change.from)).count());
    changes.push_back({at, duration<std::int32_t>{after}, {}});
  }
  return std::shared_ptr<const TimeZone>{new TimeZone{name, std::move(changes)}};
}

TimeZone::TimeZone(std::string name, Changes changes)
    : zoneName{std::move(name)}, spans{std::move(changes)}, repeatFrom{sys_seconds::max()} {
  // Two days past the last change, so that a wall time near a change finds what came before it.
  if (spans.back().begin > endlessIfChangedAfter) repeatFrom = spans.back().begin + days{2};
  largestOffset = std::ranges::max_element(spans, {}, &Span::offset)->offset;

  spans.front().begun = decltype(Span::begun)::min();
  for (std::size_t i = 1; i < spans.size(); ++i) {
    const local_seconds lastShown{(spans[i].begin - seconds{1}).time_since_epoch() + spans[i - 1].offset};
    spans[i].begun = std::max(spans[i - 1].begun, decltype(Span::begun){floor<days>(lastShown).time_since_epoch()});
  }
  spans.push_back({sys_seconds::max(), spans.back().offset, spans.back().begun});
}

seconds TimeZone::cyclesPast(sys_seconds instant) const {
  if (instant < repeatFrom) return seconds{0};
  return ((instant - repeatFrom) / cycle + 1) * cycle;
}

std::size_t TimeZone::search(sys_seconds instant) const {
  return static_cast<std::size_t>(std::ranges::upper_bound(spans, instant, {}, &Span::begin) - spans.begin()) - 1;
}

TimeZone::Place TimeZone::place(sys_seconds instant) const {
  const seconds shift = cyclesPast(instant);
  instant -= shift;
  std::size_t span = lastSpan.load(std::memory_order_relaxed);
  if (instant < spans[span].begin || instant >= spans[span + 1].begin) {
    span = search(instant);
    lastSpan.store(static_cast<std::uint32_t>(span), std::memory_order_relaxed);
  }
  return {span, shift};
}

// The first span, from one on that no earlier one can precede, in which the clocks come to show `wall` or later.
std::size_t TimeZone::spanReaching(local_seconds wall, std::size_t from) const {
  while (spans[from + 1].begin <= sys_seconds{wall.time_since_epoch() - spans[from].offset}) ++from;
  return from;
}

sys_seconds TimeZone::reach(local_seconds wall, std::size_t from) const {
  const Span& span = spans[spanReaching(wall, from)];
  return std::max(span.begin, sys_seconds{wall.time_since_epoch() - span.offset});
}

seconds TimeZone::offset(sys_seconds instant) const { return spans[place(instant).span].offset; }

local_seconds TimeZone::wallTime(sys_seconds instant) const {
  return local_seconds{instant.time_since_epoch() + offset(instant)};
}

WallTimeInstants TimeZone::instants(local_seconds wall) const {
  const seconds shift = cyclesPast(sys_seconds{wall.time_since_epoch()});
  wall -= shift;
  const auto readIn = [wall](const Span& span) { return sys_seconds{wall.time_since_epoch() - span.offset}; };

  const std::size_t found = spanReaching(wall, search(sys_seconds{wall.time_since_epoch()} - largestOffset));
  const sys_seconds first = readIn(spans[found]);
  if (first < spans[found].begin)
    return {WallTimeInstants::Kind::skipped, readIn(spans[found - 1]) + shift, first + shift};

  const sys_seconds second = readIn(spans[found + 1]);
  if (second >= spans[found + 1].begin) return {WallTimeInstants::Kind::repeated, first + shift, second + shift};
  return {WallTimeInstants::Kind::unique, first + shift, first + shift};
}

sys_seconds TimeZone::firstInstant(local_seconds wall) const {
  const seconds shift = cyclesPast(sys_seconds{wall.time_since_epoch()});
  wall -= shift;
  return reach(wall, search(sys_seconds{wall.time_since_epoch()} - largestOffset)) + shift;
}

local_days TimeZone::dayIn(const Span& span, sys_seconds instant) const {
  return std::max(local_days{span.begun}, floor<days>(local_seconds{instant.time_since_epoch() + span.offset}));
}

local_days TimeZone::day(sys_seconds instant) const {
  const Place here = place(instant);
  return dayIn(spans[here.span], instant - here.shift) + duration_cast<days>(here.shift);
}

sys_seconds TimeZone::startOfDay(sys_seconds instant) const {
  const Place here = place(instant);
  const Span& span = spans[here.span];
  const local_days today = dayIn(span, instant - here.shift);
  if (today.time_since_epoch() > span.begun) return reach(today, here.span) + here.shift;
  return firstInstant(today) + here.shift;
}

sys_seconds TimeZone::endOfDay(sys_seconds instant) const {
  const Place here = place(instant);
  const local_days tomorrow = dayIn(spans[here.span], instant - here.shift) + days{1};
  return reach(tomorrow, here.span) + here.shift;
}

}  // namespace mivo::adapters
