// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <ostream>
#include <string>

#include "adapters/time/TimeZone.h"
#include "adapters/time/ZonedCalendar.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "mivo/platform/Calendar.h"

namespace mivo::tests {

/// A zone, a calendar, and an instant near which its clocks do something odd.
struct ZoneRow {
  const char* name;
  const char* zone;
  Date around;
};

inline void PrintTo(const ZoneRow& row, std::ostream* out) { *out << row.name; }

inline constexpr std::array zoneRows{
    ZoneRow{"newYorkSpring", "America/New_York", dateSince1970(1772953200)},        // 2026-03-08, a day of 23 h
    ZoneRow{"londonAutumn", "Europe/London", dateSince1970(1792890000)},            // 2026-10-25, a day of 25 h
    ZoneRow{"lordHoweHalfHour", "Australia/Lord_Howe", dateSince1970(1775314800)},  // 2026-04-05, a day of 24.5 h
    ZoneRow{"kolkata", "Asia/Kolkata", dateSince1970(1782907200)},
    ZoneRow{"apiaMissingDay", "Pacific/Apia", dateSince1970(1325239200)},          // no 2011-12-30
    ZoneRow{"casablancaRamadan", "Africa/Casablanca", dateSince1970(1771120800)},  // 2026-02-15
    ZoneRow{"saoPauloMidnight", "America/Sao_Paulo", dateSince1970(1541300400)}};  // 2018-11-04 begins at 01:00

inline std::string rowName(const testing::TestParamInfo<ZoneRow>& row) { return row.param.name; }

inline std::shared_ptr<const Calendar> gregorianCalendar(const char* zone, int firstWeekday = 2) {
  return adapters::ZonedCalendar::gregorian(adapters::loadTimeZone(zone).value(), firstWeekday);
}

}  // namespace mivo::tests
