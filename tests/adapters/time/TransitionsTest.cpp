// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "adapters/time/TimeZone.h"

namespace mivo::adapters {
namespace {

using namespace std::chrono;

sys_seconds lastSundayOf(year_month month) { return sys_days{month / Sunday[last]} + 1h; }

// Where clocks are 13 hours ahead, midnight of a January's first Sunday may still be December's in UTC.
sys_seconds firstSundayOf(year_month month) { return sys_days{month / Sunday[1]} - 13h; }

struct RuleRow {
  const char* name;
  sys_seconds (*of)(year_month);
  month forward, back;
};
void PrintTo(const RuleRow& row, std::ostream* out) { *out << row.name; }
class CarriedRule : public testing::TestWithParam<RuleRow> {};

// Of 40 years, and of no more.
Transitions listed(const RuleRow& row, year lastYear) {
  Transitions known{.firstOffset = 1h, .list = {}, .lastYear = lastYear};
  for (year which = lastYear - years{40}; which <= lastYear + years{1}; ++which) {
    known.list.push_back({row.of(which / row.forward), 2h});
    known.list.push_back({row.of(which / row.back), 1h});
  }
  std::ranges::sort(known.list, {}, &Transition::instant);
  std::erase_if(known.list, [lastYear](const Transition& transition) {
    const year which = year_month_day{floor<days>(transition.instant)}.year();
    return which <= lastYear - years{40} || which > lastYear;
  });
  return known;
}

TEST_P(CarriedRule, holdsInEveryLaterYear) {
  const RuleRow& row = GetParam();
  for (const year lastYear : {1999y, 2019y, 2100y, 2130y}) {
    const auto zone = TimeZone::fromTransitions("Test/Rule", listed(row, lastYear)).value();
    for (year which = lastYear + years{2}; which < year{9999}; ++which) {
      const sys_seconds forward = row.of(which / row.forward), back = row.of(which / row.back);
      ASSERT_EQ(zone->offset(forward - 1s), 1h) << int{which} << " after " << int{lastYear};
      ASSERT_EQ(zone->offset(forward), 2h) << int{which} << " after " << int{lastYear};
      ASSERT_EQ(zone->offset(back - 1s), 2h) << int{which} << " after " << int{lastYear};
      ASSERT_EQ(zone->offset(back), 1h) << int{which} << " after " << int{lastYear};
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, CarriedRule,
                         testing::Values(RuleRow{"lastSundays", lastSundayOf, March, October},
                                         RuleRow{"aroundNewYear", firstSundayOf, January, July}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(Transitions, showNoRuleWhereAYearHasNone) {
  Transitions known = listed({"", lastSundayOf, March, October}, 2019y);
  std::erase_if(known.list,
                [](const Transition& each) { return year_month_day{floor<days>(each.instant)}.year() == 1995y; });
  const auto zone = TimeZone::fromTransitions("Test/Gap", std::move(known)).value();
  EXPECT_EQ(zone->offset(sys_days{2019y / 7 / 1}), 2h);
  EXPECT_EQ(zone->offset(sys_days{2020y / 7 / 1}), 1h);
}

TEST(Transitions, mayBeNone) {
  const auto zone = TimeZone::fromTransitions("Etc/GMT-3", {.firstOffset = 3h}).value();
  EXPECT_EQ(zone->name(), "Etc/GMT-3");
  for (const sys_days at : {sys_days{1y / 1 / 1}, sys_days{2026y / 7 / 1}, sys_days{9999y / 12 / 31}}) {
    EXPECT_EQ(zone->offset(at), 3h);
    EXPECT_EQ(zone->startOfDay(sys_seconds{at}), at - 3h);
  }
}

struct RefusedRow {
  const char* name;
  Transitions known;
  const char* expected;
};
void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.name; }
class RefusedTransitions : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedTransitions, areNamed) {
  const auto zone = TimeZone::fromTransitions("Test/Zone", GetParam().known);
  ASSERT_FALSE(zone);
  EXPECT_EQ(zone.error(), std::string{"time zone \"Test/Zone\": "} + GetParam().expected);
}

constexpr sys_seconds first = sys_days{1980y / 4 / 6}, second = sys_days{1980y / 9 / 28};

INSTANTIATE_TEST_SUITE_P(
    Rows, RefusedTransitions,
    testing::Values(RefusedRow{"descending",
                               {.list = {{second, 1h}, {first, 2h}}},
                               "transition 2: expected a later instant than before it, from the year 1 on"},
                    RefusedRow{"twice",
                               {.list = {{first, 1h}, {first, 2h}}},
                               "transition 2: expected a later instant than before it, from the year 1 on"},
                    RefusedRow{"beforeTheYear1",
                               {.list = {{sys_seconds::min(), 1h}}},
                               "transition 1: expected a later instant than before it, from the year 1 on"},
                    RefusedRow{"afterTheLastYear",
                               {.list = {{first, 1h}, {sys_days{1981y / 1 / 1}, 2h}}, .lastYear = 1980y},
                               "transition 2: expected an instant up to the end of the last year"},
                    RefusedRow{
                        "aDayAhead", {.list = {{first, 24h}}}, "transition 1: expected an offset of less than a day"},
                    RefusedRow{"aDayBehind", {.firstOffset = -24h}, "expected a first offset of less than a day"},
                    RefusedRow{"noSuchYear", {.lastYear = 0y}, "expected a last year from 1 to 9999"}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::adapters
