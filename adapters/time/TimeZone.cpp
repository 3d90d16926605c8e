// SPDX-License-Identifier: MIT
#include "adapters/time/TimeZone.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace mivo::adapters {

using namespace std::chrono;

namespace {

// The Gregorian calendar repeats after 400 years, weekdays included, and so does every rule for clock changes.
constexpr years yearsOfACycle{400};
constexpr seconds cycle = days{146097};

std::optional<std::string> faultOf(const Transitions& known) {
  const auto isOffset = [](seconds offset) { return abs(offset) < days{1}; };
  if (known.lastYear < year{1} || known.lastYear > year{9999}) return "expected a last year from 1 to 9999";
  if (!isOffset(known.firstOffset)) return "expected a first offset of less than a day";
  const sys_seconds end = sys_days{(known.lastYear + years{1}) / 1 / 1};
  sys_seconds before = sys_seconds{sys_days{year{1} / 1 / 1}} - seconds{1};
  for (std::size_t place = 0; place < known.list.size(); ++place) {
    const auto& [instant, offset] = known.list[place];
    const std::string which = "transition " + std::to_string(place + 1) + ": ";
    if (instant <= before) return which + "expected a later instant than before it, from the year 1 on";
    if (instant >= end) return which + "expected an instant up to the end of the last year";
    if (!isOffset(offset)) return which + "expected an offset of less than a day";
    before = instant;
  }
  return std::nullopt;
}

sys_days newYear(year which) { return sys_days{which / 1 / 1}; }

// By what its dates fall on: the weekday that a year begins with, and its length.
std::size_t kindOf(year which) { return weekday{newYear(which)}.c_encoding() + (which.is_leap() ? 7 : 0); }

// The places in a list of the transitions of one year.
struct ListedYear {
  year which{};
  std::size_t begin = 0, end = 0;
};

ListedYear listedYear(const std::vector<Transition>& list, year which) {
  const auto placeOf = [&list](sys_seconds instant) {
    return static_cast<std::size_t>(std::ranges::lower_bound(list, instant, {}, &Transition::instant) - list.begin());
  };
  return {which, placeOf(newYear(which)), placeOf(newYear(which + years{1}))};
}

// For a cycle beyond the list; false where it shows no rule.
bool carryOn(Transitions& known) {
  std::array<ListedYear, 14> latest;
  for (year which = known.lastYear - Transitions::yearsThatShowARule + years{1}; which <= known.lastYear; ++which) {
    const ListedYear listed = listedYear(known.list, which);
    if (listed.begin == listed.end) return false;
    latest[kindOf(which)] = listed;
  }
  for (year which = known.lastYear + years{1}; which <= known.lastYear + yearsOfACycle; ++which) {
    const ListedYear& alike = latest[kindOf(which)];
    const days later = newYear(which) - newYear(alike.which);
    for (std::size_t place = alike.begin; place < alike.end; ++place) {
      const Transition transition = known.list[place];
      known.list.push_back({transition.instant + later, transition.offset});
    }
  }
  return true;
}

}  // namespace

tl::expected<std::shared_ptr<const TimeZone>, std::string> TimeZone::fromTransitions(std::string name,
                                                                                     Transitions known) {
  if (const auto fault = faultOf(known)) return tl::unexpected{"time zone \"" + name + "\": " + *fault};
  const bool goesOn = carryOn(known);
  using Offset = decltype(Span::offset);
  Changes changes;
  changes.reserve(known.list.size() + 2);
  changes.push_back({sys_seconds::min(), duration_cast<Offset>(known.firstOffset), {}});
  for (const auto& [instant, offset] : known.list) changes.push_back({instant, duration_cast<Offset>(offset), {}});
  return std::shared_ptr<const TimeZone>{new TimeZone{std::move(name), std::move(changes), goesOn}};
}

TimeZone::TimeZone(std::string name, Changes changes, bool goesOn)
    : zoneName{std::move(name)}, spans{std::move(changes)}, repeatFrom{sys_seconds::max()} {
  // Two days past the last change, so that a wall time near a change finds what came before it.
  if (goesOn) repeatFrom = spans.back().begin + days{2};
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
