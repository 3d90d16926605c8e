// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/icu/UserLocale.h"
#include "adapters/texts/LocaleFormatters.h"
#include "adapters/time/ZonedCalendar.h"

namespace mivo::adapters {

/// Cheap: what is costly to open is opened on its first use and kept.
LocaleFormatters makeFormatters(const UserLocale& locale, const ZonedCalendar& calendar);

}  // namespace mivo::adapters
