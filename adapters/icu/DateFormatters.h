// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/icu/UserLocale.h"
#include "adapters/time/ZonedCalendar.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/Formatters.h"

namespace mivo::adapters {

/// Those of adapters/texts, on ICU.
Client<DateFormatter> dateFormatter(const UserLocale& locale, const ZonedCalendar& calendar);
Client<DateIntervalFormatter> dateIntervalFormatter(const UserLocale& locale, const ZonedCalendar& calendar);

}  // namespace mivo::adapters
