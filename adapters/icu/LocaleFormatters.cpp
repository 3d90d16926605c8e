// SPDX-License-Identifier: MIT
#include "adapters/icu/LocaleFormatters.h"

#include "adapters/icu/IcuDateTexts.h"
#include "adapters/icu/IcuQuantityTexts.h"

namespace mivo::adapters {

LocaleFormatters makeFormatters(const UserLocale& locale, const ZonedCalendar& calendar) {
  return makeFormatters(icuQuantityTexts(locale), icuDateTexts(locale, calendar.identifier()), calendar);
}

}  // namespace mivo::adapters
