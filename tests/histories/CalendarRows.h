// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "adapters/icu/Calendars.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "tests/histories/ZoneRows.h"

namespace mivo::tests {

/// A calendar in a zone, near an instant at which its clocks do something odd.
struct CalendarRow {
  const char* identifier;
  ZoneRow zone;

  std::shared_ptr<const adapters::ZonedCalendar> calendar() const {
    return adapters::makeCalendar(identifier, adapters::loadTimeZone(zone.zone).value(), 2).value();
  }
};

inline void PrintTo(const CalendarRow& row, std::ostream* out) { *out << row.identifier << " in " << row.zone.zone; }

/// The Gregorian calendar in every zone, the others in New York and across Apia's missing day.
inline std::vector<CalendarRow> calendarRows() {
  std::vector<CalendarRow> rows;
  for (const auto& zone : zoneRows) rows.push_back({"gregorian", zone});
  for (const char* identifier : {"buddhist", "hebrew", "islamic-umalqura", "persian"}) {
    rows.push_back({identifier, zoneRows[0]});
    rows.push_back({identifier, zoneRows[4]});
  }
  return rows;
}

inline std::string calendarRowName(const testing::TestParamInfo<CalendarRow>& row) {
  std::string name = std::string{row.param.identifier} + '_' + row.param.zone.name;
  std::erase(name, '-');
  return name;
}

}  // namespace mivo::tests
