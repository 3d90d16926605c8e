// SPDX-License-Identifier: MIT
#include "adapters/time/GregorianDates.h"

#include <algorithm>

#include "mivo/platform/Calendar.h"

namespace mivo::adapters {

using namespace std::chrono;

std::string_view GregorianDates::identifier() const { return gregorianIdentifier; }

DateFields GregorianDates::fields(local_days day) const {
  const year_month_day date{day};
  return {static_cast<int>(unsigned{date.month()}), static_cast<int>(unsigned{date.day()}), false};
}

std::optional<local_days> GregorianDates::addingMonths(local_days day, std::int64_t count) const {
  constexpr std::int64_t monthsOfAllYears = 120'000;
  if (count < -monthsOfAllYears || count > monthsOfAllYears) return std::nullopt;
  const year_month_day date{day};
  const year_month month = date.year() / date.month() + months{count};
  return local_days{month / std::min(date.day(), (month / last).day())};
}

std::optional<local_days> GregorianDates::addingYears(local_days day, std::int64_t count) const {
  if (count < -10000 || count > 10000) return std::nullopt;
  return addingMonths(day, 12 * count);
}

}  // namespace mivo::adapters
