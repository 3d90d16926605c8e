// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "mivo/model/Fasts.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Calendar.h"

namespace mivo {

/// What to report about fasts that end before they start (at least one), at most eight of them spelt out:
///
///     invalid ordering F: 2026-07-02T08:00:00Z-2026-07-01T08:00:00Z DI:2026-07-02T00:00:00Z-2026-07-03T00:00:00Z
///     [the periods of its start and its end] [all such fasts]
///
/// in one line; "none" for a period that the calendar cannot form.
std::string invalidOrdering(std::span<const FinishedFastingDataEntry> backwardFasts, TimeRange range,
                            const Calendar& calendar);

}  // namespace mivo
