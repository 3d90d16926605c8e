// SPDX-License-Identifier: MIT
#include "adapters/icu/UserLocale.h"

#include <unicode/calendar.h>
#include <unicode/localebuilder.h>
#include <unicode/locid.h>
#include <unicode/ulocdata.h>
#include <unicode/ures.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <memory>
#include <utility>

namespace mivo::adapters {
namespace {

std::string unknownLocale(std::string_view text) {
  return "unknown locale \"" + std::string{text} + "\": expected a language tag such as en, en-GB or de-DE";
}

// "de_DE.UTF-8" and "de_DE@euro" to "de-DE".
std::string spelledAsTag(std::string_view text) {
  text = text.substr(0, text.find_first_of(".@"));
  if (text == "C" || text == "POSIX") return "en";
  std::string tag{text};
  std::ranges::replace(tag, '_', '-');
  return tag;
}

bool hasData(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<UResourceBundle, decltype(&ures_close)> data{ures_open(nullptr, locale.getLanguage(), &status),
                                                                     &ures_close};
  return U_SUCCESS(status) && status != U_USING_DEFAULT_WARNING;
}

// Three digits are a continent or a part of one.
bool isRegion(std::string_view region) {
  if (region.empty() || std::ranges::all_of(region, [](unsigned char c) { return std::isdigit(c) != 0; })) return true;
  for (const char* const* country = icu::Locale::getISOCountries(); *country; ++country)
    if (region == *country) return true;
  return false;
}

icu::Locale icuLocale(const std::string& tag) {
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale locale = icu::Locale::forLanguageTag(tag, status);
  locale.addLikelySubtags(status);
  return locale;
}

}  // namespace

UserLocale::UserLocale(std::string tag) : languageTag{std::move(tag)} {}

tl::expected<UserLocale, std::string> UserLocale::parse(std::string_view text) {
  const std::string spelled = spelledAsTag(text);
  char name[ULOC_FULLNAME_CAPACITY] = {};
  std::int32_t readLength = 0;
  UErrorCode status = U_ZERO_ERROR;
  uloc_forLanguageTag(spelled.c_str(), name, sizeof name, &readLength, &status);
  if (U_FAILURE(status) || spelled.empty() || static_cast<std::size_t>(readLength) != spelled.size())
    return tl::unexpected{unknownLocale(text)};

  const icu::Locale locale{name};
  const bool namesLanguage = locale.getLanguage()[0] != '\0';
  if (!namesLanguage || !hasData(locale) || !isRegion(locale.getCountry())) return tl::unexpected{unknownLocale(text)};
  return UserLocale{locale.toLanguageTag<std::string>(status)};
}

UserLocale UserLocale::system() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* setting = std::getenv(variable);
    if (!setting || !*setting) continue;
    if (auto locale = parse(setting)) return *std::move(locale);
    break;
  }
  return UserLocale{"en"};
}

UserLocale UserLocale::inLanguage(std::string_view language) const {
  const auto other = parse(language);
  if (!other) return *this;
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale here = icu::Locale::forLanguageTag(languageTag, status);
  here.addLikelySubtags(status);
  const icu::Locale spoken = icu::Locale::forLanguageTag(other->languageTag, status);
  if (*spoken.getCountry() != '\0') return *other;
  const icu::Locale both = icu::LocaleBuilder{}.setLocale(spoken).setRegion(here.getCountry()).build(status);
  return UserLocale{both.toLanguageTag<std::string>(status)};
}

int UserLocale::firstWeekday() const {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Calendar> calendar{
      icu::Calendar::createInstance(*icu::TimeZone::getGMT(), icuLocale(languageTag), status)};
  return U_FAILURE(status) ? UCAL_MONDAY : calendar->getFirstDayOfWeek(status);
}

WeightUnit UserLocale::weightUnit() const {
  UErrorCode status = U_ZERO_ERROR;
  switch (ulocdata_getMeasurementSystem(icuLocale(languageTag).getName(), &status)) {
    case UMS_US:
      return WeightUnit::pounds;
    case UMS_UK:
      return WeightUnit::stones;
    default:
      return WeightUnit::kilograms;
  }
}

}  // namespace mivo::adapters
