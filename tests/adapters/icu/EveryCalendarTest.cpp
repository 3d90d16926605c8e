// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <unicode/calendar.h>

#include <memory>
#include <string>

#include "adapters/icu/Calendars.h"
#include "adapters/zoneinfo/LoadTimeZone.h"

namespace mivo::adapters {
namespace {

using namespace std::chrono;

constexpr local_days firstTested{1900y / 1 / 1}, lastTested{2101y / 1 / 1};

std::unique_ptr<icu::Calendar> icuCalendar(const std::string& identifier) {
  UErrorCode status = U_ZERO_ERROR;
  return std::unique_ptr<icu::Calendar>{icu::Calendar::createInstance(
      *icu::TimeZone::getGMT(), icu::Locale{("en@calendar=" + identifier).c_str()}, status)};
}

DateFields fieldsOf(icu::Calendar& calendar, local_days day) {
  UErrorCode status = U_ZERO_ERROR;
  calendar.setTime(duration<double, std::milli>{day.time_since_epoch()}.count(), status);
  return {calendar.get(UCAL_MONTH, status) + 1, calendar.get(UCAL_DATE, status),
          calendar.get(UCAL_IS_LEAP_MONTH, status) != 0};
}

std::shared_ptr<const DateSystem> datesOf(const std::string& identifier) {
  return makeCalendar(identifier, loadTimeZone("UTC").value(), 1).value()->dates();
}

class EveryCalendar : public testing::TestWithParam<std::string> {};

// ICU is asked for both ends of each month and a day between; days within a month follow one another.
TEST_P(EveryCalendar, hasTheMonthsThatIcuGives) {
  const auto expected = icuCalendar(GetParam());
  const auto dates = datesOf(GetParam());
  for (local_days first = firstTested - days{dates->fields(firstTested).day - 1}; first < lastTested;) {
    const local_days next = dates->addingMonths(first, 1).value();
    for (const local_days day : {first, first + (next - first) / 2, next - days{1}}) {
      ASSERT_EQ(dates->fields(day), fieldsOf(*expected, day)) << day.time_since_epoch().count();
      ASSERT_EQ(dates->fields(day).day, (day - first).count() + 1) << day.time_since_epoch().count();
    }
    ASSERT_EQ(fieldsOf(*expected, next).day, 1) << next.time_since_epoch().count();
    first = next;
  }
}

TEST_P(EveryCalendar, countsFromTheYear1To9999) {
  const auto dates = datesOf(GetParam());
  for (const int far : {1, 622, 1582, 4000, 9999})
    for (local_days day = local_days{year{far} / 2 / 1}; day < local_days{year{far} / 4 / 1}; day += days{1}) {
      const DateFields today = dates->fields(day), tomorrow = dates->fields(day + days{1});
      ASSERT_TRUE(tomorrow.day == today.day + 1 || (tomorrow.day == 1 && today.day >= 5)) << far;
      ASSERT_TRUE(today.month >= 1 && today.month <= 13) << far;
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, EveryCalendar, testing::ValuesIn(calendarIdentifiers()), [](const auto& row) {
  std::string name = row.param;
  std::erase(name, '-');
  return name;
});

}  // namespace
}  // namespace mivo::adapters
