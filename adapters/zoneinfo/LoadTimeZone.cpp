// SPDX-License-Identifier: MIT
#include "adapters/zoneinfo/LoadTimeZone.h"

#include <cctz/civil_time.h>
#include <cctz/time_zone.h>

#include <chrono>
#include <utility>

#include "adapters/zoneinfo/TimeZoneNames.h"

namespace mivo::adapters {

using namespace std::chrono;

namespace {

// A zone whose rule goes on for ever is listed by cctz for 400 years past the last change that its file names; every
// other zone has seen its last change by then.
constexpr year endlessIfChangedAfter{2300};
constexpr years listedPastItsFile{400};

seconds sinceEpoch(const cctz::civil_second& wall) { return seconds{wall - cctz::civil_second{1970, 1, 1, 0, 0, 0}}; }

year yearOf(const Transition& transition) { return year_month_day{floor<days>(transition.instant)}.year(); }

// As many years of an endless rule as show it; the zone itself carries it on.
void cut(Transitions& known) {
  known.lastYear = yearOf(known.list.back()) - listedPastItsFile + Transitions::yearsThatShowARule;
  while (yearOf(known.list.back()) > known.lastYear) known.list.pop_back();
}

}  // namespace

tl::expected<std::shared_ptr<const TimeZone>, std::string> loadTimeZone(const std::string& name) {
  cctz::time_zone zone;
  if (!isTimeZoneName(name) || !cctz::load_time_zone(name, &zone)) return tl::unexpected{unknownTimeZone(name)};

  auto at = cctz::time_point<cctz::seconds>::min();
  Transitions known{.firstOffset = seconds{zone.lookup(at).offset}, .list = {}, .lastYear = Transitions::noYearLeft};
  seconds offset = known.firstOffset;
  for (cctz::time_zone::civil_transition change; zone.next_transition(at, &change);) {
    at = cctz::time_point<cctz::seconds>{sinceEpoch(change.from) - offset};
    offset += sinceEpoch(change.to) - sinceEpoch(change.from);
    known.list.push_back({at, offset});
  }
  if (!known.list.empty() && yearOf(known.list.back()) > endlessIfChangedAfter) cut(known);
  return TimeZone::fromTransitions(name, std::move(known));
}

}  // namespace mivo::adapters
