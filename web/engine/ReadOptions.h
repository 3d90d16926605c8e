// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "adapters/time/ZonedCalendar.h"
#include "host/report/Report.h"

namespace mivo::web {

/// What the statistics are made for.
struct EngineOptions {
  host::ReportSettings report;
  std::shared_ptr<const adapters::ZonedCalendar> calendar;  ///< that of the report
};

/// Reads them from JSON:
///
///     {"now": "2026-03-01T12:00:00Z", "range": "week", "firstWeekday": 2,
///      "timeZone": {"name": "Europe/Berlin", "firstOffset": 3208, "transitions": [[-2422054408, 3600], ...],
///                   "lastYear": 2100},
///      "count": "days", "ignoreGoal": false, "maxBreakHours": 24, "weightUnit": "kg"}
///
/// timeZone   seconds since 1970 of each change of the clocks, ascending, and the offset after it in seconds east of
/// UTC;
///            without it, UTC. See `adapters::Transitions` for `lastYear`.
/// What is left out has the value above; only `now` has to be there. An error is a sentence that names the field, what
/// was expected and what was found. Keys that are not known are refused. Throws DecodingError for what is not JSON.
tl::expected<EngineOptions, std::string> readOptions(std::string_view json);

}  // namespace mivo::web
