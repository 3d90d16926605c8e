// SPDX-License-Identifier: MIT
#include "host/dates/SpokenDate.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "adapters/zoneinfo/LoadTimeZone.h"

namespace mivo::host {
namespace {

std::string text(Date date) { return rfc3339(date).substr(0, 16); }

/// What is understood on a Wednesday afternoon in Berlin, 25 November 2026, 14:30; "a or b" where it is either.
std::string understood(std::string_view typed, std::optional<std::string> after = {},
                       std::string_view now = "2026-11-25T13:30:20Z", DateOrder order = DateOrder::dayFirst) {
  static const auto zone = adapters::loadTimeZone("Europe/Berlin").value();
  const auto at = [](std::string_view iso) { return instant(parseDateText(iso).value()).value(); };
  const SpokenFrame frame{at(now), *zone, order, after ? std::optional{at(*after)} : std::nullopt};
  const auto date = readSpokenDate(typed, englishDateNames(), frame);
  if (date) return text(*date);
  const auto& readings = date.error().readings;
  return readings ? text(readings->first) + " or " + text(readings->second) : "none";
}

struct Row {
  const char* name;
  std::string_view typed, expected;
  std::optional<std::string> after = {};
  std::string_view now = "2026-11-25T13:30:20Z";
  DateOrder order = DateOrder::dayFirst;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name << ": " << row.typed; }
class SpokenDates : public testing::TestWithParam<Row> {};

TEST_P(SpokenDates, areUnderstood) {
  const auto& [name, typed, expected, after, now, order] = GetParam();
  EXPECT_EQ(understood(typed, after, now, order), expected);
}

constexpr auto nameOf = [](const auto& row) { return std::string{row.param.name}; };
constexpr auto afterClocksWentBack = "2026-10-25T12:00:00Z", betweenBoth = "2026-10-25T00:45:00Z",
               beforeBoth = "2026-10-24T23:00:00Z";

INSTANTIATE_TEST_SUITE_P(
    Said, SpokenDates,
    testing::Values(
        Row{"now", "now", "2026-11-25T13:30"}, Row{"timeOfToday", "8:00", "2026-11-25T07:00"},
        Row{"timeOfYesterday", "20:00", "2026-11-24T19:00"}, Row{"presentMinute", "14:30", "2026-11-25T13:30"},
        Row{"nextMinute", "14:31", "2026-11-24T13:31"}, Row{"hourOfAHalf", "8 pm", "2026-11-24T19:00"},
        Row{"shortHour", "7am", "2026-11-25T06:00"}, Row{"yesterday", "yesterday 20:00", "2026-11-24T19:00"},
        Row{"yesterdayAt", "yesterday at 8 PM", "2026-11-24T19:00"},
        Row{"yesterdayMorning", "yesterday, 7:00", "2026-11-24T06:00"}, Row{"today", "today 8:00", "2026-11-25T07:00"},
        Row{"laterToday", "today 20:00", "2026-11-25T19:00"}, Row{"weekday", "sat 7am", "2026-11-21T06:00"},
        Row{"thisWeekday", "Wed 8:00", "2026-11-25T07:00"}, Row{"lastWeekday", "wednesday 20:00", "2026-11-18T19:00"},
        Row{"hoursAgo", "2h ago", "2026-11-25T11:30"}, Row{"minutesAgo", "-90m", "2026-11-25T12:00"},
        Row{"inWords", "1 hour 30 minutes ago", "2026-11-25T12:00"}, Row{"daysAgo", "2 days ago", "2026-11-23T13:30"},
        Row{"american", "11/25/2026 8:00 AM", "2026-11-25T07:00"}, Row{"points", "25.11.2026 8:00", "2026-11-25T07:00"},
        Row{"orderOfTheLocale", "1/2/2026 8:00", "2026-02-01T07:00"},
        Row{"otherOrder", "1/2/2026 8:00", "2026-01-02T07:00", {}, "2026-11-25T13:30:20Z", DateOrder::monthFirst},
        Row{"withOffset", "2026-10-25 02:30+01:00", "2026-10-25T01:30"},
        Row{"fraction", "2026-11-25T08:00:00.5Z", "2026-11-25T08:00"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(AfterAStart, SpokenDates,
                         testing::Values(Row{"sameDay", "20:00", "2026-11-20T19:00", "2026-11-20T07:00:00Z"},
                                         Row{"nextDay", "7:00", "2026-11-21T06:00", "2026-11-20T07:00:00Z"},
                                         Row{"notAtTheStart", "8:00", "2026-11-21T07:00", "2026-11-20T07:00:00Z"},
                                         Row{"weekdayAfter", "sun 12:00", "2026-11-22T11:00", "2026-11-20T07:00:00Z"},
                                         Row{"nowIsNow", "now", "2026-11-25T13:30", "2026-11-20T07:00:00Z"}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(
    ClockChanges, SpokenDates,
    testing::Values(Row{"skipped", "29.03.2026 02:30", "2026-03-29T01:00"},
                    Row{"doubled", "25.10.2026 02:30", "2026-10-25T00:30 or 2026-10-25T01:30", {}, afterClocksWentBack},
                    Row{"doubledTimeAlone", "02:30", "2026-10-25T00:30 or 2026-10-25T01:30", {}, afterClocksWentBack},
                    Row{"onlyOneHasPassed", "02:30", "2026-10-25T00:30", {}, betweenBoth},
                    Row{"onlyOneOfTheDate", "25.10.2026 02:30", "2026-10-25T00:30", {}, betweenBoth},
                    Row{"noneHasPassed", "today 02:30", "2026-10-25T00:30 or 2026-10-25T01:30", {}, beforeBoth},
                    Row{"oneIsAfterTheStart", "02:30", "2026-10-25T01:30", betweenBoth, afterClocksWentBack}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Refused, SpokenDates,
                         testing::Values(Row{"empty", "", "none"}, Row{"dayAlone", "yesterday", "none"},
                                         Row{"dateAlone", "2026-11-25", "none"}, Row{"weekdayAlone", "sat", "none"},
                                         Row{"hourAlone", "8", "none"}, Row{"noUnit", "-90", "none"},
                                         Row{"noSign", "90m", "none"}, Row{"otherWord", "tomorrow 8:00", "none"},
                                         Row{"noSuchTime", "25:00", "none"}, Row{"ages", "999999 days ago", "none"},
                                         Row{"noBlank", "sat7am", "none"}),
                         nameOf);

TEST(TypedDates, nameTheOffsetOfADoubledHour) {
  const auto zone = adapters::loadTimeZone("Europe/Berlin").value();
  EXPECT_EQ(typedDate(dateSince1970(1792888200), *zone), "2026-10-25 02:30+02:00");
  EXPECT_EQ(typedDate(dateSince1970(1792891800), *zone), "2026-10-25 02:30+01:00");
  EXPECT_EQ(typedDate(dateSince1970(1792895400), *zone), "2026-10-25 03:30");
  EXPECT_EQ(understood("2026-10-25 02:30+01:00"), "2026-10-25T01:30");
}

}  // namespace
}  // namespace mivo::host
