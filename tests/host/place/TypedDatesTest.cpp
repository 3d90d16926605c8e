// SPDX-License-Identifier: MIT
#include "host/place/TypedDates.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "adapters/icu/LanguageWords.h"
#include "adapters/icu/LocaleFormatters.h"
#include "adapters/time/ZonedCalendar.h"
#include "adapters/zoneinfo/LoadTimeZone.h"

namespace mivo::host {
namespace {

struct Place {
  explicit Place(const char* tag)
      : locale{adapters::UserLocale::parse(tag).value()},
        formatters{adapters::makeFormatters(locale, *adapters::ZonedCalendar::gregorian(zone(), 2))} {}

  static std::shared_ptr<const adapters::TimeZone> zone() {
    static const auto berlin = adapters::loadTimeZone("Europe/Berlin").value();
    return berlin;
  }

  auto words() const {
    return [this] { return adapters::dateWords(locale); };
  }

  adapters::UserLocale locale;
  adapters::LocaleFormatters formatters;
};

constexpr Date now = dateSince1970(1795613420);  // Wednesday, 2026-11-25T13:30:20Z

class EveryLanguage : public testing::TestWithParam<const char*> {};

/// To the minute, through all hours of a day, all months, and the hours that a clock change doubles.
TEST_P(EveryLanguage, readsWhatItPrints) {
  const Place place{GetParam()};
  constexpr double minute = 60;
  const auto check = [&](Date date) {
    for (const char* skeleton : {"yMMMdjm", "yMdjm"}) {
      const std::string offset = offsetIfDoubled(date, *Place::zone());
      const std::string text =
          place.formatters.dateFormatter->string(date, skeleton).value() + (offset.empty() ? "" : ' ' + offset);
      const auto read = readTypedDate(text, place.words(), *Place::zone(), now);
      ASSERT_TRUE(read) << text;
      ASSERT_EQ(*read, date) << text;
    }
    const auto read = readTypedDate(typedDate(date, *Place::zone()), place.words(), *Place::zone(), now);
    ASSERT_EQ(read, date);
  };
  for (int month = 0; month < 24; ++month) check(dateSince1970(1767225600 + month * (30.4 * 1440 + 77) * minute));
  for (int hour = 0; hour < 48; ++hour) check(dateSince1970(1792800000 + hour * 60 * minute));  // 2026-10-24 and 25
}

TEST_P(EveryLanguage, understandsEnglishToo) {
  const Place place{GetParam()};
  const auto read = [&](std::string_view text) { return readTypedDate(text, place.words(), *Place::zone(), now); };
  EXPECT_EQ(read("Yesterday 8 PM"), dateSince1970(1795546800));
  EXPECT_EQ(read("2h ago"), now - Duration{7200});
  EXPECT_EQ(read("Sat 7am"), dateSince1970(1795240800));
  EXPECT_EQ(read("2026-11-25T08:00:00Z"), dateSince1970(1795593600));
}

INSTANTIATE_TEST_SUITE_P(Locales, EveryLanguage,
                         testing::Values("en-US", "en-GB", "en-DE", "en-CA", "de-DE", "de-AT", "es-ES", "es-US",
                                         "es-MX", "fr-FR", "fr-CA"),
                         [](const auto& row) {
                           std::string name = row.param;
                           std::erase(name, '-');
                           return name;
                         });

struct Row {
  const char* name;
  const char* locale;
  const char* text;
  double unixSeconds;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name << ": " << row.text; }
class OwnWords : public testing::TestWithParam<Row> {};

TEST_P(OwnWords, areUnderstood) {
  const auto& [name, tag, text, unixSeconds] = GetParam();
  const Place place{tag};
  EXPECT_EQ(readTypedDate(text, place.words(), *Place::zone(), now), dateSince1970(unixSeconds));
}

INSTANTIATE_TEST_SUITE_P(Rows, OwnWords,
                         testing::Values(Row{"yesterdayInGerman", "de-DE", "Gestern um 20:00", 1795546800},
                                         Row{"nowInGerman", "de-DE", "jetzt", 1795613420},
                                         Row{"saturdayInFrench", "fr-FR", "samedi 7:00", 1795240800},
                                         Row{"yesterdayInFrench", "fr-FR", "hier 20:00", 1795546800},
                                         Row{"yesterdayInSpanish", "es-ES", "ayer 20:00", 1795546800},
                                         Row{"marchInGerman", "de-DE", "1. März 2026 8:00", 1772348400},
                                         Row{"orderOfTheRegion", "en-US", "3/1/2026 8:00", 1772348400},
                                         Row{"orderOfAnotherRegion", "en-GB", "1/3/2026 8:00", 1772348400}),
                         [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::host
