// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/texts/DateTexts.h"
#include "adapters/texts/QuantityTexts.h"
#include "adapters/time/ZonedCalendar.h"
#include "mivo/pages/PageClients.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::adapters {

/// The formatters of a locale, with dates in a calendar and its time zone. Thread: any.
struct LocaleFormatters {
  Client<DurationFormatter> hourMinDurationUnitFormatter, hourDurationUnitFormatter;
  Client<DateFormatter> dateFormatter;
  Client<DateIntervalFormatter> dateIntervalFormatter;
  Client<MassFormatter> massFormatter;
  Client<NumberFormatter> numberFormatter;

  /// Puts them where the module looks for them.
  void fill(Dependencies& dependencies) const;

  /// What a page is composed with at an instant. All of it must outlive that.
  PageClients pageClients(const Calendar& calendar, const TextLookup& texts, Date now) const;
};

/// On texts of one locale, those of dates made for the calendar.
LocaleFormatters makeFormatters(const Client<QuantityTexts>& quantities, const Client<DateTexts>& dates,
                                const ZonedCalendar& calendar);

}  // namespace mivo::adapters
