// SPDX-License-Identifier: MIT
#include "adapters/icu/IcuDates.h"

#include <cmath>
#include <utility>

#include "adapters/icu/IcuCalendar.h"

namespace mivo::adapters {

using namespace std::chrono;

namespace {

constexpr double millisecondsPerDay = 86'400'000;

}  // namespace

IcuDates::IcuDates(std::string identifier, std::unique_ptr<icu::Calendar> opened)
    : name{std::move(identifier)}, calendar{std::move(opened)} {}

DateFields IcuDates::fields(local_days day) const {
  const std::lock_guard lock{guard};
  const Month month = monthOf(day);
  return {month.number, static_cast<int>((day - month.first).count()) + 1, month.isLeapMonth};
}

IcuDates::Month IcuDates::monthOf(local_days day) const {
  if (day >= lastMonth.first && day < lastMonth.next) return lastMonth;
  UErrorCode status = U_ZERO_ERROR;
  calendar->setTime(millisecondsOf(day), status);
  Month month;
  month.number = calendar->get(UCAL_MONTH, status) + 1;
  month.isLeapMonth = calendar->get(UCAL_IS_LEAP_MONTH, status) != 0;
  month.first = day - days{calendar->get(UCAL_DATE, status) - 1};
  month.next = added(month.first, UCAL_MONTH, 1).value_or(day + days{1});
  return lastMonth = month;
}

std::optional<local_days> IcuDates::added(local_days day, UCalendarDateFields field, std::int64_t count) const {
  constexpr std::int64_t monthsOfAllYears = 13 * 10000;
  if (count < -monthsOfAllYears || count > monthsOfAllYears) return std::nullopt;
  UErrorCode status = U_ZERO_ERROR;
  calendar->setTime(millisecondsOf(day), status);
  calendar->add(field, static_cast<std::int32_t>(count), status);
  const double result = calendar->getTime(status);
  if (U_FAILURE(status)) return std::nullopt;
  return local_days{days{static_cast<std::int64_t>(std::floor(result / millisecondsPerDay))}};
}

std::optional<local_days> IcuDates::addingMonths(local_days day, std::int64_t count) const {
  const std::lock_guard lock{guard};
  if (count == 1 && day == lastMonth.first && lastMonth.next > lastMonth.first) return lastMonth.next;
  return added(day, UCAL_MONTH, count);
}

std::optional<local_days> IcuDates::addingYears(local_days day, std::int64_t count) const {
  const std::lock_guard lock{guard};
  return added(day, UCAL_YEAR, count);
}

}  // namespace mivo::adapters
