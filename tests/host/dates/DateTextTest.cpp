// SPDX-License-Identifier: MIT
#include "host/dates/DateText.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <ostream>
#include <string>

#include "adapters/zoneinfo/LoadTimeZone.h"

namespace mivo::host {
namespace {

std::optional<double> secondsIn(std::string_view text, const std::string& zone) {
  const auto date = parseDateText(text);
  const auto instantOfIt = date ? instant(*date, *adapters::loadTimeZone(zone).value()) : std::nullopt;
  return instantOfIt ? std::optional{secondsSince1970(*instantOfIt)} : std::nullopt;
}

struct DateRow {
  const char* name;
  std::string_view text;
  std::optional<double> unixSeconds;
  const char* zone = "Europe/Berlin";
};
void PrintTo(const DateRow& row, std::ostream* out) { *out << row.name << ": " << row.text; }
class ReadDate : public testing::TestWithParam<DateRow> {};

TEST_P(ReadDate, givesTheInstantOrNothing) {
  EXPECT_EQ(secondsIn(GetParam().text, GetParam().zone), GetParam().unixSeconds);
}

constexpr double noon = 1772366400;  // 2026-03-01T12:00:00Z
constexpr auto none = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    Forms, ReadDate,
    testing::Values(
        DateRow{"zulu", "2026-03-01T12:00:00Z", noon}, DateRow{"small", "2026-03-01t12:00:00z", noon},
        DateRow{"blankForT", "2026-03-01 12:00:00Z", noon},
        DateRow{"blankBeforeOffset", "2026-03-01 07:00:00 -0500", noon},
        DateRow{"colonOffset", "2026-03-01T17:45:00+05:45", noon}, DateRow{"shortOffset", "2026-03-01T13:00+01", noon},
        DateRow{"unknownOffset", "2026-03-01T12:00:00-00:00", noon},
        DateRow{"withoutSeconds", "2026-03-01T12:00Z", noon}, DateRow{"tenths", "2026-03-01T12:00:00.5Z", noon + 0.5},
        DateRow{"comma", "2026-03-01T12:00:00,25Z", noon + 0.25},
        DateRow{"zeros", "2026-03-01T12:00:00.000000000Z", noon},
        DateRow{"sixtyDigits", "2026-03-01T12:00:00.500000000000000000000000000000000000000000000000000000000001Z",
                noon + 0.5},
        DateRow{"beforeTheEpoch", "1969-12-31T23:59:59.75Z", -0.25},
        DateRow{"theFirst", "0001-01-01T00:00:00Z", -62135596800.0},
        DateRow{"theLast", "9999-12-31T23:59:59Z", 253402300799.0},
        DateRow{"leapDay", "2024-02-29T00:00:00Z", 1709164800.0},
        DateRow{"leapSecond", "2016-12-31T23:59:60Z", 1483228800.0},
        DateRow{"leapSecondElsewhere", "2017-01-01T00:59:60+01:00", 1483228800.0}),
    [](const auto& row) { return std::string{row.param.name}; });

INSTANTIATE_TEST_SUITE_P(InAZone, ReadDate,
                         testing::Values(DateRow{"withoutOffset", "2026-03-01T13:00:00", noon},
                                         DateRow{"dayAlone", "2026-03-01", noon - 13 * 3600},
                                         DateRow{"skippedIsMovedToTheChange", "2026-03-29T02:30", 1774746000.0},
                                         DateRow{"doubleIsTheFirst", "2026-10-25T02:30", 1792888200.0},
                                         DateRow{"midnightSkipped", "2018-11-04", 1541300400.0, "America/Sao_Paulo"},
                                         DateRow{"daySkipped", "2011-12-30T12:00", 1325239200.0, "Pacific/Apia"},
                                         DateRow{"offsetHoldsAnyway", "2026-03-01T12:00:00Z", noon, "Asia/Kolkata"}),
                         [](const auto& row) { return std::string{row.param.name}; });

INSTANTIATE_TEST_SUITE_P(
    Refused, ReadDate,
    testing::Values(
        DateRow{"empty", "", none}, DateRow{"word", "yesterday", none}, DateRow{"number", "1772366400", none},
        DateRow{"month13", "2026-13-01", none}, DateRow{"day0", "2026-01-00", none},
        DateRow{"noLeapDay", "2023-02-29", none}, DateRow{"hour24", "2026-03-01T24:00:00Z", none},
        DateRow{"minute60", "2026-03-01T12:60:00Z", none}, DateRow{"second61", "2026-03-01T12:00:61Z", none},
        DateRow{"second60AtNoon", "2026-03-01T12:00:60Z", none},
        DateRow{"second60WithoutOffset", "2016-12-31T23:59:60", none}, DateRow{"hourAlone", "2026-03-01T12Z", none},
        DateRow{"pointWithoutDigits", "2026-03-01T12:00:00.Z", none},
        DateRow{"offset24", "2026-03-01T12:00:00+24:00", none}, DateRow{"offsetCut", "2026-03-01T12:00:00+01:", none},
        DateRow{"trailing", "2026-03-01T12:00:00Z!", none}, DateRow{"leading", " 2026-03-01T12:00:00Z", none},
        DateRow{"dayWithOffset", "2026-03-01Z", none}, DateRow{"shortYear", "26-03-01", none},
        DateRow{"longYear", "12026-03-01", none}, DateRow{"negativeYear", "-2026-03-01", none},
        DateRow{"year0", "0000-01-01T00:00:00Z", none}, DateRow{"beforeYear1InUTC", "0001-01-01T00:00:00+01:00", none},
        DateRow{"afterYear9999InUTC", "9999-12-31T23:59:59-01:00", none},
        DateRow{"nul", std::string_view{"2026-03-01\0", 11}, none}, DateRow{"otherDigits", "２０２６-03-01", none}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(WriteDate, hasAFractionOnlyWhereThereIsOne) {
  EXPECT_EQ(rfc3339(dateSince1970(noon)), "2026-03-01T12:00:00Z");
  EXPECT_EQ(rfc3339(dateSince1970(noon + 0.5)), "2026-03-01T12:00:00.5Z");
  EXPECT_EQ(rfc3339(dateSince1970(-0.25)), "1969-12-31T23:59:59.75Z");
  EXPECT_EQ(rfc3339(firstDate), "0001-01-01T00:00:00Z");
  EXPECT_EQ(rfc3339(lastDate), "9999-12-31T23:59:59Z");
}

TEST(WriteDate, saysWhatIsNotFinite) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(rfc3339(dateSince1970(std::nan(""))), "nan");
  EXPECT_EQ(rfc3339(dateSince1970(infinity)), "inf");
  EXPECT_EQ(rfc3339(dateSince1970(-infinity)), "-inf");
}

RC_GTEST_PROP(WriteDate, readsBackToTheSameDate, ()) {
  const auto whole = *rc::gen::inRange<std::int64_t>(-62135596800, 253402300799);
  const auto billionths = *rc::gen::inRange(0, 1'000'000'000);
  const int scale = *rc::gen::inRange(0, 3);
  const Date date = dateSince1970(static_cast<double>(whole) / std::pow(1000.0, scale) + billionths / 1e9);
  const std::string text = rfc3339(date);
  const auto read = parseDateText(text);
  RC_ASSERT(read.has_value());
  RC_ASSERT(secondsSince1970(*instant(*read)) == secondsSince1970(date));
}

}  // namespace
}  // namespace mivo::host
