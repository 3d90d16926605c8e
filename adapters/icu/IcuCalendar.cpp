// SPDX-License-Identifier: MIT
#include "adapters/icu/IcuCalendar.h"

#include <unicode/gregocal.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <limits>

namespace mivo::adapters {

icu::Locale localeWithCalendar(std::string_view identifier, const std::string& localeTag) {
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale locale = icu::Locale::forLanguageTag(localeTag, status);
  locale.setKeywordValue("calendar", std::string{identifier}.c_str(), status);
  return locale;
}

std::unique_ptr<icu::Calendar> openCalendar(std::string_view identifier, const std::string& localeTag) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::Calendar> calendar{icu::Calendar::createInstance(
      icu::TimeZone::getGMT()->clone(), localeWithCalendar(identifier, localeTag), status)};
  if (U_FAILURE(status)) return nullptr;
  if (auto* gregorian = dynamic_cast<icu::GregorianCalendar*>(calendar.get()))
    gregorian->setGregorianChange(-std::numeric_limits<double>::max(), status);
  return U_FAILURE(status) ? nullptr : std::move(calendar);
}

std::string utf8(const icu::UnicodeString& text) {
  std::string bytes;
  text.toUTF8String(bytes);
  return bytes;
}

}  // namespace mivo::adapters
