// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

#include "adapters/time/TimeZone.h"
#include "adapters/time/ZonedCalendar.h"

namespace mivo::adapters {

/// The identifiers that `makeCalendar` takes: "buddhist", "chinese", ..., "gregorian", ...; sorted.
const std::vector<std::string>& calendarIdentifiers();

/// A calendar in a zone.
///
///     const auto calendar = makeCalendar("hebrew", loadTimeZone("Asia/Jerusalem").value(), 1);
///
/// firstWeekday  1 = Sunday to 7 = Saturday
/// Errors        an unknown identifier or a weekday out of range, each with what would have been accepted
/// Thread        any
tl::expected<std::shared_ptr<const ZonedCalendar>, std::string> makeCalendar(std::string_view identifier,
                                                                             std::shared_ptr<const TimeZone> zone,
                                                                             int firstWeekday);

}  // namespace mivo::adapters
