// SPDX-License-Identifier: MIT
#include "host/dates/WrittenDate.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "adapters/zoneinfo/LoadTimeZone.h"

namespace mivo::host {
namespace {

std::string inOrder(const WrittenDate& date, DateOrder order) {
  static const auto zone = adapters::loadTimeZone("Europe/Berlin").value();
  const auto text = ordered(date, order);
  const auto when = text ? instant(*text, *zone) : std::nullopt;
  if (!when) return "none";
  std::string result = rfc3339(*when);
  return text->hasTime ? result : result + " (a day)";
}

/// The instant; "day first | month first" where they differ.
std::string reading(std::string_view text) {
  const auto date = readWrittenDate(text);
  if (!date) return "none";
  const std::string dayFirst = inOrder(*date, DateOrder::dayFirst), monthFirst = inOrder(*date, DateOrder::monthFirst);
  EXPECT_EQ(date->isOpen(), dayFirst != monthFirst && dayFirst != "none" && monthFirst != "none");
  return dayFirst == monthFirst ? dayFirst : dayFirst + " | " + monthFirst;
}

struct Row {
  const char* name;
  std::string_view text, expected;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name << ": " << row.text; }
class WrittenDates : public testing::TestWithParam<Row> {};

TEST_P(WrittenDates, areReadInBothOrders) { EXPECT_EQ(reading(GetParam().text), GetParam().expected); }

constexpr auto nameOf = [](const auto& row) { return std::string{row.param.name}; };

INSTANTIATE_TEST_SUITE_P(Read, WrittenDates,
                         testing::Values(Row{"iso", "2026-03-01T12:00:00.25+0100", "2026-03-01T11:00:00.25Z"},
                                         Row{"isoDay", "2026-03-01", "2026-02-28T23:00:00Z (a day)"},
                                         Row{"isoWithHalf", "2026-03-01 8:30:00 PM", "2026-03-01T19:30:00Z"},
                                         Row{"isoShort", "2026-3-1 8:30", "2026-03-01T07:30:00Z"},
                                         Row{"slashes", "2026/03/01", "2026-02-28T23:00:00Z (a day)"},
                                         Row{"points", "13.10.2019 06:29", "2019-10-13T04:29:00Z"},
                                         Row{"pointsHaveTheDayFirst", "02.03.2026 06:29", "2026-03-02T05:29:00Z"},
                                         Row{"open", "02/03/2026 06:29", "2026-03-02T05:29:00Z | 2026-02-03T05:29:00Z"},
                                         Row{"openButEqual", "03/03/2026 06:29", "2026-03-03T05:29:00Z"},
                                         Row{"onlyDayFirst", "25/11/2026 06:29", "2026-11-25T05:29:00Z | none"},
                                         Row{"onlyMonthFirst", "11/25/2026, 8:00 AM", "none | 2026-11-25T07:00:00Z"},
                                         Row{"shortYear", "6/26/21", "none | 2021-06-25T22:00:00Z (a day)"},
                                         Row{"lastCentury", "6/26/70", "none | 1970-06-25T23:00:00Z (a day)"},
                                         Row{"hyphens", "25-11-2026 6:29", "2026-11-25T05:29:00Z | none"},
                                         Row{"namedMonth", "26-Sep-2015", "2015-09-25T22:00:00Z (a day)"},
                                         Row{"monthFirstByName", "Oct 23 2019", "2019-10-22T22:00:00Z (a day)"},
                                         Row{"inFull", "October 23rd, 2019, 11:15:30 pm", "2019-10-23T21:15:30Z"},
                                         Row{"withWeekday", "Sat, 7 Mar 2026 20:00 +01:00", "2026-03-07T19:00:00Z"},
                                         Row{"pointedMonth", "7. Sept. 2026 20:00 GMT", "2026-09-07T20:00:00Z"},
                                         Row{"zoneByName", "7 Mar 2026 20:00 UTC+0100", "2026-03-07T19:00:00Z"},
                                         Row{"narrowBlank", "11/25/2026, 8:00\u202FAM", "none | 2026-11-25T07:00:00Z"},
                                         Row{"midnight", "2026-03-01 12:05 a.m.", "2026-02-28T23:05:00Z"},
                                         Row{"noon", "2026-03-01 12:05 P.M.", "2026-03-01T11:05:00Z"},
                                         Row{"compactDay", "20261125", "2026-11-24T23:00:00Z (a day)"},
                                         Row{"compactMinute", "202611250800", "2026-11-25T07:00:00Z"},
                                         Row{"compactSecond", "20150603050200+0100", "2015-06-03T04:02:00Z"},
                                         Row{"compactWithT", "20150603T050200Z", "2015-06-03T05:02:00Z"},
                                         Row{"unixSeconds", "1764057600", "2025-11-25T08:00:00Z"},
                                         Row{"firstUnixSecond", "0978307200", "2001-01-01T00:00:00Z"},
                                         Row{"unixMilliseconds", "1764057600125", "2025-11-25T08:00:00.125Z"}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(
    Refused, WrittenDates,
    testing::Values(Row{"empty", "", "none"}, Row{"word", "yesterday", "none"}, Row{"since2001", "785750400", "none"},
                    Row{"before2001", "0978307199", "none"}, Row{"after2100", "4133980800", "none"},
                    Row{"tooMuch", "2026-03-01 12:00 and more", "none"}, Row{"noSuchDay", "31.02.2026", "none"},
                    Row{"noSuchMonth", "26-Foo-2015", "none"}, Row{"monthOfNoOrder", "13/13/2026", "none"},
                    Row{"mixedSeparators", "13/10-2026", "none"}, Row{"hourOfNoHalf", "2026-03-01 13:00 PM", "none"},
                    Row{"noHour", "25.11.2026 24:00", "none"}, Row{"threeDigitYear", "25.11.202", "none"},
                    Row{"compactNonsense", "20261399", "none"}, Row{"compactHour", "202611252500", "none"},
                    Row{"spreadsheetDay", "45986", "none"}, Row{"noTime", "25.11.2026 x", "none"},
                    Row{"noOffset", "7 Mar 2026 20:00 Berlin", "none"}),
    nameOf);

TEST(WrittenTimes, areReadAlone) {
  using namespace std::chrono;
  const auto read = [](std::string_view text) {
    const auto time = readWrittenTime(text);
    return time ? std::optional{time->sinceMidnight} : std::nullopt;
  };
  EXPECT_EQ(read("01:57"), 1h + 57min);
  EXPECT_EQ(read(" 8 pm "), 20h);
  EXPECT_EQ(read("12:00:30 AM"), 30s);
  EXPECT_EQ(read("8"), std::nullopt);
  EXPECT_EQ(read("8:5"), std::nullopt);
  EXPECT_EQ(read("2026-03-01"), std::nullopt);
}

}  // namespace
}  // namespace mivo::host
