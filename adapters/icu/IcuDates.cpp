// SPDX-License-Identifier: MIT
#include "adapters/icu/IcuDates.h"

#include <cmath>
#include <iterator>
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
  const Month& month = monthOf(day);
  return {month.number, static_cast<int>((day - month.first).count()) + 1, month.isLeapMonth};
}

const IcuDates::Month& IcuDates::monthOf(local_days day) const {
  constexpr std::size_t mostKept = 5000;  // four centuries
  const auto after = months.upper_bound(day);
  if (after != months.begin())
    if (const Month& month = std::prev(after)->second; day < month.next) return month;
  if (months.size() >= mostKept) months.clear();
  const Month month = readMonth(day);
  return months.emplace(month.first, month).first->second;
}

// No month of any calendar is longer than 31 days, nor are two together shorter: the day after those 31 lies in the
// next month, and says when that began. Asking the calendar to add a month takes up to a hundred times as long.
IcuDates::Month IcuDates::readMonth(local_days day) const {
  UErrorCode status = U_ZERO_ERROR;
  const auto firstOfMonth = [&](local_days at) {
    calendar->setTime(millisecondsOf(at), status);
    return at - days{calendar->get(UCAL_DATE, status) - 1};
  };
  Month month;
  month.first = firstOfMonth(day);
  month.number = calendar->get(UCAL_MONTH, status) + 1;
  month.isLeapMonth = calendar->get(UCAL_IS_LEAP_MONTH, status) != 0;
  month.next = firstOfMonth(month.first + days{31});
  return month;
}

std::optional<local_days> IcuDates::added(local_days day, UCalendarDateFields field, std::int64_t count) const {
  constexpr std::int64_t monthsOfAllYears = 130'000;
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
  if (count == 1)
    if (const Month& month = monthOf(day); day == month.first) return month.next;
  return added(day, UCAL_MONTH, count);
}

std::optional<local_days> IcuDates::addingYears(local_days day, std::int64_t count) const {
  const std::lock_guard lock{guard};
  return added(day, UCAL_YEAR, count);
}

}  // namespace mivo::adapters
