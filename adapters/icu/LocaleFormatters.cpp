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

LocaleFormatters makeFormatters(const UserLocale& locale, const ZonedCalendar& calendar) {
  return {.hourMinDurationUnitFormatter = durationFormatter(locale, DurationUnits::hoursAndMinutes),
          .hourDurationUnitFormatter = durationFormatter(locale, DurationUnits::hours),
          .dateFormatter = dateFormatter(locale, calendar),
          .dateIntervalFormatter = dateIntervalFormatter(locale, calendar),
          .massFormatter = massFormatter(locale),
          .numberFormatter = numberFormatter(locale)};
}

}  // namespace mivo::adapters
