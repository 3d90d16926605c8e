// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "adapters/time/TimeZone.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "adapters/zoneinfo/TimeZoneNames.h"
#include "tests/support/CLibraryZone.h"

namespace mivo::adapters {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using tests::CLibraryZone;
using tests::firstThat;

constexpr sys_days firstTested{1900y / 1 / 1}, lastTested{2101y / 1 / 1};

// Many names share one file; each file is walked once, under the first of its names.
std::vector<std::string> distinctZones() {
  std::map<std::string, std::string> nameOfContent;
  for (const std::string& name : timeZoneNames()) {
    std::ifstream file{timeZoneDirectory() / name, std::ios::binary};
    nameOfContent.emplace(std::string{std::istreambuf_iterator<char>{file}, {}}, name);
  }
  std::vector<std::string> names;
  for (const auto& [content, name] : nameOfContent) names.push_back(name);
  return names;
}

// The first instant at which the C library gives `date` or a later one, where its offset changes at `change` only.
sys_seconds expectedStart(const CLibraryZone& expected, local_days date, sys_seconds change) {
  const auto hasBegun = [&](sys_seconds at) { return expected.date(at) >= date; };
  const sys_seconds near{date.time_since_epoch()};
  if (const sys_seconds begun = firstThat(std::min(near, change) - 2 * 24h, change, hasBegun); begun < change)
    return begun;
  return firstThat(change, std::max(near, change) + 2 * 24h, hasBegun);
}

void compareAround(sys_seconds change, const TimeZone& zone, const CLibraryZone& expected) {
  for (const seconds beside : {-1s, 0s})
    ASSERT_EQ(zone.offset(change + beside), expected.offset(change + beside))
        << (change + beside).time_since_epoch().count();
  const local_days date = zone.day(change);
  for (local_days day = date - days{2}; day <= date + days{2}; day += days{1}) {
    const sys_seconds start = expectedStart(expected, day, change);
    ASSERT_EQ(zone.startOfDay(day), start) << "day " << day.time_since_epoch().count();
    ASSERT_GE(zone.day(start), day);
    ASSERT_LT(zone.day(start - 1s), day);
    ASSERT_EQ(zone.startOfDay(start), start);
    ASSERT_EQ(zone.endOfDay(start - 1s), start);
  }
}

void compareAllYears(const TimeZone& zone, const CLibraryZone& expected) {
  seconds before = expected.offset(firstTested - days{6});
  for (sys_seconds at = firstTested; at < lastTested; at += days{6}) {
    const seconds offset = expected.offset(at);
    ASSERT_EQ(zone.offset(at), offset) << at.time_since_epoch().count();
    if (offset == before) continue;
    const auto hasChanged = [&](sys_seconds moment) { return expected.offset(moment) != before; };
    compareAround(firstThat(at - days{6}, at, hasChanged), zone, expected);
    if (testing::Test::HasFatalFailure()) return;
    before = offset;
  }
}

void compareFarYears(const TimeZone& zone, const CLibraryZone& expected) {
  for (const int far : {1, 1500, 1850, 2150, 2299, 2300, 2437, 2438, 2439, 2501, 2837, 2838, 4000, 9000, 9998})
    for (sys_seconds at = sys_days{year{far} / 1 / 1}; at < sys_days{year{far + 1} / 1 / 1}; at += days{29})
      ASSERT_EQ(zone.offset(at), expected.offset(at)) << "year " << far << ", " << at.time_since_epoch().count();
}

TEST(EveryZone, offsetsAndDayBordersAreThoseOfTheCLibrary) {
  const std::vector<std::string> names = distinctZones();
  ASSERT_GT(names.size(), 300U) << "is the time-zone database installed?";
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    const auto zone = loadTimeZone(name);
    ASSERT_TRUE(zone) << zone.error();
    const CLibraryZone expected{name};
    compareAllYears(**zone, expected);
    compareFarYears(**zone, expected);
    if (HasFatalFailure()) return;
  }
}

/// The changes that somebody finds between two years who can only ask for offsets.
std::vector<Transition> foundByAsking(const TimeZone& zone, year from, year to) {
  constexpr days step{6};
  std::vector<Transition> found;
  seconds before = zone.offset(sys_days{from / 1 / 1});
  for (sys_seconds at = sys_days{from / 1 / 1} + step; at < sys_days{to / 1 / 1}; at += step) {
    const auto hasChanged = [&](sys_seconds moment) { return zone.offset(moment) != before; };
    if (!hasChanged(at)) continue;
    const sys_seconds change = firstThat(at - step, at, hasChanged);
    before = zone.offset(change);
    found.push_back({change, before});
  }
  return found;
}

// The years after 2087, when the last list of Ramadans ends, show the rules that go on.
TEST(EveryZone, isTheSameMadeOfTheTransitionsThatAskingFinds) {
  constexpr year firstYear{1800}, lastYear{2130};
  for (const std::string& name : distinctZones()) {
    SCOPED_TRACE(name);
    const auto expected = loadTimeZone(name).value();
    const auto zone = TimeZone::fromTransitions(name, {.firstOffset = expected->offset(sys_days{firstYear / 1 / 1}),
                                                       .list = foundByAsking(*expected, firstYear, lastYear),
                                                       .lastYear = lastYear - years{1}});
    ASSERT_TRUE(zone) << zone.error();
    for (const auto& [from, to] : {std::pair{lastYear, 2172y}, {2396y, 2440y}})
      ASSERT_EQ(foundByAsking(**zone, from, to), foundByAsking(*expected, from, to)) << "from " << int{from};
    for (sys_seconds at = sys_days{firstYear / 1 / 1}; at < sys_days{lastYear / 1 / 1}; at += days{50})
      ASSERT_EQ((*zone)->startOfDay(at), expected->startOfDay(at)) << at.time_since_epoch().count();
  }
}

}  // namespace
}  // namespace mivo::adapters
