// SPDX-License-Identifier: MIT
#include "host/import/SaidFasts.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "adapters/icu/LanguageWords.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

using Lines = std::vector<std::string>;

/// English, and some words of other languages.
DateNames names() {
  DateNames all = englishDateNames();
  all.inSmallLetters = adapters::dateWords(adapters::UserLocale::parse("en").value()).inSmallLetters;
  for (const auto& [name, ago] : {std::pair{"gestern", 1U}, {"heute", 0U}, {"hier", 1U}})
    all.daysAgo.push_back({name, ago});
  all.weekdays.push_back({"sa", 6});
  all.months.push_back({"août", 8});
  all.links.insert(all.links.end(), {"um", "à"});
  all.untils.insert(all.untils.end(), {"bis", "à", "jusqu’à"});
  return all;
}

ImportedFile read(std::string_view text, DateOrder order = DateOrder::dayFirst) {
  static const auto zone = adapters::loadTimeZone("Europe/Berlin").value();
  static const DateNames words = names();
  static const Date now = instant(parseDateText("2026-11-25T13:30:20Z").value()).value();  // a Wednesday, 14:30
  const tests::CountingUUIDs ids;
  return readSaidFasts("notes", text, {words, {now, *zone, order}, 57600}, ids);
}

/// "2 2026-11-24T19:00 2026-11-25T11:00": each fast with its line, then what was refused.
Lines understood(const ImportedFile& file) {
  Lines lines;
  for (std::size_t index = 0; index < file.fasts.size(); ++index) {
    const FastingDataEntry& fast = file.fasts[index].fast;
    lines.push_back(std::to_string(file.lineOfFast(index)) + ' ' + rfc3339(fast.start).substr(0, 16) + ' ' +
                    rfc3339(fast.finished->end).substr(0, 16));
    EXPECT_EQ(fast.goalSeconds, 57600);
  }
  for (const BadRecord& bad : file.refused.first()) lines.push_back(describe(bad));
  return lines;
}

const std::string lastNight = "1 2026-11-24T19:00 2026-11-25T11:00", november = "1 2026-11-20T19:00 2026-11-21T11:30";

struct Row {
  const char* name;
  std::string_view text;
  std::string expected;
  DateOrder order = DateOrder::dayFirst;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name << ": " << row.text; }
class SaidFasts : public testing::TestWithParam<Row> {};

TEST_P(SaidFasts, areUnderstood) {
  const auto& [name, text, expected, order] = GetParam();
  EXPECT_EQ(understood(read(text, order)), Lines{expected});
}

constexpr auto nameOf = [](const auto& row) { return std::string{row.param.name}; };

