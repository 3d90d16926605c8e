// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <tl/expected.hpp>

#include "adapters/icu/UserLocale.h"
#include "adapters/time/TimeZone.h"
#include "host/dates/SpokenDate.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// What typed dates are understood by.
struct TypedDateWords {
  DateNames names;  ///< in the language of the locale and in English
  DateOrder order;  ///< of the locale
};

/// Cost: a millisecond or two.
TypedDateWords typedDateWords(const adapters::UserLocale& locale);

/// Reads a date and time as somebody types it: in English and in the language of the locale, in whose order day and
/// month stand; see `readSpokenDate`. What is written by ISO 8601 with an offset costs nothing; anything else a
/// millisecond or two for the words of the language.
tl::expected<Date, SpokenFault> readTypedDate(std::string_view text, const adapters::UserLocale& locale,
                                              const adapters::TimeZone& zone, Date now, std::optional<Date> after = {});

}  // namespace mivo::host
