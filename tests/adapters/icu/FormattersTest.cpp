// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "adapters/icu/Calendars.h"
#include "adapters/icu/LocaleFormatters.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "tests/support/Instants.h"
#include "tests/support/Threads.h"

namespace mivo::adapters {
namespace {

using tests::utc;

LocaleFormatters formattersOf(const char* locale, const char* zone = "Europe/Berlin",
                              const char* calendar = "gregorian") {
  return makeFormatters(UserLocale::parse(locale).value(),
                        *makeCalendar(calendar, loadTimeZone(zone).value(), 2).value());
}

template <class Row>
std::string nameOf(const testing::TestParamInfo<Row>& row) {
  return row.param.name;
}

struct DurationRow {
  const char* name;
  double seconds;
  const char *hoursAndMinutes, *hours;
};
void PrintTo(const DurationRow& row, std::ostream* out) { *out << row.name; }
class DurationText : public testing::TestWithParam<DurationRow> {};

TEST_P(DurationText, isTruncated) {
  const auto english = formattersOf("en");
  EXPECT_EQ(english.hourMinDurationUnitFormatter->string(GetParam().seconds), GetParam().hoursAndMinutes);
  EXPECT_EQ(english.hourDurationUnitFormatter->string(GetParam().seconds), GetParam().hours);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DurationText,
    testing::Values(DurationRow{"hoursAndMinutes", 45000, "12h 30m", "12h"},
                    DurationRow{"wholeHours", 36000, "10h 0m", "10h"}, DurationRow{"belowAnHour", 2700, "45m", "0h"},
                    DurationRow{"nothing", 0, "0m", "0h"}, DurationRow{"secondsAreCut", 59.9, "0m", "0h"},
                    DurationRow{"long", 374400, "104h 0m", "104h"},
                    DurationRow{"grouped", 4500000, "1,250h 0m", "1,250h"},
                    DurationRow{"aDayButForItsLastDigit", std::nextafter(86400, 0), "24h 0m", "24h"},
                    DurationRow{"halfAMillisecondShort", 86399.9995, "24h 0m", "24h"},
                    DurationRow{"aMillisecondShort", 86399.999, "23h 59m", "23h"},
                    DurationRow{"negative", -45000, "-12h 30m", "-12h"},
                    DurationRow{"negativeBelowAnHour", -2700, "-45m", "0h"},
                    DurationRow{"negativeNothingLeft", -59, "0m", "0h"},
                    DurationRow{"longerThanAnyLife", 1e15, "277,777,777,777h 46m", "277,777,777,777h"}),
    nameOf<DurationRow>);

TEST(DurationTexts, areMissingForWhatIsNotFinite) {
  const auto english = formattersOf("en");
  for (const double seconds :
       {std::nan(""), std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(english.hourMinDurationUnitFormatter->string(seconds), std::nullopt);
    EXPECT_EQ(english.hourDurationUnitFormatter->string(seconds), std::nullopt);
  }
  EXPECT_TRUE(english.hourMinDurationUnitFormatter->string(std::numeric_limits<double>::max()));
}

TEST(DurationTexts, areTheLocales) {
  EXPECT_EQ(formattersOf("de").hourMinDurationUnitFormatter->string(4545000), "1.262 Std., 30 Min.");
  EXPECT_EQ(formattersOf("fr").hourMinDurationUnitFormatter->string(45000), "12h 30min");
  EXPECT_EQ(formattersOf("es").hourDurationUnitFormatter->string(45000), "12h");
  EXPECT_EQ(formattersOf("sv").hourMinDurationUnitFormatter->string(-45000), "\u221212h 30m");
}

struct DateRow {
  const char *name, *locale, *zone, *calendar, *date, *skeleton, *expected;
};
void PrintTo(const DateRow& row, std::ostream* out) { *out << row.name; }
class DateText : public testing::TestWithParam<DateRow> {};

TEST_P(DateText, isThatOfTheWallClock) {
  const DateRow& row = GetParam();
  const auto formatters = formattersOf(row.locale, row.zone, row.calendar);
  for (const char* again : {"first", "kept"})
    EXPECT_EQ(formatters.dateFormatter->string(utc(row.date), row.skeleton), row.expected) << again;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DateText,
    testing::Values(
        DateRow{"weekday", "en", "Europe/Berlin", "gregorian", "2026-06-30 22:00", "EEE", "Wed"},
        DateRow{"weekdayBefore", "en", "Europe/Berlin", "gregorian", "2026-06-30 21:59:59", "EEE", "Tue"},
        DateRow{"monthAndDay", "en", "Europe/Berlin", "gregorian", "2026-06-30 22:00", "MMMd", "Jul 1"},
        DateRow{"monthAndDayGerman", "de", "Europe/Berlin", "gregorian", "2026-06-30 22:00", "MMMd", "1. Juli"},
        DateRow{"month", "fr", "Europe/Berlin", "gregorian", "2026-06-30 22:00", "MMM", "juil."},
        DateRow{"whole", "es", "Europe/Berlin", "gregorian", "2026-06-30 22:00", "yMMMd", "1 jul 2026"},
        DateRow{"time", "en", "Europe/Berlin", "gregorian", "2026-06-30 22:05", "jm", "12:05\u202fAM"},
        DateRow{"timeGerman", "de", "Europe/Berlin", "gregorian", "2026-07-01 12:05", "jm", "14:05"},
        // ICU's own rules are an hour off here.
        DateRow{"timeByTheLawInForce", "de", "Africa/Cairo", "gregorian", "2026-07-01 12:05", "jm", "15:05"},
        DateRow{"skippedDateIsTheNext", "en", "Pacific/Apia", "gregorian", "2011-12-30 10:00", "MMMd", "Dec 31"},
        // The hour that comes again after midnight belongs to the day that began.
        DateRow{"dateOfTheDay", "en", "America/St_Johns", "gregorian", "2006-10-29 03:00", "MMMd", "Oct 29"},
        DateRow{"beforeTheGregorianReform", "en", "UTC", "gregorian", "1500-03-01 12:00", "yMMMd", "Mar 1, 1500"},
        DateRow{"hebrew", "en", "Asia/Jerusalem", "hebrew", "2026-07-01 12:00", "MMMd", "16 Tamuz"},
        DateRow{"hebrewLeapYear", "en", "Asia/Jerusalem", "hebrew", "2024-03-24 12:00", "MMM", "Adar II"},
        DateRow{"hebrewPlainYear", "en", "Asia/Jerusalem", "hebrew", "2025-03-14 12:00", "MMM", "Adar"},
        DateRow{"persian", "en", "Asia/Tehran", "persian", "2026-07-01 12:00", "MMMd", "Tir 10"},
        DateRow{"umalqura", "ar-EG", "Asia/Riyadh", "islamic-umalqura", "2026-07-01 12:00", "MMM", "محرم"},
        DateRow{"buddhistYear", "en", "Asia/Bangkok", "buddhist", "2026-07-01 12:00", "yMMMd", "Jul 1, 2569 BE"}),
    nameOf<DateRow>);

TEST(DateTexts, areMissingOutsideTheYears1To9999) {
  const auto english = formattersOf("en");
  EXPECT_EQ(english.dateFormatter->string(dateSince1970(std::nan("")), "EEE"), std::nullopt);
  EXPECT_EQ(english.dateFormatter->string(dateSince1970(1e12), "EEE"), std::nullopt);
  EXPECT_EQ(english.dateIntervalFormatter->string({dateSince1970(0), dateSince1970(1e12)}), std::nullopt);
  EXPECT_EQ(english.dateIntervalFormatter->string({dateSince1970(1), dateSince1970(0)}), std::nullopt);
}

struct IntervalRow {
  const char *name, *locale, *calendar, *start, *end, *expected;
};
void PrintTo(const IntervalRow& row, std::ostream* out) { *out << row.name; }
class IntervalText : public testing::TestWithParam<IntervalRow> {};

TEST_P(IntervalText, endsWithTheLastDateInside) {
  const auto formatters = formattersOf(GetParam().locale, "Europe/Berlin", GetParam().calendar);
  EXPECT_EQ(formatters.dateIntervalFormatter->string({utc(GetParam().start), utc(GetParam().end)}),
            GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, IntervalText,
    testing::Values(IntervalRow{"week", "en", "gregorian", "2026-06-30 22:00", "2026-07-07 22:00",
                                "Jul 1\u2009\u2013\u20097, 2026"},
                    IntervalRow{"intoADay", "en", "gregorian", "2026-06-30 22:00", "2026-07-07 22:00:00.5",
                                "Jul 1\u2009\u2013\u20098, 2026"},
                    IntervalRow{"oneDay", "en", "gregorian", "2026-06-30 22:00", "2026-07-01 22:00", "Jul 1, 2026"},
                    IntervalRow{"noLength", "en", "gregorian", "2026-06-30 22:00", "2026-06-30 22:00", "Jul 1, 2026"},
                    IntervalRow{"overMonths", "en", "gregorian", "2026-06-25 22:00", "2026-07-02 22:00",
                                "Jun 26\u2009\u2013\u2009Jul 2, 2026"},
                    IntervalRow{"overYears", "de", "gregorian", "2025-12-28 23:00", "2026-01-04 23:00",
                                "29. Dez. 2025\u2009\u2013\u20094. Jan. 2026"},
                    IntervalRow{"hebrew", "en", "hebrew", "2026-06-30 22:00", "2026-07-07 22:00",
                                "16\u2009\u2013\u200922 Tamuz 5786"}),
    nameOf<IntervalRow>);

struct MassRow {
  const char *name, *locale;
  double weightInKg;
  const char *kilograms, *pounds, *stones;
};
void PrintTo(const MassRow& row, std::ostream* out) { *out << row.name; }
class MassText : public testing::TestWithParam<MassRow> {};

TEST_P(MassText, isInTheUnitAskedFor) {
  const MassRow& row = GetParam();
  const auto mass = formattersOf(row.locale).massFormatter;
  EXPECT_EQ(mass->string(row.weightInKg, WeightUnit::kilograms), row.kilograms);
  EXPECT_EQ(mass->string(row.weightInKg, WeightUnit::pounds), row.pounds);
  EXPECT_EQ(mass->string(row.weightInKg, WeightUnit::stones), row.stones);
}

INSTANTIATE_TEST_SUITE_P(Rows, MassText,
                         testing::Values(MassRow{"usual", "en", 81.4, "81.4 kg", "179.5 lb", "12 st 11 lb"},
                                         MassRow{"whole", "en", 81, "81.0 kg", "178.6 lb", "12 st 11 lb"},
                                         MassRow{"poundsThatFillAStone", "en", 14 * 13 * 0.45359237 - 0.1, "82.5 kg",
                                                 "181.8 lb", "13 st 0 lb"},
                                         MassRow{"half", "en", 81.25, "81.3 kg", "179.1 lb", "12 st 11 lb"},
                                         MassRow{"lost", "en", -1.3, "-1.3 kg", "-2.9 lb", "-3 lb"},
                                         MassRow{"lostStones", "en", -8, "-8.0 kg", "-17.6 lb", "-1 st 4 lb"},
                                         MassRow{"asGoodAsNothing", "en", -0.01, "0.0 kg", "0.0 lb", "0 lb"},
                                         MassRow{"german", "de", 81.4, "81,4 kg", "179,5 lb", "12 st, 11 lb"}),
                         nameOf<MassRow>);

TEST(NumberTexts, areGroupedAndRounded) {
  const auto english = formattersOf("en").numberFormatter, german = formattersOf("de").numberFormatter;
  EXPECT_EQ(english->string(std::int64_t{1234567}), "1,234,567");
  EXPECT_EQ(english->string(std::numeric_limits<std::int64_t>::min()), "-9,223,372,036,854,775,808");
  EXPECT_EQ(german->string(1234.25, 1), "1.234,3");
  EXPECT_EQ(german->string(2.5, 0), "3");
  EXPECT_EQ(english->string(-0.04, 1), "0.0");
}

TEST(Formatters, answerTheSameFromManyThreads) {
  const auto texts = [](const LocaleFormatters& formatters, int begin) {
    std::string all;
    for (int i = 0; i < 100; ++i) {
      const Date date = utc("2026-07-01 12:00") + Duration{(begin + i) * secondsPerDay};
      for (const char* skeleton : {"EEE", "MMMd", "yMMMd", "jm"})
        all += *formatters.dateFormatter->string(date, skeleton);
      all += *formatters.dateIntervalFormatter->string({date, date + Duration{10 * secondsPerDay}});
      all += *formatters.hourMinDurationUnitFormatter->string(begin + i * 1000);
      all += formatters.massFormatter->string(begin + i, WeightUnit::stones);
      all += formatters.numberFormatter->string(begin + i / 8.0, 2);
    }
    return all;
  };
  const auto alone = formattersOf("de"), shared = formattersOf("de");
  std::vector<std::string> expected, found(4);
  for (int i = 0; i < 4; ++i) expected.push_back(texts(alone, 50 * i));
  {
    tests::Threads threads;
    for (std::size_t i = 0; i < found.size(); ++i)
      threads.start([&, i] { found[i] = texts(shared, 50 * static_cast<int>(i)); });
  }
  EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace mivo::adapters
