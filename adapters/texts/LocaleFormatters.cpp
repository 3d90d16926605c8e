// SPDX-License-Identifier: MIT
#include "adapters/icu/LocaleFormatters.h"

#include "adapters/icu/DateFormatters.h"
#include "adapters/icu/QuantityFormatters.h"

namespace mivo::adapters {

void LocaleFormatters::fill(Dependencies& dependencies) const {
  dependencies.hourMinDurationUnitFormatter = hourMinDurationUnitFormatter;
  dependencies.hourDurationUnitFormatter = hourDurationUnitFormatter;
  dependencies.dateFormatter = dateFormatter;
  dependencies.dateIntervalFormatter = dateIntervalFormatter;
  dependencies.massFormatter = massFormatter;
  dependencies.numberFormatter = numberFormatter;
}

PageClients LocaleFormatters::pageClients(const Calendar& calendar, const TextLookup& texts, Date now) const {
  return {.now = now,
          .calendar = calendar,
          .texts = texts,
          .dates = *dateFormatter,
          .hourMin = *hourMinDurationUnitFormatter,
          .hour = *hourDurationUnitFormatter,
          .numbers = *numberFormatter,
          .masses = *massFormatter};
}

LocaleFormatters makeFormatters(const UserLocale& locale, const ZonedCalendar& calendar) {
  return {.hourMinDurationUnitFormatter = durationFormatter(locale, DurationUnits::hoursAndMinutes),
          .hourDurationUnitFormatter = durationFormatter(locale, DurationUnits::hours),
          .dateFormatter = dateFormatter(locale, calendar),
          .dateIntervalFormatter = dateIntervalFormatter(locale, calendar),
          .massFormatter = massFormatter(locale),
          .numberFormatter = numberFormatter(locale)};
}

}  // namespace mivo::adapters
