// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/texts/DateTexts.h"
#include "adapters/time/ZonedCalendar.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/Formatters.h"

namespace mivo::adapters {

// Of texts that are made for the same calendar.

/// Texts of dates in a calendar and its zone. A skeleton that names no time of day shows the date that the instant
/// belongs to, and such texts are kept: asking for one again costs 50 ns. There is no zone to name, so a skeleton that
/// asks for one shows UTC. No text outside the years 1 to 9999.
Client<DateFormatter> dateFormatter(Client<DateTexts> texts, const ZonedCalendar& calendar);

/// Texts of intervals in a calendar and its zone. The end is outside, so seven days from a midnight on read
/// "Jul 1 – 7, 2026".
Client<DateIntervalFormatter> dateIntervalFormatter(Client<DateTexts> texts, const ZonedCalendar& calendar);

}  // namespace mivo::adapters
