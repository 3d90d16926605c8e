// SPDX-License-Identifier: MIT
#include "adapters/icu/UserLocale.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <optional>
#include <ostream>
#include <string>

namespace mivo::adapters {
namespace {

struct TagRow {
  const char *name, *text, *tag;
  int firstWeekday;
  WeightUnit unit;
};
void PrintTo(const TagRow& row, std::ostream* out) { *out << row.name; }
class KnownLocale : public testing::TestWithParam<TagRow> {};

TEST_P(KnownLocale, hasItsTagWeekAndUnit) {
  const auto locale = UserLocale::parse(GetParam().text);
  ASSERT_TRUE(locale) << locale.error();
  EXPECT_EQ(locale->tag(), GetParam().tag);
  EXPECT_EQ(locale->firstWeekday(), GetParam().firstWeekday);
  EXPECT_EQ(locale->weightUnit(), GetParam().unit);
}

INSTANTIATE_TEST_SUITE_P(Rows, KnownLocale,
                         testing::Values(TagRow{"english", "en", "en", 1, WeightUnit::pounds},
                                         TagRow{"british", "en-GB", "en-GB", 2, WeightUnit::stones},
                                         TagRow{"german", "de-DE", "de-DE", 2, WeightUnit::kilograms},
                                         TagRow{"theSystemsSpelling", "de_DE.UTF-8", "de-DE", 2, WeightUnit::kilograms},
                                         TagRow{"theSystemsModifier", "es_ES@euro", "es-ES", 2, WeightUnit::kilograms},
                                         TagRow{"egyptian", "ar-EG", "ar-EG", 7, WeightUnit::kilograms},
                                         TagRow{"script", "zh-Hant-TW", "zh-Hant-TW", 1, WeightUnit::kilograms},
                                         TagRow{"extension", "en-u-hc-h23", "en-u-hc-h23", 1, WeightUnit::pounds},
                                         TagRow{"otherCase", "EN-gb", "en-GB", 2, WeightUnit::stones},
                                         TagRow{"continent", "es-419", "es-419", 2, WeightUnit::kilograms},
                                         TagRow{"theCLocale", "C.UTF-8", "en", 1, WeightUnit::pounds}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(UserLocale, refusesWhatItHasNoDataFor) {
  for (const std::string text : {"", "xx", "english", "en-XX", "en-", "-", "de DE", "und", "de-DE-", "\xff"}) {
    const auto locale = UserLocale::parse(text);
    ASSERT_FALSE(locale) << text;
    EXPECT_EQ(locale.error(), "unknown locale \"" + text + "\": expected a language tag such as en, en-GB or de-DE");
  }
}

TEST(UserLocale, keepsItsPlaceInAnotherLanguage) {
  const auto there = [](const char* place, const char* language) {
    return UserLocale::parse(place).value().inLanguage(language).tag();
  };
  EXPECT_EQ(there("de-DE", "en"), "en-DE");
  EXPECT_EQ(there("de-DE", "zh-Hant"), "zh-Hant-DE");
  EXPECT_EQ(there("de-DE", "en-u-hc-h12"), "en-DE-u-hc-h12");
  EXPECT_EQ(there("de-DE", "en-GB"), "en-GB");
  EXPECT_EQ(there("de", "en"), "en-DE");
  EXPECT_EQ(there("en", "de"), "de-US");
  EXPECT_EQ(there("de-DE", ""), "de-DE");
}

// The system's locale while these variables are set, and no others that choose one.
std::string tagWith(const std::map<std::string, std::string>& settings) {
  std::map<std::string, std::optional<std::string>> before;
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    before[variable] = value ? std::optional<std::string>{value} : std::nullopt;
    unsetenv(variable);
  }
  for (const auto& [variable, value] : settings) setenv(variable.c_str(), value.c_str(), 1);
  const std::string tag = UserLocale::system().tag();
  for (const auto& [variable, value] : before)
    value ? setenv(variable.c_str(), value->c_str(), 1) : unsetenv(variable.c_str());
  return tag;
}

TEST(UserLocale, isWhatTheEnvironmentNames) {
  EXPECT_EQ(tagWith({}), "en");
  EXPECT_EQ(tagWith({{"LANG", "fr_FR.UTF-8"}}), "fr-FR");
  EXPECT_EQ(tagWith({{"LANG", "fr_FR.UTF-8"}, {"LC_MESSAGES", "de_AT.UTF-8"}}), "de-AT");
  EXPECT_EQ(tagWith({{"LANG", "fr_FR.UTF-8"}, {"LC_ALL", "C"}}), "en");
  EXPECT_EQ(tagWith({{"LANG", "xx_YY.UTF-8"}}), "en");
}

}  // namespace
}  // namespace mivo::adapters
