// SPDX-License-Identifier: MIT
#include "host/dates/SpokenDate.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

#include "host/dates/NamedLength.h"
#include "host/dates/Scanner.h"

namespace mivo::host {
namespace {

using namespace std::chrono;
using adapters::WallTimeInstants;
using Answer = tl::expected<Date, SpokenFault>;

tl::unexpected<SpokenFault> none() { return tl::unexpected{SpokenFault{}}; }

sys_seconds wholeSecond(Date date) { return floor<seconds>(date); }

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

/// The instants that a wall time may mean: two where the clocks show it twice.
std::vector<Date> instantsOf(local_seconds wall, const adapters::TimeZone& zone) {
  const auto [kind, first, second] = zone.instants(wall);
  if (kind == WallTimeInstants::Kind::skipped) return {zone.firstInstant(wall)};
  if (kind == WallTimeInstants::Kind::repeated) return {first, second};
  return {first};
}

/// Those that the frame leaves: none of the future, or none that is not after the start.
std::vector<Date> fitting(std::vector<Date> instants, const SpokenFrame& frame) {
  std::erase_if(instants, [&](Date instant) { return frame.after ? instant <= *frame.after : instant > frame.now; });
  return instants;
}

Answer oneOf(const std::vector<Date>& instants) {
  if (instants.empty()) return none();
  if (instants.size() == 1) return instants.front();
  return tl::unexpected{SpokenFault{SpokenFault::Readings{instants.front(), instants.back()}}};
}

/// A day and a time that are both said.
Answer said(local_seconds wall, const SpokenFrame& frame) {
  auto instants = instantsOf(wall, frame.zone);
  if (instants.size() == 1) return instants.front();
  const auto left = fitting(instants, frame);
  return oneOf(left.empty() ? instants : left);
}

/// A time of whichever day is nearest, or nearest of one weekday.
Answer nearest(seconds time, std::optional<unsigned> dayOfWeek, const SpokenFrame& frame) {
  constexpr int mostDays = 8;
  const days step{frame.after ? 1 : -1};
  local_days day = floor<days>(frame.zone.wallTime(wholeSecond(frame.after.value_or(frame.now))));
  for (int count = 0; count <= mostDays; ++count, day += step) {
    if (dayOfWeek && weekday{day}.c_encoding() != *dayOfWeek) continue;
    const auto instants = fitting(instantsOf(day + time, frame.zone), frame);
    if (!instants.empty()) return oneOf(instants);
  }
  return none();
}

/// "2h ago", "-90m", "90 min ago".
std::optional<Date> ago(std::string_view text, Date now) {
  const bool isSigned = text.starts_with('-');
  if (!isSigned && !text.ends_with(" ago")) return std::nullopt;
  const auto length = readNamedLength(trimmed(isSigned ? text.substr(1) : text.substr(0, text.size() - 4)));
  return length ? std::optional{now - Duration{*length}} : std::nullopt;
}

/// What stands behind a word: its time.
std::optional<seconds> timeBehind(Scanner scanner, std::string_view text, const DateNames& names) {
  const bool isApart = scanner.take(',');
  if (!scanner.blanks() && !isApart) return std::nullopt;
  std::string_view rest = text.substr(text.size() - scanner.size());
  Scanner link{rest};
  const std::string_view word = link.word();
  if (!word.empty() && std::ranges::find(names.links, word) != names.links.end()) rest.remove_prefix(word.size());
  const auto time = readWrittenTime(rest, names);
  return time ? std::optional{time->sinceMidnight} : std::nullopt;
}

/// "yesterday 20:00", "sat 7am".
Answer onANamedDay(std::string_view text, const DateNames& names, const SpokenFrame& frame) {
  Scanner scanner{text};
  const std::string_view word = scanner.word();
  const auto time = timeBehind(scanner, text, names);
  if (!time) return none();
  if (const auto daysAgo = numberOf(names.daysAgo, word)) {
    const local_days today = floor<days>(frame.zone.wallTime(wholeSecond(frame.now)));
    return said(today - days{*daysAgo} + *time, frame);
  }
  if (const auto dayOfWeek = numberOf(names.weekdays, word)) return nearest(*time, dayOfWeek, frame);
  return none();
}

Answer written(const WrittenDate& date, const SpokenFrame& frame) {
  auto text = ordered(date, frame.order);
  if (!text) text = ordered(date, frame.order == DateOrder::dayFirst ? DateOrder::monthFirst : DateOrder::dayFirst);
  if (!text || !text->hasTime) return none();
  if (text->offset || !text->fraction.empty()) {
    const auto found = instant(*text, frame.zone);
    return found ? Answer{*found} : none();
  }
  return said(text->wallTime, frame);
}

}  // namespace

Answer readSpokenDate(std::string_view text, const DateNames& names, const SpokenFrame& frame) {
  text = trimmed(text);
  Answer answer = none();
  if (std::ranges::find(names.now, text) != names.now.end())
    answer = frame.now;
  else if (const auto date = readWrittenDate(text, names))
    answer = written(*date, frame);
  else if (const auto time = readWrittenTime(text, names))
    answer = nearest(time->sinceMidnight, {}, frame);
  else if (const auto before = ago(text, frame.now))
    answer = *before;
  else
    answer = onANamedDay(text, names, frame);
  return answer && !isRepresentable(*answer) ? none() : answer;
}

std::string offsetIfDoubled(Date date, const adapters::TimeZone& zone) {
  const sys_seconds instant = wholeSecond(date);
  if (zone.instants(zone.wallTime(instant)).kind != WallTimeInstants::Kind::repeated) return {};
  const seconds offset = zone.offset(instant);
  const hh_mm_ss parts{abs(offset)};
  std::array<char, 16> text;
  std::snprintf(text.data(), text.size(), "%c%02d:%02d", offset < seconds{0} ? '-' : '+',
                static_cast<int>(parts.hours().count()), static_cast<int>(parts.minutes().count()));
  return text.data();
}

std::string typedDate(Date date, const adapters::TimeZone& zone) {
  const local_seconds wall = zone.wallTime(wholeSecond(date));
  const local_days day = floor<days>(wall);
  const year_month_day fields{day};
  const hh_mm_ss time{wall - day};
  std::array<char, 40> text;
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d", static_cast<int>(fields.year()),
                static_cast<unsigned>(fields.month()), static_cast<unsigned>(fields.day()),
                static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()));
  return text.data() + offsetIfDoubled(date, zone);
}

}  // namespace mivo::host