INSTANTIATE_TEST_SUITE_P(
    Apart, SaidFasts,
    testing::Values(
        Row{"dash", "yesterday 20:00 - 12:00", lastNight}, Row{"longDash", "Yesterday 8 PM – 12:00", lastNight},
        Row{"longestDash", "yesterday 20:00—12:00", lastNight},
        Row{"thinBlanks",
            "yesterday 8\u202Fpm\u2009–\u2009"
            "12\u202Fpm",
            lastNight},
        Row{"noBlanks", "20:00-12:00", lastNight}, Row{"to", "yesterday 20:00 to 12:00", lastNight},
        Row{"until", "Yesterday at 20:00 UNTIL today at 12:00", lastNight}, Row{"semicolon", "20:00; 12:00", lastNight},
        Row{"tab", "20:00\t12:00", lastNight}, Row{"fourColumns", "20.11.2026\t20:00\t21.11.2026\t12:30", november},
        Row{"comma", "yesterday, 20:00, 12:00", lastNight},
        Row{"commasOfDates", "20 Nov 2026, 20:00, Nov 21, 2026, 12:30", november},
        Row{"german", "Gestern um 20:00 bis heute 12:00", lastNight}, Row{"french", "hier à 20h00 à 12:00", lastNight},
        Row{"frenchMonth", "1 août 2026 20:00 jusqu’à 2 août 2026 12h30", "1 2026-08-01T18:00 2026-08-02T10:30"},
        Row{"isoDates", "2026-11-20 20:00-2026-11-21 12:30", november},
        Row{"offsets", "2026-11-20T20:00+01:00 - 2026-11-21T06:30-05:00", november}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Ends, SaidFasts,
    testing::Values(Row{"firstAfterTheStart", "20.11.2026 20:00 - 12:30", november},
                    Row{"weekday", "sat 8pm - sun 12:00", "1 2026-11-21T19:00 2026-11-22T11:00"},
                    Row{"now", "20:00 - now", "1 2026-11-24T19:00 2026-11-25T13:30"},
                    Row{"length", "yesterday 20:00, 16h", lastNight},
                    Row{"longerLength", "20.11.2026 20:00; 16h 30m", november},
                    Row{"afterTheDoubledHour", "25.10.2026 2:30+01:00, 3h", "1 2026-10-25T01:30 2026-10-25T04:30"},
                    Row{"dayFirst", "1/2/2026 20:00 - 2/2/2026 12:00", "1 2026-02-01T19:00 2026-02-02T11:00"},
                    Row{"monthFirst", "2/1/2026 20:00 - 2/2/2026 12:00", "1 2026-02-01T19:00 2026-02-02T11:00",
                        DateOrder::monthFirst}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Listed, SaidFasts,
                         testing::Values(Row{"dash", "- yesterday 20:00 - 12:00", lastNight},
                                         Row{"star", "* 20:00 - 12:00\r", lastNight},
                                         Row{"point", "  • 20:00 - 12:00", lastNight},
                                         Row{"number", "12. yesterday 20:00 - 12:00", lastNight},
                                         Row{"bracket", "2) 20:00 - 12:00", lastNight},
                                         Row{"numberedDate", "1. 20.11.2026 20:00 - 12:30", november},
                                         Row{"dayOfADate", "20. 11. 2026 20:00 - 21. 11. 2026 12:30", november},
                                         Row{"minutesAgo", "-18h - -2h 30m", "1 2026-11-24T19:30 2026-11-25T11:00"}),
                         nameOf);

const std::string noFast =
    "notes:1: expected a start and an end, as in \"yesterday 20:00 - 12:00\" or \"yesterday 20:00, 16h\", found ";
const std::string noEnd = "notes:1: expected an end, as in 12:00 or \"today 12:00\", found ";

INSTANTIATE_TEST_SUITE_P(
    Refused, SaidFasts,
    testing::Values(
        Row{"words", "Slept well", noFast + "\"Slept well\""}, Row{"oneDate", "20:00", noFast + "\"20:00\""},
        Row{"offsetNoEnd", "2026-11-20 20:00-05:00", noFast + "\"2026-11-20 20:00-05:00\""},
        Row{"noSuchStart", "- Sat 25:00 - 12:00", noFast + "\"Sat 25:00 - 12:00\""},
        Row{"noSuchEnd", "Sat 20:00 - Sun 25:00", noEnd + "\"Sun 25:00\""}, Row{"noEnd", "Sat 20:00 -", noEnd + "\"\""},
        Row{"hoursBehindADash", "20:00 - 12h", noEnd + "\"12h\""},
        Row{"startInFuture", "today 20:00 - 12:00",
            "notes:1: expected a start that has passed, found \"today 20:00 - 12:00\""},
        Row{"endInFuture", "20:00 - 15:00", "notes:1: expected an end that has passed, found \"20:00 - 15:00\""},
        Row{"farTooLong", "20:00, 999999 days",
            "notes:1: expected an end that has passed, found \"20:00, 999999 days\""},
        Row{"endBeforeStart", "yesterday 20:00 - yesterday 19:00",
            "notes:1: expected an end after the start, found \"yesterday 20:00 - yesterday 19:00\""},
        Row{"startTwice", "25.10.2026 2:30 - 14:00",
            "notes:1: expected 2026-10-25 02:30+02:00 or 2026-10-25 02:30+01:00, since the clocks show this twice, "
            "found \"25.10.2026 2:30\""},
        Row{"endTwice", "24.10.2026 20:00 - 2:30",
            "notes:1: expected 2026-10-25 02:30+02:00 or 2026-10-25 02:30+01:00, since the clocks show this twice, "
            "found \"2:30\""}),
    nameOf);

TEST(SaidFastLines, areCountedAndReadOneByOne) {
  const std::string endless(100'000, '-');
  EXPECT_EQ(understood(read("Fasts of 2026\n---\n\n" + endless + "\n- Sa 20:00 - 12:00\n \u2013 – \n" + endless +
                            "x\n20:00 - 12:00")),
            (Lines{"5 2026-11-21T19:00 2026-11-22T11:00", "8 2026-11-24T19:00 2026-11-25T11:00",
                   noFast + "\"Fasts of 2026\"", "notes:7" + noFast.substr(7) + '"' + std::string(40, '-') + "...\""}));
  EXPECT_EQ(understood(read("\n \r\n\n---\n")), Lines{});
}

}  // namespace
}  // namespace mivo::host
