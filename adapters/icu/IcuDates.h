// SPDX-License-Identifier: MIT
#pragma once

#include <unicode/calendar.h>

#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "adapters/time/DateSystem.h"

namespace mivo::adapters {

/// The months and years of any calendar that ICU knows. Cost: 50 ns; a
/// month asked for the first time takes microseconds, in the Chinese calendar a tenth of a millisecond.
class IcuDates final : public DateSystem {
 public:
  /// `calendar` is in UTC; `identifier` its own.
  IcuDates(std::string identifier, std::unique_ptr<icu::Calendar> calendar);

  std::string_view identifier() const override { return name; }
  DateFields fields(std::chrono::local_days day) const override;
  std::optional<std::chrono::local_days> addingMonths(std::chrono::local_days day, std::int64_t count) const override;
  std::optional<std::chrono::local_days> addingYears(std::chrono::local_days day, std::int64_t count) const override;

 private:
  struct Month {
    std::chrono::local_days first{}, next{};
    int number = 1;
    bool isLeapMonth = false;
  };

  const Month& monthOf(std::chrono::local_days day) const;
  Month readMonth(std::chrono::local_days day) const;
  std::optional<std::chrono::local_days> added(std::chrono::local_days day, UCalendarDateFields field,
                                               std::int64_t count) const;

  std::string name;
  mutable std::mutex guard;  // ICU's calendars compute their fields on reading
  std::unique_ptr<icu::Calendar> calendar;
  mutable std::map<std::chrono::local_days, Month> months;  // those read so far, by their first days
};

}  // namespace mivo::adapters
