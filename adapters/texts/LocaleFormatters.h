// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/icu/UserLocale.h"
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

/// Cheap: what is costly to open is opened on its first use and kept.
LocaleFormatters makeFormatters(const UserLocale& locale, const ZonedCalendar& calendar);

}  // namespace mivo::adapters
