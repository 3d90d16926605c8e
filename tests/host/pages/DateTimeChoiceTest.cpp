// SPDX-License-Identifier: MIT
#include "host/pages/DateTimeChoice.h"

#include <gtest/gtest.h>

#include "host/json/RecordJson.h"
#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

using tests::utc;

/// Of a zone, some day of 2026.
struct Zone {
  explicit Zone(const char* name, Date present) : pages{name}, now{present} {}
  PageClients clients() const { return pages.at(now); }
  tests::Pages pages;
  Date now;
};

struct ShownRow {
  const char *name, *zone;
  const char* date;  // in UTC
  int daysAgo, hour, minute;
};
void PrintTo(const ShownRow& row, std::ostream* out) { *out << row.name; }

class ShownDates : public testing::TestWithParam<ShownRow> {};

TEST_P(ShownDates, readAsTheClockDidAndComeBackTheSame) {
  const auto& row = GetParam();
  const Zone zone{row.zone, utc("2026-10-25 12:00")};
  const DateTimeEntry entry = dateTimeEntry(utc(row.date), zone.clients());
  EXPECT_EQ(dayCount() - 2 - entry.day, row.daysAgo);
  EXPECT_EQ(entry.hour, row.hour);
  EXPECT_EQ(entry.minute, row.minute);
  EXPECT_EQ(instantOf(entry, zone.clients().calendar), utc(row.date));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ShownDates,
    testing::Values(ShownRow{"now", "UTC", "2026-10-25 12:00", 0, 12, 0},
                    ShownRow{"tomorrow", "UTC", "2026-10-26 23:59", -1, 23, 59},
                    ShownRow{"beforeTheGap", "Europe/Berlin", "2026-03-29 00:59", 210, 1, 59},
                    ShownRow{"afterTheGap", "Europe/Berlin", "2026-03-29 01:00", 210, 3, 0},
                    ShownRow{"afterAMidnightThatWasSkipped", "Africa/Cairo", "2026-04-23 22:00", 184, 1, 0},
                    ShownRow{"beforeTheDoubleHour", "Europe/Berlin", "2026-10-24 23:59", 0, 1, 59},
                    ShownRow{"afterTheDoubleHour", "Europe/Berlin", "2026-10-25 02:00", 0, 3, 0},
                    ShownRow{"theEveningAfter", "Europe/Berlin", "2026-10-25 22:59", 0, 23, 59},
                    ShownRow{"halfAnHourForward", "Australia/Lord_Howe", "2026-10-03 15:30", 21, 2, 30},
                    ShownRow{"halfAnHourBack", "Australia/Lord_Howe", "2026-04-04 16:00", 203, 2, 30}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(DateTimeEntry, comesBackTheSameAllYearInZonesThatChangeTheirClocks) {
  for (const char* name : {"Europe/Berlin", "Australia/Lord_Howe", "Africa/Cairo"}) {
    const Zone zone{name, utc("2026-12-31 12:00")};
    const PageClients clients = zone.clients();
    int lost = 0;
    for (Date date = utc("2026-01-01 00:07"); date < utc("2026-12-31 00:00"); date += Duration{1800})
      lost += instantOf(dateTimeEntry(date, clients), clients.calendar) == date ? 0 : 1;
    EXPECT_LE(lost, 2) << name << ": only one of two instants that read alike can be chosen";
  }
}

TEST(DateTimeEntry, readsTheSecondOfTwoEqualTimesAsTheFirst) {
  const Zone zone{"Europe/Berlin", utc("2026-10-25 12:00")};
  const PageClients clients = zone.clients();
  const DateTimeEntry entry = dateTimeEntry(utc("2026-10-25 01:30"), clients);
  EXPECT_EQ(entry, dateTimeEntry(utc("2026-10-25 00:30"), clients));
  EXPECT_EQ(entry.hour, 2);
}

TEST(DateTimeEntry, keepsToItsLists) {
  const Zone zone{"UTC", utc("2026-10-25 12:00")};
  const PageClients clients = zone.clients();
  EXPECT_EQ(dateTimeEntry(utc("2027-10-25 12:00"), clients).day, dayCount() - 1);
  EXPECT_EQ(dateTimeEntry(utc("1800-10-25 12:00"), clients).day, 0);
  EXPECT_EQ(dateTimeEntry(utc("2026-10-25 12:34:56.7"), clients).minute, 34);
  const DateTimeEntry entry = withMinute(withHour(withDay({.today = utc("2026-10-25 00:00")}, 1 << 30), -1), 60);
  EXPECT_EQ(entry, (DateTimeEntry{utc("2026-10-25 00:00"), dayCount() - 1, 0, 59}));
  EXPECT_EQ(instantOf(entry, clients.calendar), utc("2026-10-26 00:59"));
}

struct ChosenRow {
  const char *name, *zone;
  const char* date;  // of a time of the day, in UTC
  int hour, minute;
  const char* expected;
};
void PrintTo(const ChosenRow& row, std::ostream* out) { *out << row.name; }

class ChosenTimes : public testing::TestWithParam<ChosenRow> {};

TEST_P(ChosenTimes, areThoseOfTheClock) {
  const auto& row = GetParam();
  const Zone zone{row.zone, utc("2026-12-31 12:00")};
  const DateTimeEntry noon = dateTimeEntry(utc(row.date), zone.clients());
  const DateTimeEntry entry = withMinute(withHour(noon, row.hour), row.minute);
  EXPECT_EQ(tests::text(instantOf(entry, zone.clients().calendar)), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ChosenTimes,
    testing::Values(ChosenRow{"usual", "Europe/Berlin", "2026-03-28 12:00", 2, 30, "2026-03-28 01:30:00"},
                    ChosenRow{"skippedIsTheFirstAfter", "Europe/Berlin", "2026-03-29 12:00", 2, 30,
                              "2026-03-29 01:00:00"},
                    ChosenRow{"midnightSkipped", "Africa/Cairo", "2026-04-24 12:00", 0, 15, "2026-04-23 22:00:00"},
                    ChosenRow{"doubledIsTheFirst", "Europe/Berlin", "2026-10-25 12:00", 2, 30, "2026-10-25 00:30:00"}),
    [](const auto& row) { return std::string{row.param.name}; });

struct TypedRow {
  const char *name, *zone, *text;
  const char* expected;  // in UTC; nothing where it is no date of the list
};
void PrintTo(const TypedRow& row, std::ostream* out) { *out << row.name; }

class TypedDates : public testing::TestWithParam<TypedRow> {};

TEST_P(TypedDates, areThoseOfTheClock) {
  const auto& row = GetParam();
  const Zone zone{row.zone, utc("2026-10-25 12:00")};
  const DateTimeEntry entry = dateTimeEntry(utc("2026-10-24 07:05"), zone.clients());
  const auto typed = withTyped(entry, row.text, zone.clients());
  EXPECT_EQ(typed ? tests::text(instantOf(*typed, zone.clients().calendar)) : "", row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TypedDates,
    testing::Values(TypedRow{"dateAndTime", "Europe/Berlin", "2025-03-01 19:30", "2025-03-01 18:30:00"},
                    TypedRow{"withAnOffset", "Europe/Berlin", "2025-03-01T19:30+05:00", "2025-03-01 14:30:00"},
                    TypedRow{"theDayKeepsTheTime", "Europe/Berlin", "2025-03-01", "2025-03-01 08:05:00"},
                    TypedRow{"theTimeKeepsTheDay", "Europe/Berlin", "23:59", "2026-10-24 21:59:00"},
                    TypedRow{"midnight", "UTC", "0:00", "2026-10-24 00:00:00"}, TypedRow{"noTime", "UTC", "24:00", ""},
                    TypedRow{"aNumber", "UTC", "12", ""},
                    TypedRow{"tomorrow", "UTC", "2026-10-26 23:59", "2026-10-26 23:59:00"},
                    TypedRow{"skipped", "Europe/Berlin", "2026-03-29 02:30", "2026-03-29 01:00:00"},
                    TypedRow{"shownTwice", "Europe/Berlin", "2026-10-25 02:30", "2026-10-25 00:30:00"},
                    TypedRow{"aheadOfUTC", "Pacific/Kiritimati", "2026-01-01 00:30", "2025-12-31 10:30:00"},
                    TypedRow{"behindUTC", "Pacific/Pago_Pago", "2025-12-31 23:30", "2026-01-01 10:30:00"},
                    TypedRow{"tooLate", "UTC", "2026-10-27", ""}, TypedRow{"tooEarly", "UTC", "1900-01-01 12:00", ""},
                    TypedRow{"noDate", "UTC", "2026-02-30 12:00", ""}, TypedRow{"words", "UTC", "yesterday", ""}),
    [](const auto& row) { return std::string{row.param.name}; });

/// Clocks as in the United States.
struct TwelveHourDates final : DateFormatter {
  std::optional<std::string> string(Date date, std::string_view skeleton) const override {
    const int hour = std::stoi(tests::text(date).substr(11, 2));
    const std::string twelve = std::to_string(hour % 12 == 0 ? 12 : hour % 12), half = hour < 12 ? " AM" : " PM";
    return twelve + (skeleton == "jm" ? ":00" : "") + half;
  }
};

TEST(DateTimeEntry, namesHoursAsTheRegionsClockDoes) {
  const Zone zone{"UTC", utc("2026-10-25 12:00")};
  const DateTimeEntry entry = dateTimeEntry(zone.now, zone.clients());
  EXPECT_EQ(hourTextOf(entry, 7, zone.clients()), "07");
  EXPECT_EQ(hourTextOf(entry, 10, zone.clients()), "10");
  const TwelveHourDates dates;
  const PageClients pages = zone.clients();
  const PageClients american{pages.now,     pages.calendar, pages.texts,   dates,
                             pages.hourMin, pages.hour,     pages.numbers, pages.masses};
  EXPECT_EQ(hourTextOf(entry, 0, american), "12 AM");
  EXPECT_EQ(hourTextOf(entry, 19, american), "7 PM");
}

TEST(DateTimeChoice, canBeTypedAsItIsWritten) {
  for (const char* name : {"Europe/Berlin", "Pacific/Kiritimati", "Pacific/Pago_Pago", "Pacific/Apia"}) {
    const Zone zone{name, utc("2026-12-31 12:00")};
    const PageClients clients = zone.clients();
    const DateTimeEntry other = dateTimeEntry(utc("2020-05-05 05:05"), clients);
    for (Date date = utc("2010-12-25 00:07"); date < utc("2026-12-31 00:00"); date += Duration{37 * 3600 + 480}) {
      const DateTimeEntry entry = dateTimeEntry(date, clients);
      const std::string written = composeDateTimeChoice(entry, clients).typed;
      ASSERT_EQ(withTyped(other, written, clients), entry) << name << ' ' << written;
    }
  }
}

TEST(DateTimeChoice, saysWhatIsChosen) {
  const Zone zone{"UTC", utc("2026-10-25 12:00")};
  const DateTimeChoice choice =
      composeDateTimeChoice(dateTimeEntry(utc("2026-10-24 09:05"), zone.clients()), zone.clients());
  EXPECT_EQ(choice.text, "Yesterday, 09:05");
  EXPECT_EQ(choice.daySpoken, "Day, 10-24");
  EXPECT_EQ(choice.hourSpoken, "Hour, 09");
  EXPECT_EQ(choice.minuteSpoken, "Minute, 05");
  EXPECT_EQ(choice.typed, "2026-10-24 09:05");
  EXPECT_EQ(choice.typedProblem, "Type a day up to tomorrow and a time, such as 2026-10-24 09:05.");
  JsonWriter json;
  writeJson(json, choice);
  EXPECT_NE(std::move(json).text().find(R"("instant": "2026-10-24T09:05:00Z")"), std::string::npos);
}

}  // namespace
}  // namespace mivo::host
