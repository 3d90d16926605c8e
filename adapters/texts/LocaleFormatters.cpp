// SPDX-License-Identifier: MIT
#include "adapters/texts/LocaleFormatters.h"

#include "adapters/texts/DateFormatters.h"
#include "adapters/texts/QuantityFormatters.h"

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

LocaleFormatters makeFormatters(const Client<QuantityTexts>& quantities, const Client<DateTexts>& dates,
                                const ZonedCalendar& calendar) {
  return {.hourMinDurationUnitFormatter = durationFormatter(quantities, DurationUnits::hoursAndMinutes),
          .hourDurationUnitFormatter = durationFormatter(quantities, DurationUnits::hours),
          .dateFormatter = dateFormatter(dates, calendar),
          .dateIntervalFormatter = dateIntervalFormatter(dates, calendar),
          .massFormatter = massFormatter(quantities),
          .numberFormatter = numberFormatter(quantities)};
}

}  // namespace mivo::adapters
