// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <tl/expected.hpp>

#include "adapters/language/DateWords.h"
#include "adapters/time/TimeZone.h"
#include "host/dates/SpokenDate.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// What typed dates are understood by.
struct TypedDateWords {
  DateNames names;  ///< in the user's language and in English
  DateOrder order;  ///< of the user's language
};

TypedDateWords typedDateWords(const adapters::DateWords& words);

/// Reads a date and time as somebody types it: in English and in the user's language, in whose order day and month
/// stand; see `readSpokenDate`. `words` is asked only where it is not written by ISO 8601 with an offset: they may cost
/// a millisecond or two.
tl::expected<Date, SpokenFault> readTypedDate(std::string_view text, const std::function<adapters::DateWords()>& words,
                                              const adapters::TimeZone& zone, Date now, std::optional<Date> after = {});

}  // namespace mivo::host
