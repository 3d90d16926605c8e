// SPDX-License-Identifier: MIT
#include "adapters/icu/DateFormatters.h"

#include "adapters/icu/IcuDateTexts.h"
#include "adapters/texts/DateFormatters.h"

namespace mivo::adapters {

Client<DateFormatter> dateFormatter(const UserLocale& locale, const ZonedCalendar& calendar) {
  return dateFormatter(icuDateTexts(locale, calendar.identifier()), calendar);
}

Client<DateIntervalFormatter> dateIntervalFormatter(const UserLocale& locale, const ZonedCalendar& calendar) {
  return dateIntervalFormatter(icuDateTexts(locale, calendar.identifier()), calendar);
}

}  // namespace mivo::adapters
