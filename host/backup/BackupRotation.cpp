// SPDX-License-Identifier: MIT
#include "host/backup/BackupRotation.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>

namespace mivo::host {
namespace {

using Day = std::chrono::sys_days;

/// By its Monday.
Day weekOf(Date date) {
  const Day day = backupDay(date);
  return day - (std::chrono::weekday{day} - std::chrono::Monday);
}

/// By its first day.
Day monthOf(Date date) {
  const std::chrono::year_month_day day{backupDay(date)};
  return Day{day.year() / day.month() / 1};
}

/// Lets the first date of each period through, until there were so many periods.
class NewestOfEach {
 public:
  NewestOfEach(Day (*periodOfDate)(Date), std::size_t periods) : periodOf{periodOfDate}, left{periods} {}

  bool takes(Date date) {
    if (left == 0 || last == periodOf(date)) return false;
    last = periodOf(date);
    --left;
    return true;
  }

 private:
  Day (*periodOf)(Date);
  std::size_t left;
  std::optional<Day> last = {};
};

}  // namespace

std::vector<Date> keptBackups(std::vector<Date> dates) {
  std::ranges::sort(dates, std::greater{});
  NewestOfEach daily{backupDay, 7}, weekly{weekOf, 4}, monthly{monthOf, 12};
  std::erase_if(dates, [&](Date date) {
    const bool isOfDay = daily.takes(date), isOfWeek = weekly.takes(date), isOfMonth = monthly.takes(date);
    return !isOfDay && !isOfWeek && !isOfMonth;
  });
  return dates;
}

}  // namespace mivo::host
